#include "shell/print/ReportBox.h"

#include "drawing/ChartColours.h"
#include "drawing/TextOf.h"
#include "report/ReportFile.h"
#include "report/TextLayout.h"
#include "shell/print/ReportPrinter.h"
#include "shell/views/HoroscopeView.h"
#include "shell/widgets/ParchmentPalette.h"

#include <QFontMetricsF>
#include <QScrollBar>
#include <QTextFrame>

namespace kelvaro {

namespace {

constexpr double sheetPadding = 2; // in columns of the report
constexpr int largestLetter = 24;
constexpr int smallestLetter = 9; // in pixels

double ColumnAt(int letter) {
    QFont font = ReportFont();
    font.setPixelSize(letter);
    return QFontMetricsF(font).horizontalAdvance(QString(pageWidth, u'0')) / static_cast<double>(pageWidth);
}

double SheetWidthAt(int letter) {
    return ColumnAt(letter) * (static_cast<double>(pageWidth) + 2 * sheetPadding) + 2;
}

} // namespace

ReportBox::ReportBox(QWidget *parent) : QTextEdit(parent) {
    setObjectName(QStringLiteral("Te"));
    setAccessibleName(tr("Report"));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(QTextEdit::NoWrap);
    setUndoRedoEnabled(false);
    setPlaceholderText(tr("The report is shown here when it is printed."));
    setFont(ReportFont());
    QPalette colours = ParchmentPalette();
    colours.setColor(QPalette::Base, parchmentColour.darker(112));
    setPalette(colours);
    letter_ = smallestLetter;
}

void ReportBox::Show(std::string_view report) {
    clear();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const std::string_view page : PagesOf(report)) {
        cursor.movePosition(QTextCursor::End);
        cursor.insertFrame(SheetFormat());
        cursor.insertText(TextOf(page.substr(0, page.find_last_not_of(lineEnd) + 1)), LetterFormat());
    }
    cursor.endEditBlock();
    moveCursor(QTextCursor::Start);
}

void ReportBox::FitInto(int width) {
    const int letter = LargestFitting(largestLetter, smallestLetter, 1,
                                      [&](int pixels) { return WidthAt(pixels) <= width; });
    if (letter != letter_) {
        letter_ = letter;
        QTextCursor all(document());
        all.select(QTextCursor::Document);
        all.mergeCharFormat(LetterFormat());
        const QList<QTextFrame *> sheets = document()->rootFrame()->childFrames();
        for (QTextFrame *sheet : sheets) {
            sheet->setFrameFormat(SheetFormat());
        }
    }
    setMaximumWidth(WidthAt(letter));
}

/// The least room that shows whole lines in letters of a size in pixels.
int ReportBox::WidthAt(int letter) const {
    return qCeil(SheetWidthAt(letter) + 2 * document()->documentMargin()) + 2 * frameWidth() +
           verticalScrollBar()->sizeHint().width() + 1;
}

QTextFrameFormat ReportBox::SheetFormat() const {
    QTextFrameFormat format;
    format.setBackground(Qt::white);
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(figureColour);
    format.setPadding(ColumnAt(letter_) * sheetPadding);
    format.setWidth(SheetWidthAt(letter_));
    return format;
}

/// The text's own, as that of the box is the theme's to change.
QTextCharFormat ReportBox::LetterFormat() const {
    QFont font = ReportFont();
    font.setPixelSize(letter_);
    QTextCharFormat format;
    format.setFont(font);
    format.setForeground(Qt::black);
    return format;
}

} // namespace kelvaro
