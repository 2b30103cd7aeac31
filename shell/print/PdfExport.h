#pragma once

#include "pages/HoroscopePages.h"

#include <QWidget>

#include <chrono>

namespace kelvaro {

/// Writes the pages to a PDF file, all or nothing. Work that lasts longer than the patience shows how far it
/// is and can be cancelled. False where it was: nothing is written then. Raises FileError.
bool WritePdfFile(QWidget *parent, const HoroscopePages &pages, const QString &file,
                  std::chrono::milliseconds patience = std::chrono::seconds(1));

} // namespace kelvaro
