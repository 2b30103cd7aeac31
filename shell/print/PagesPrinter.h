#pragma once

#include "pages/HoroscopePages.h"
#include "shell/print/PrintJob.h"

#include <QPageLayout>
#include <QRectF>

#include <memory>

namespace kelvaro {

/// Where a page of that size stands on a printer's sheet, in points from the corner of the paper: in its
/// middle and in its own size, as far as the printer reaches everything that is on the page; moved and made
/// smaller where it does not.
QRectF PlaceOnSheet(QSizeF page, const QPageLayout &sheet);

/// The printing of drawn pages, each on a whole sheet of paper.
PrintJob JobOf(std::shared_ptr<const HoroscopePages> pages);

} // namespace kelvaro
