#include "shell/widgets/FileChoice.h"

#include "shell/widgets/MessageBoxes.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <QVariant>

#include <algorithm>

namespace kelvaro {

namespace {

constexpr const char *folderProperty = "folderOfFiles";

QString EndingOf(const FileKind &kind) {
    return QString::fromLatin1(kind.ending);
}

/// The file name as given, with the ending of the chosen kind where it has that of none: what follows a dot
/// may be part of a name, as in "Kumar.M" and "14.07.1965".
QString WithEnding(const QString &name, const std::vector<FileKind> &kinds, const FileKind &chosen) {
    const bool hasEnding = std::ranges::any_of(
        kinds, [&name](const FileKind &kind) { return name.endsWith(EndingOf(kind), Qt::CaseInsensitive); });
    return name.isEmpty() || hasEnding ? name : name + EndingOf(chosen);
}

bool MayReplace(QWidget *parent, const QString &title, const QString &name) {
    return IsConfirmed(
        parent, title,
        QObject::tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(name).fileName()));
}

} // namespace

QString AskFile(QWidget *parent, const std::vector<FileKind> &kinds, const QString &suggestedName) {
    QStringList filters;
    for (const FileKind &kind : kinds) {
        filters << QString::fromLatin1(kind.filter);
    }
    QFileDialog CD(parent, QString(), FolderOfFiles(parent));
    CD.setObjectName(QStringLiteral("CD"));
    CD.setAcceptMode(QFileDialog::AcceptSave);
    CD.setNameFilters(filters);
    // The question is not left to the dialog, as not every desktop's own knows of the ending that is added.
    CD.setOption(QFileDialog::DontConfirmOverwrite);
    CD.selectFile(WithEnding(suggestedName, kinds, kinds.front()));
    while (CD.exec() == QDialog::Accepted) {
        const qsizetype chosen = std::max<qsizetype>(filters.indexOf(CD.selectedNameFilter()), 0);
        QString name =
            WithEnding(CD.selectedFiles().value(0), kinds, kinds.at(static_cast<std::size_t>(chosen)));
        if (!QFileInfo::exists(name) || MayReplace(parent, CD.windowTitle(), name)) {
            return name;
        }
    }
    return {};
}

QString FolderOfFiles(const QWidget *widget) {
    QString folder = widget->window()->property(folderProperty).toString();
    if (QFileInfo(folder).isDir()) {
        return folder;
    }
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

void NoteFolderOf(const QString &file, const QWidget *widget) {
    widget->window()->setProperty(folderProperty, QFileInfo(file).path());
}

} // namespace kelvaro
