#include "drawing/ShownText.h"

#include <QTextBoundaryFinder>
#include <QTextDocument>

#include <algorithm>

namespace kelvaro {

namespace {

constexpr qsizetype mostOfMessage = 1500; // characters
constexpr qsizetype longestWordOfMessage = 60;
constexpr int mostLines = 20;
constexpr QChar ellipsis = u'\u2026';

bool TurnsDirection(QChar character) {
    return (character >= u'\u202a' && character <= u'\u202e') ||
           (character >= u'\u2066' && character <= u'\u2069');
}

/// The beginning of a text, which ends between two characters as a reader counts them.
QString Cut(const QString &text, qsizetype most) {
    if (text.size() <= most) {
        return text;
    }
    // A letter with its marks is kept whole, unless the marks go on for ever.
    constexpr qsizetype longestCharacter = 32;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.left(most));
    finder.setPosition(most - 1);
    const qsizetype last = finder.isAtBoundary() ? most - 1 : finder.toPreviousBoundary();
    return text.left(std::max(last, most - longestCharacter)) + ellipsis;
}

} // namespace

QString Legible(const QString &text) {
    constexpr int mostMarks = 8;
    QString clean;
    int marks = 0;
    for (const QChar each : text) {
        marks = each.category() == QChar::Mark_NonSpacing ? marks + 1 : 0;
        if (marks <= mostMarks && !TurnsDirection(each)) {
            clean += each;
        }
    }
    return clean;
}

QString OneLine(const QString &text, qsizetype most) {
    QString line = Legible(text.left(2 * most));
    std::ranges::replace_if(
        line, [](QChar each) { return each.category() == QChar::Other_Control; }, u' ');
    return Cut(line, most);
}

QString Breakable(const QString &text, qsizetype longestWord) {
    constexpr QChar zeroWidthSpace = u'\u200b';
    QString broken;
    QTextBoundaryFinder character(QTextBoundaryFinder::Grapheme, text);
    qsizetype length = 0;
    qsizetype from = 0;
    for (qsizetype to = character.toNextBoundary(); to > 0; to = character.toNextBoundary()) {
        length = text.at(from).isSpace() ? 0 : length + 1;
        if (length > longestWord) {
            broken += zeroWidthSpace;
            length = 1;
        }
        broken += QStringView(text).sliced(from, to - from);
        from = to;
    }
    return broken;
}

QString MessageText(const QString &text) {
    QString shown = Breakable(Legible(Cut(text, mostOfMessage)), longestWordOfMessage);
    qsizetype end = -1;
    for (int line = 0; line < mostLines; ++line) {
        end = shown.indexOf(u'\n', end + 1);
        if (end < 0) {
            return shown;
        }
    }
    return shown.left(end + 1) + ellipsis;
}

QString ToolTipText(const QString &text) {
    const QString shown = MessageText(text);
    return Qt::mightBeRichText(shown) ? Qt::convertFromPlainText(shown) : shown;
}

} // namespace kelvaro
