#pragma once

#include <QByteArray>
#include <QString>

namespace kelvaro {

/// A PDF document with an author among its properties, which QPdfWriter knows no way to set. The document
/// grows by a later version of its properties. One that does not end as QPdfWriter's documents do is returned
/// as it is.
QByteArray WithAuthor(const QByteArray &document, const QString &author);

} // namespace kelvaro
