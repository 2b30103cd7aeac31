#pragma once

#include <QString>

namespace kelvaro {

// Texts that come from outside, as a window can show them at once: Qt sets a text of a million letters, or
// guesses at its markup, for as long as a minute. What they show is legible.

/// The text without characters that turn the direction of what follows, and with no more marks on a letter
/// than scripts set there: the time for them grows with their square.
QString Legible(const QString &text);

/// A text in one line of at most so many characters. An ellipsis stands for what is cut.
QString OneLine(const QString &text, qsizetype most = 255);

/// The text with places to break a line within words that are longer than so many characters.
QString Breakable(const QString &text, qsizetype longestWord = 20);

/// A text of a message: its lines, as many of them and as long as a screen has room for.
QString MessageText(const QString &text);

/// A tool tip that is shown as it stands. Tool tips have no format to choose: what looks like markup is taken
/// for it.
QString ToolTipText(const QString &text);

} // namespace kelvaro
