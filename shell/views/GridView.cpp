#include "shell/views/GridView.h"

#include "horoscope/Horoscope.h"

#include <QStyle>
#include <QVBoxLayout>

namespace kelvaro {

namespace {

constexpr int margin = 16;
constexpr int distance = 10;
constexpr GridGroup::FontSizes fontSizes{2, 0.85};
constexpr double linesOfContent = 45; // of the window that leave the heading and the notes as they are
constexpr double lettersOfContent = 140;

QLabel *CaptionLabel(const QString &text) {
    auto *label = new QLabel(text);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

int HeightOf(const QLabel &line, int width) {
    return line.hasHeightForWidth() ? line.heightForWidth(width) : line.sizeHint().height();
}

std::vector<TextGridView *> NewGrids(const std::vector<GridOfWindow> &described, const char *title) {
    std::vector<TextGridView *> grids;
    for (const GridOfWindow &each : described) {
        grids.push_back(
            new TextGridView(QString::fromLatin1(each.name), QString::fromLatin1(each.alignments)));
        grids.back()->setAccessibleName(QString::fromLatin1(*each.caption != '\0' ? each.caption : title));
        grids.back()->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    return grids;
}

} // namespace

GridView::GridView(const GridWindow &window, QWidget *parent)
    : HoroscopeView(parent), window_(window), heading_(new ViewHeading(QString::fromLatin1(window.title))),
      scroll_(new QScrollArea),
      grids_(NewGrids(window.grids, window.title), GridGroup::Order::Below, fontSizes) {
    setAccessibleName(QString::fromLatin1(window.title));
    auto *rows = new QVBoxLayout(new QWidget);
    scroll_->setWidget(rows->parentWidget());
    rows->setContentsMargins(margin, margin, margin, margin);
    rows->setSpacing(distance);
    AddLine(heading_);
    for (std::size_t i = 0; i < window_.grids.size(); ++i) {
        if (*window_.grids.at(i).caption != '\0') {
            AddLine(CaptionLabel(QString::fromLatin1(window_.grids.at(i).caption)));
        }
        rows->addWidget(grids_.Grids().at(i), 0, Qt::AlignHCenter);
    }
    if (*window_.note != '\0') {
        auto *note = new QLabel(QString::fromLatin1(window_.note));
        note->setWordWrap(true);
        note->setAlignment(Qt::AlignCenter);
        AddLine(note);
    }
    rows->addStretch();
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll_);
}

/// Adds a line of text. It stays within the window where the grids are wider.
void GridView::AddLine(QLabel *line) {
    scroll_->widget()->layout()->addWidget(line);
    scroll_->widget()->layout()->setAlignment(line, Qt::AlignLeft);
    lines_.push_back(line);
}

void GridView::Refresh(const Horoscope &horoscope) {
    heading_->Show(horoscope.state);
    for (std::size_t i = 0; i < window_.grids.size(); ++i) {
        TextGridView &grid = *grids_.Grids().at(i);
        grid.Show(window_.grids.at(i).grid(horoscope.forms));
        grid.SetHeading(HeadingOf(horoscope.state, grid.accessibleName()), QString::fromLatin1(window_.note));
    }
    LayOut();
}

void GridView::resizeEvent(QResizeEvent *event) {
    HoroscopeView::resizeEvent(event);
    LayOut();
}

QSize GridView::RoomForGrids() const {
    QSize room = scroll_->maximumViewportSize() - QSize(2 * margin, 2 * margin);
    for (const QLabel *line : lines_) {
        room.rheight() -= HeightOf(*line, room.width());
    }
    room.rheight() -= scroll_->widget()->layout()->count() * distance;
    if (grids_.LeastSize(font().pointSizeF()).height() > room.height()) {
        room.rwidth() -= style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    }
    return room;
}

void GridView::LayOut() {
    scroll_->widget()->setFont(RoomyFont(linesOfContent, lettersOfContent));
    for (QLabel *line : lines_) {
        line->setMinimumWidth(0); // a label measures itself no narrower than this
    }
    const QSize room = RoomForGrids();
    for (QLabel *line : lines_) {
        // The layout would measure it as wide as the grids, which may be wider than the window.
        line->setFixedSize(room.width(), HeightOf(*line, room.width()));
    }
    grids_.LayOut(font().pointSizeF(), room);
}

} // namespace kelvaro
