#pragma once

#include "report/HoroscopeReport.h"

#include <QWidget>

#include <optional>
#include <string_view>

namespace kelvaro {

/// Where a report went from the print dialog.
struct PrintOutcome {
    QString file;    ///< empty where it went to a printer
    QString printer; ///< name of the printer
};

/// Asks for printer, pages and copies in the system's dialog and prints the pages of a report. Gives nothing
/// when the user cancels. The name of the job is that of the chart. Raises as `PrintOn`.
std::optional<PrintOutcome> PrintDirectly(QWidget *parent, std::string_view report, AntraSection antra,
                                          const QString &chartName);

} // namespace kelvaro
