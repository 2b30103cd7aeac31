#pragma once

#include <QLocale>
#include <QPageSize>

namespace kelvaro {

/// The paper that lies in the printers of a country: Letter in most of America and in the Philippines, A4
/// everywhere else.
QPageSize::PageSizeId PaperOf(QLocale::Territory territory);

/// The same for the person at the machine, whose settings may name one country for its paper and another one
/// for its language.
QPageSize::PageSizeId UsualPaper();

} // namespace kelvaro
