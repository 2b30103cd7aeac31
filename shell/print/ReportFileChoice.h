#pragma once

#include <QWidget>

#include <string>
#include <string_view>

namespace kelvaro {

/// A kind of file that the report can be written to.
struct ReportFileKind {
    const char *filter;
    const char *ending; ///< of a name that was given without one
    std::string (*content)(std::string_view report);
};

extern const ReportFileKind textFile;
extern const ReportFileKind htmlFile;

/// Asks for the name of the file to be written, with the ending of its kind where it was given none; empty
/// when the user gives none. An existing file is named only after the user has agreed to replace it.
QString AskReportFile(QWidget *parent, const ReportFileKind &kind, const QString &folder);

/// The folder to begin with: that of the user's documents, where there is one.
QString FirstReportFolder();

} // namespace kelvaro
