#pragma once

#include "pages/HoroscopePages.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace kelvaro {

/// Hears before each page how many are done, and says whether to go on.
using PageProgress = std::function<bool(int done, int count)>;

/// The pages as a PDF document, with its properties; nothing where the progress was told to stop.
std::optional<QByteArray> PdfOf(const HoroscopePages &pages, const PageProgress &progress);

/// Writes a file all or nothing: it takes the place of an older one, and keeps its permissions, only when it
/// lies on the disk completely. Raises ReportFileError, with a sentence that names the file and the cause.
void WriteWholeFile(const QString &name, const QByteArray &content);

} // namespace kelvaro
