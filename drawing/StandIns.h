#pragma once

#include <QFont>
#include <QString>

namespace kelvaro {

/// The text with a white square in place of each letter that neither the font nor any other of the machine
/// has. Qt draws such letters as bars that cover their neighbours, in a document even as black ones. Coloured
/// pictures, which some fonts have for letters, count as missing: in a document nothing would stand for them.
QString WithStandIns(const QString &text, const QFont &font);

} // namespace kelvaro
