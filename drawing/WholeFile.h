#pragma once

#include "runtime/RuntimeError.h"

#include <QByteArray>
#include <QString>

namespace kelvaro {

/// A file that could not be written, with a sentence that names the file and the cause.
class FileError : public RuntimeError {
public:
    using RuntimeError::RuntimeError;
};

/// Writes a file of these bytes, all or nothing: it takes the place of an older file, and keeps its
/// permissions, only when it lies on the disk completely. Raises FileError, with the older file as it was and
/// nothing left beside it, when the disk is full, the folder or the older file may not be written or the name
/// belongs to something that is not a plain file.
void WriteWholeFile(const QString &name, const QByteArray &content);

} // namespace kelvaro
