#include "shell/widgets/TextGridView.h"

#include "shell/widgets/ChartColours.h"
#include "shell/widgets/TextOf.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include <algorithm>
#include <numeric>

namespace kelvaro {

namespace {

constexpr double closeRow = 1.55; // lines
constexpr double airyRow = 2.5;
constexpr int frame = 2;

/// Keeps texts off the lines of the grid; what is copied stays bare.
class PaddingDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale & /*locale*/) const override {
        return Padded(value.toString());
    }

    static QString Padded(const QString &text) { return blank + text + blank; }

private:
    static constexpr QChar blank = u'\u2004'; // as wide as a third of a letter's height
};

QFont Sized(QFont font, double points, bool isBold) {
    font.setPointSizeF(points);
    font.setBold(isBold);
    return font;
}

int RowHeight(const QFontMetrics &metrics, double lines) {
    return qRound(metrics.height() * lines);
}

} // namespace

void TextGridModel::Show(const TextGrid &grid, std::size_t firstRow, std::size_t rowCount) {
    beginResetModel();
    titles_.clear();
    const QStringList titles = TextOf(grid.header).split(u'|');
    for (const QString &title : titles) {
        titles_ << title.simplified();
    }
    const auto first = grid.rows.begin() + static_cast<std::ptrdiff_t>(firstRow);
    rows_.assign(first, first + static_cast<std::ptrdiff_t>(rowCount));
    boldCells_.clear();
    for (const TextGrid::Cell &cell : grid.boldCells) {
        if (cell.row >= firstRow && cell.row < firstRow + rowCount) {
            boldCells_.push_back({cell.row - firstRow, cell.column});
        }
    }
    markedRow_ = -1;
    endResetModel();
}

void TextGridModel::Mark(int row) {
    markedRow_ = row;
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

int TextGridModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TextGridModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(titles_.size());
}

bool TextGridModel::IsBold(const QModelIndex &index) const {
    return index.row() == markedRow_ || std::ranges::any_of(boldCells_, [&](const TextGrid::Cell &cell) {
               return static_cast<int>(cell.row) == index.row() &&
                      static_cast<int>(cell.column) == index.column();
           });
}

Qt::Alignment TextGridModel::AlignmentOf(int column) const {
    const QChar letter = alignments_.at(std::min<qsizetype>(column, alignments_.size() - 1));
    return Qt::AlignVCenter | (letter == u'r'   ? Qt::AlignRight
                               : letter == u'c' ? Qt::AlignHCenter
                                                : Qt::AlignLeft);
}

QVariant TextGridModel::data(const QModelIndex &index, int role) const {
    switch (role) {
    case Qt::DisplayRole: {
        const auto &row = rows_.at(static_cast<std::size_t>(index.row()));
        const auto column = static_cast<std::size_t>(index.column());
        return column < row.size() ? TextOf(row.at(column)) : QString();
    }
    case Qt::TextAlignmentRole:
        return AlignmentOf(index.column()).toInt();
    case Qt::ForegroundRole:
        return index.row() == markedRow_ ? QVariant(lagnaColour) : QVariant();
    case Qt::FontRole:
        if (IsBold(index)) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

QVariant TextGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return PaddingDelegate::Padded(titles_.at(section));
    }
    return role == Qt::TextAlignmentRole ? QVariant(AlignmentOf(section).toInt()) : QVariant();
}

TextGridView::TextGridView(const QString &name, const QString &alignments, QWidget *parent)
    : QTableView(parent), model_(new TextGridModel(this)) {
    setObjectName(name);
    model_->SetAlignments(alignments);
    setModel(model_);
    setItemDelegate(new PaddingDelegate(this));
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    QPalette colours = ParchmentPalette();
    colours.setColor(QPalette::Highlight, parchmentColour.darker(120));
    colours.setColor(QPalette::HighlightedText, nameColour);
    colours.setColor(QPalette::Button, parchmentColour.darker(106));
    colours.setColor(QPalette::ButtonText, lineColour);
    setPalette(colours);
}

void TextGridView::Show(const TextGrid &grid) {
    Show(grid, 0, grid.rows.size());
}

void TextGridView::Show(const TextGrid &grid, std::size_t firstRow, std::size_t rowCount) {
    model_->Show(grid, firstRow, rowCount);
}

std::vector<int> TextGridView::ColumnWidths(const QFontMetrics &boldMetrics) const {
    // What the style keeps free in a cell, and the line of the grid.
    const int padding = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 1;
    std::vector<int> widths;
    for (int column = 0; column < model_->columnCount(); ++column) {
        int width = boldMetrics.horizontalAdvance(
            model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        for (int row = 0; row < model_->rowCount(); ++row) {
            const QString text = model_->data(model_->index(row, column), Qt::DisplayRole).toString();
            width = std::max(width, boldMetrics.horizontalAdvance(PaddingDelegate::Padded(text)));
        }
        widths.push_back(width + padding);
    }
    return widths;
}

QSize TextGridView::SizeAt(double points) const {
    const QFontMetrics metrics(Sized(font(), points, false));
    const std::vector<int> widths = ColumnWidths(QFontMetrics(Sized(font(), points, true)));
    return {std::accumulate(widths.begin(), widths.end(), frame),
            (model_->rowCount() + 1) * RowHeight(metrics, closeRow) + frame};
}

int TextGridView::RowHeightAt(double points, int rows, int room) const {
    const QFontMetrics metrics(Sized(font(), points, false));
    return std::clamp((room - frame) / std::max(rows, 1), RowHeight(metrics, closeRow),
                      RowHeight(metrics, airyRow));
}

void TextGridView::LayOut(double points, int width, int rowHeight) {
    setFont(Sized(font(), points, false));
    horizontalHeader()->setFont(Sized(font(), points, true));
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(rowHeight);
    horizontalHeader()->setFixedHeight(rowHeight);

    const std::vector<int> widths = ColumnWidths(QFontMetrics(horizontalHeader()->font()));
    const int natural = std::accumulate(widths.begin(), widths.end(), 0);
    const double stretch =
        std::clamp(static_cast<double>(width - frame) / std::max(natural, 1), 1.0, widestStretch);
    int left = width - frame;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        const int stretched = static_cast<int>(widths.at(column) * stretch);
        const bool isLast = column + 1 == widths.size();
        setColumnWidth(static_cast<int>(column), isLast ? std::max(stretched, left) : stretched);
        left -= stretched;
    }
    setFixedSize(width, (model_->rowCount() + 1) * rowHeight + frame);
}

void TextGridView::keyPressEvent(QKeyEvent *event) {
    if (!event->matches(QKeySequence::Copy)) {
        QTableView::keyPressEvent(event);
        return;
    }
    QModelIndexList cells = selectionModel()->selectedIndexes();
    std::ranges::sort(cells, [](const QModelIndex &a, const QModelIndex &b) {
        return a.row() != b.row() ? a.row() < b.row() : a.column() < b.column();
    });
    QString text;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (i > 0) {
            text += cells.at(i).row() == cells.at(i - 1).row() ? u'\t' : u'\n';
        }
        text += cells.at(i).data().toString();
    }
    QApplication::clipboard()->setText(text);
}

} // namespace kelvaro
