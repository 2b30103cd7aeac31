#pragma once

#include <QByteArray>
#include <QString>

namespace kelvaro {

/// Whether a page of that content type, as its server names it, is text. A page without a type counts as
/// plain text.
bool IsTextPage(const QString &contentType);

/// What a page says, as plain text. Of HTML only the breaks of lines and paragraphs stay; the time is in
/// proportion to the length, whatever is nested in it. Characters that no reader sees are left out. A page
/// of more lines than a window can lay out at once ends early and says so.
QString TextOfPage(const QByteArray &page, const QString &contentType);

} // namespace kelvaro
