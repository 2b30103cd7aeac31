#include "drawing/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace kelvaro {

namespace {

[[noreturn]] void Refuse(const QString &name, const QString &cause) {
    throw FileError(QStringLiteral("The file %1 cannot be written: %2.")
                        .arg(QDir::toNativeSeparators(name), cause)
                        .toStdString());
}

/// A full disk first takes a part, and only then says why it takes no more.
bool HasTaken(const QByteArray &content, QIODevice &file) {
    qint64 taken = 0;
    while (taken < content.size()) {
        const qint64 more = file.write(content.constData() + taken, content.size() - taken);
        if (more <= 0) {
            return false;
        }
        taken += more;
    }
    return true;
}

} // namespace

void WriteWholeFile(const QString &name, const QByteArray &content) {
    const QFileInfo older(name);
    if (older.isDir()) {
        Refuse(name, QStringLiteral("There is a folder of that name"));
    }
    if (older.exists() && !older.isFile()) {
        Refuse(name, QStringLiteral("The name belongs to something that is not a plain file"));
    }
    // A renaming would pass over its protection.
    QFile inPlace(name);
    if (older.exists() && !inPlace.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        Refuse(name, inPlace.errorString());
    }
    inPlace.close();
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !HasTaken(content, file) ||
        !file.commit()) {
        Refuse(name, file.errorString());
    }
}

} // namespace kelvaro
