#pragma once

#include "pages/HoroscopePages.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace kelvaro {

/// Hears before each page how many are done, and says whether to go on.
using PageProgress = std::function<bool(int done, int count)>;

/// The pages as a PDF document, with its properties; nothing where the progress was told to stop.
std::optional<QByteArray> PdfOf(const HoroscopePages &pages, const PageProgress &progress);

} // namespace kelvaro
