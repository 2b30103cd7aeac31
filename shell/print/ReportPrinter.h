#pragma once

#include "report/HoroscopeReport.h"
#include "runtime/RuntimeError.h"

#include <QFont>
#include <QPagedPaintDevice>
#include <QPrinter>

#include <string_view>
#include <vector>

namespace kelvaro {

/// A report that did not reach the paper, with a sentence that names the cause.
class ReportPrintError : public RuntimeError {
public:
    using RuntimeError::RuntimeError;
};

/// The typeface of the report: Courier New or the nearest one of a fixed pitch.
QFont ReportFont();

/// The pages of a report that are printed. Without the antras these are its first six at most; an empty page
/// at the end of the report is none. They are views into the report.
std::vector<std::string_view> PagesToPrint(std::string_view report, AntraSection antra);

/// Prints those pages that lie in the page ranges of the device, counted from 1, each on a sheet of its own;
/// all where the device has no ranges. All sheets have letters of one size, the largest with which no line
/// and no page of `pages` leaves the printable area. Raises ReportPrintError when no page lies in the ranges
/// or the device fails.
void PrintPages(const std::vector<std::string_view> &pages, QPagedPaintDevice &device);

/// Prints on a printer or into a PDF file, as the printer was set up in a dialog: its range of pages, and in
/// a file its copies and their order, which a real printer sees to itself. The file is written all or
/// nothing. Raises ReportPrintError, and ReportFileError when the file cannot be written.
void PrintOn(QPrinter &printer, const std::vector<std::string_view> &pages);

} // namespace kelvaro
