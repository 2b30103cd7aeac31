#include "shell/print/ReportFileChoice.h"

#include "report/ReportFile.h"
#include "shell/widgets/MessageBoxes.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace kelvaro {

namespace {

/// The file name as given, with the ending of its kind where it has another one or none: what follows a dot
/// may be part of a name, as in "Kumar.M" and "14.07.1965".
QString WithEnding(const QString &name, const ReportFileKind &kind) {
    const QString ending = QString::fromLatin1(kind.ending);
    return name.isEmpty() || name.endsWith(ending, Qt::CaseInsensitive) ? name : name + ending;
}

bool MayReplace(QWidget *parent, const QString &title, const QString &name) {
    return IsConfirmed(
        parent, title,
        QObject::tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(name).fileName()));
}

} // namespace

const ReportFileKind textFile{"Text Files (*.Txt)", ".Txt", TextFileContent};
const ReportFileKind htmlFile{"HTML Files (*.HTML)", ".HTML", HtmlFileContent};

QString AskReportFile(QWidget *parent, const ReportFileKind &kind, const QString &folder,
                      const QString &suggestedName) {
    QFileDialog CD(parent, QString(), folder, QString::fromLatin1(kind.filter));
    CD.setObjectName(QStringLiteral("CD"));
    CD.setAcceptMode(QFileDialog::AcceptSave);
    // The question is not left to the dialog, as not every desktop's own knows of the ending that is added.
    CD.setOption(QFileDialog::DontConfirmOverwrite);
    CD.selectFile(WithEnding(suggestedName, kind));
    while (CD.exec() == QDialog::Accepted) {
        QString name = WithEnding(CD.selectedFiles().value(0), kind);
        if (!QFileInfo::exists(name) || MayReplace(parent, CD.windowTitle(), name)) {
            return name;
        }
    }
    return {};
}

QString FirstReportFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

} // namespace kelvaro
