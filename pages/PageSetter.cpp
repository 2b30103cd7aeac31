#include "pages/PageSetter.h"

#include "drawing/PointRuler.h"
#include "drawing/ShownText.h"
#include "drawing/StandIns.h"
#include "pages/PageType.h"

#include <algorithm>

namespace kelvaro {

namespace {

constexpr double belowHeading = 6;
constexpr double aboveNote = 4;
constexpr std::size_t leastRows = 3; // of a table at the foot of a page

/// The text of a footer with as many letters of the name as fit into a line.
QString FooterText(const QString &name, const QString &page, double width) {
    if (name.trimmed().isEmpty()) {
        return page;
    }
    const QString rest = QStringLiteral(" \u00b7 ") + page;
    constexpr qsizetype longest = 60;
    constexpr double step = 0.9;
    const QFont font = FooterStyle().font;
    qsizetype most = longest;
    QString text = OneLine(name, most).trimmed() + rest;
    while (most > 1 && WidthOf(text, font) > width) {
        most = static_cast<qsizetype>(static_cast<double>(most) * step);
        text = OneLine(name, most).trimmed() + rest;
    }
    return text;
}

} // namespace

PageSetter::PageSetter(QSizeF paper)
    : paper_(paper), area_(sideMargin, topMargin, paper.width() - 2 * sideMargin,
                           paper.height() - topMargin - bottomMargin) {
    OpenPage();
}

void PageSetter::OpenPage() {
    pages_.emplace_back();
    top_ = area_.top();
}

void PageSetter::AddBlock(const PageBlock &block, double indent) {
    for (PageItem &item : block.ItemsAt({area_.left() + indent, top_})) {
        Add(std::move(item));
    }
    top_ += block.Height();
}

void PageSetter::AddHeading(const QString &text) {
    PageBlock heading;
    heading.AddLines(text, HeadingStyle(), 0, area_.width());
    AddBlock(heading);
    Skip(belowHeading);
}

void PageSetter::AddNote(const QString &text) {
    PageBlock note;
    note.AddLines(text, NoteStyle(), 0, area_.width());
    Skip(aboveNote);
    AddBlock(note);
}

void PageSetter::AddTable(const QString &heading, const QString &line, TableContent content,
                          const TableSetting &setting) {
    TableDrawing table(std::move(content), setting);
    table.FitTo(area_.width());
    PageBlock head;
    head.AddLines(heading, HeadingStyle(), 0, area_.width());
    head.AddLines(line, FieldStyle(), 0, area_.width());
    const double start = table.HeightOf(0, std::min(leastRows, table.RowCount()));
    if (head.Height() + belowHeading + start > RoomLeft()) {
        OpenPage();
    }
    AddBlock(head);
    Skip(belowHeading);
    AddRows(std::make_shared<const TableDrawing>(std::move(table)));
}

void PageSetter::AddRows(const std::shared_ptr<const TableDrawing> &table) {
    std::size_t first = 0;
    do {
        if (first > 0) {
            OpenPage();
        }
        std::size_t last = std::min(first + 1, table->RowCount());
        while (last < table->RowCount() && table->HeightOf(first, last + 1) <= RoomLeft()) {
            ++last;
        }
        Add(TableItem{table, {area_.left(), top_}, first, last});
        Skip(table->HeightOf(first, last));
        first = last;
    } while (first < table->RowCount());
}

std::vector<Page> PageSetter::Finish(const QString &name) && {
    const TextStyle style = FooterStyle();
    const QString drawable = WithStandIns(OneLine(name), style.font);
    for (std::size_t page = 0; page < pages_.size(); ++page) {
        const QString text = FooterText(
            drawable, QStringLiteral("page %1 of %2").arg(page + 1).arg(pages_.size()), area_.width());
        const double left = area_.center().x() - WidthOf(text, style.font) / 2;
        pages_[page].emplace_back(
            TextItem{text, style.font, style.colour, {left, paper_.height() - footerBaseline}});
    }
    return std::move(pages_);
}

} // namespace kelvaro
