#pragma once

#include <QString>
#include <QWidget>

#include <vector>

namespace kelvaro {

/// A kind of file that the program writes.
struct FileKind {
    const char *filter; ///< as the dialog lists it
    const char *ending; ///< of all names of the kind
};

/// Asks for the name of a file to be written, which has the ending of one of the kinds; empty when the user
/// gives none. The dialog begins in the folder of `FolderOfFiles`, with the first kind and a name that is
/// suggested, without an ending. An existing file is named only after the user has agreed to replace it.
QString AskFile(QWidget *parent, const std::vector<FileKind> &kinds, const QString &suggestedName);

/// Where the window of a widget has written a file last; at first the folder of the user's documents, where
/// there is one.
QString FolderOfFiles(const QWidget *widget);
void NoteFolderOf(const QString &file, const QWidget *widget);

} // namespace kelvaro
