#pragma once

#include "report/HoroscopeReport.h"
#include "shell/print/PrintJob.h"

#include <QFont>

#include <string_view>
#include <vector>

namespace kelvaro {

/// The typeface of the report: Courier New or the nearest one of a fixed pitch.
QFont ReportFont();

/// The pages of a report that are printed. Without the antras these are its first six at most; an empty page
/// at the end of the report is none. They are views into the report.
std::vector<std::string_view> PagesToPrint(std::string_view report, AntraSection antra);

/// The printing of those pages, each on a sheet of its own. All sheets have letters of one size, the largest
/// with which no line and no page of `pages` leaves the printable area.
PrintJob JobOf(const std::vector<std::string_view> &pages);

} // namespace kelvaro
