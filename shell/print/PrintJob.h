#pragma once

#include "runtime/RuntimeError.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinter>

#include <cstddef>
#include <functional>

namespace kelvaro {

/// Pages that did not reach the paper, with a sentence that names the cause.
class ReportPrintError : public RuntimeError {
public:
    using RuntimeError::RuntimeError;
};

/// What is to be printed, sheet by sheet.
struct PrintJob {
    std::size_t sheetCount = 0;
    std::function<void(QPainter &painter, const QPagedPaintDevice &device, std::size_t sheet)> paint;
};

/// Prints those sheets that lie in the page ranges of the device, counted from 1, in their order; all where
/// the device has no ranges. Raises ReportPrintError when no sheet lies in the ranges or the device fails.
void PrintSheets(const PrintJob &job, QPagedPaintDevice &device);

/// Prints on a printer or into a PDF file, as the printer was set up in a dialog: its range of pages, and in
/// a file its copies and their order, which a real printer sees to itself. The file is written all or
/// nothing. Raises ReportPrintError, and FileError when the file cannot be written.
void PrintOn(QPrinter &printer, const PrintJob &job);

} // namespace kelvaro
