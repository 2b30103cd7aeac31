#include "shell/views/GridView.h"

#include "horoscope/Horoscope.h"

#include <QVBoxLayout>

#include <algorithm>

namespace kelvaro {

namespace {

constexpr int margin = 16;
constexpr int distance = 10;
constexpr double largestFont = 2; // times the system's size
constexpr double fontStep = 0.05;
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

} // namespace

GridView::GridView(const GridWindow &window, QWidget *parent)
    : HoroscopeView(parent), window_(window), heading_(new ViewHeading(QString::fromLatin1(window.title))),
      scroll_(new QScrollArea) {
    setAccessibleName(QString::fromLatin1(window.title));
    auto *content = new QWidget;
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins(margin, margin, margin, margin);
    rows->setSpacing(distance);
    rows->addWidget(heading_);
    for (const GridOfWindow &each : window_.grids) {
        if (*each.caption != '\0') {
            rows->addWidget(CaptionLabel(QString::fromLatin1(each.caption)));
        }
        auto *grid = new TextGridView(QString::fromLatin1(each.name), QString::fromLatin1(each.alignments));
        grid->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        rows->addWidget(grid, 0, Qt::AlignHCenter);
        grids_.push_back(grid);
    }
    if (*window_.note != '\0') {
        auto *note = new QLabel(QString::fromLatin1(window_.note));
        note->setWordWrap(true);
        note->setAlignment(Qt::AlignCenter);
        rows->addWidget(note);
    }
    rows->addStretch();
    scroll_->setWidget(content);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll_);
}

void GridView::Refresh(const Horoscope &horoscope) {
    heading_->Show(horoscope.state);
    for (std::size_t i = 0; i < grids_.size(); ++i) {
        grids_.at(i)->Show(window_.grids.at(i).grid(horoscope.forms));
    }
    LayOut();
}

void GridView::resizeEvent(QResizeEvent *event) {
    HoroscopeView::resizeEvent(event);
    LayOut();
}

bool GridView::Fits(double points, const QSize &room) const {
    int height = 0;
    for (const TextGridView *grid : grids_) {
        const QSize size = grid->SizeAt(points);
        height += size.height();
        if (size.width() > room.width()) {
            return false;
        }
    }
    return height <= room.height();
}

QSize GridView::RoomForGrids() const {
    const QLayout *rows = scroll_->widget()->layout();
    QSize room = size() - QSize(2 * margin, 2 * margin);
    int others = 0;
    for (int i = 0; i < rows->count(); ++i) {
        const QWidget *widget = rows->itemAt(i)->widget();
        if (widget != nullptr && qobject_cast<const QTableView *>(widget) == nullptr) {
            others += (widget->hasHeightForWidth() ? widget->heightForWidth(room.width())
                                                   : widget->sizeHint().height());
        }
    }
    room.rheight() -= others + rows->count() * distance;
    return room;
}

void GridView::LayOut() {
    scroll_->widget()->setFont(RoomyFont(linesOfContent, lettersOfContent));
    const QSize room = RoomForGrids();
    const double base = font().pointSizeF();
    double points = base * largestFont;
    while (points > base && !Fits(points, room)) {
        points -= base * fontStep;
    }
    int widest = 0;
    int rows = 0;
    for (const TextGridView *grid : grids_) {
        widest = std::max(widest, grid->SizeAt(points).width());
        rows += grid->model()->rowCount() + 1;
    }
    const int width =
        std::max(widest, std::min(room.width(), static_cast<int>(widest * TextGridView::widestStretch)));
    for (TextGridView *grid : grids_) {
        grid->LayOut(points, width, grid->RowHeightAt(points, rows, room.height()));
    }
}

} // namespace kelvaro
