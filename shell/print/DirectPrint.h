#pragma once

#include "shell/print/PrintJob.h"

#include <QPageSize>
#include <QWidget>

#include <optional>

namespace kelvaro {

/// Where pages went from the print dialog.
struct PrintOutcome {
    QString file;    ///< empty where they went to a printer
    QString printer; ///< name of the printer
};

/// What the sheets of a job leave free of the paper.
enum class PaperUse {
    InsideMargins, ///< a margin of 15 mm
    WholePaper,    ///< nothing: the pages have margins of their own
};

/// Asks for printer, pages and copies in the system's dialog and prints. Gives nothing when the user cancels.
/// The name of the job is that of the chart. The dialog begins with a size of paper where one is given, and
/// else with the printer's. Raises as `PrintOn`.
std::optional<PrintOutcome> PrintThroughDialog(QWidget *parent, const PrintJob &job, const QString &chartName,
                                               PaperUse use, std::optional<QPageSize> paper = {});

} // namespace kelvaro
