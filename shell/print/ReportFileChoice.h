#pragma once

#include <QWidget>

#include <string>
#include <string_view>

namespace kelvaro {

/// A kind of file that the report can be written to.
struct ReportFileKind {
    const char *filter;
    const char *ending; ///< of all names of the kind
    std::string (*content)(std::string_view report);
};

extern const ReportFileKind textFile;
extern const ReportFileKind htmlFile;

/// Asks for the name of the file to be written, which ends as those of its kind do; empty when the user gives
/// none. The dialog begins with a name that is suggested. An existing file is named only after the user has
/// agreed to replace it.
QString AskReportFile(QWidget *parent, const ReportFileKind &kind, const QString &folder,
                      const QString &suggestedName);

/// The folder to begin with: that of the user's documents, where there is one.
QString FirstReportFolder();

} // namespace kelvaro
