#include "shell/widgets/TextGridView.h"

#include "drawing/ChartColours.h"
#include "drawing/TablePicture.h"
#include "drawing/TextOf.h"
#include "shell/widgets/CopiedTable.h"
#include "shell/widgets/ParchmentPalette.h"
#include "shell/widgets/PictureMenu.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>
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

int RowHeight(const QFont &font, double lines) {
    return qRound(QFontMetrics(font).height() * lines);
}

/// The room that a text of a cell takes up.
double WidthOf(const QString &text, const QFontMetricsF &metrics) {
    return metrics.horizontalAdvance(PaddingDelegate::Padded(text));
}

/// The headings of the columns of a grid.
QStringList TitlesOf(const TextGrid &grid) {
    QStringList titles = TextOf(grid.header).split(u'|');
    for (QString &title : titles) {
        title = title.simplified();
    }
    return titles;
}

} // namespace

void TextGridModel::Show(const TextGrid &grid, std::size_t firstRow, std::size_t rowCount) {
    beginResetModel();
    titles_ = TitlesOf(grid);
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

TableContent TextGridModel::Content() const {
    TableContent content{titles_, alignments_, {}};
    for (int row = 0; row < rowCount(); ++row) {
        TableRow texts;
        for (int column = 0; column < columnCount(); ++column) {
            const QModelIndex cell = index(row, column);
            texts.cells.push_back({TextAt(cell), IsBold(cell)});
        }
        content.rows.push_back(texts);
    }
    return content;
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

QString TextGridModel::TextAt(const QModelIndex &index) const {
    const auto &row = rows_.at(static_cast<std::size_t>(index.row()));
    const auto column = static_cast<std::size_t>(index.column());
    return column < row.size() ? TextOf(row.at(column)) : QString();
}

/// "Sun, Longitude: 88.19.3". What a reader of screens makes of the headings of a table differs from one to
/// the next.
QString TextGridModel::SpokenText(const QModelIndex &index) const {
    const QString text = QStringLiteral("%1: %2").arg(titles_.at(index.column()), TextAt(index));
    return index.column() > 0 ? QStringLiteral("%1, %2").arg(TextAt(index.siblingAtColumn(0)), text) : text;
}

QVariant TextGridModel::data(const QModelIndex &index, int role) const {
    switch (role) {
    case Qt::DisplayRole:
        return TextAt(index);
    case Qt::AccessibleTextRole:
        return SpokenText(index);
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
    OfferMenu(this);
    AddToMenu(this, "copyTable", tr("Copy as &Table"), [this] { Copy(CellsToCopy()); });
}

void TextGridView::Show(const TextGrid &grid) {
    Show(grid, 0, grid.rows.size());
}

void TextGridView::Show(const TextGrid &grid, std::size_t firstRow, std::size_t rowCount) {
    model_->Show(grid, firstRow, rowCount);
}

void TextGridView::SetHeading(const ChartHeading &heading, const QString &note) {
    if (!heading_) {
        OfferPicture(this, [this] { return PictureOf(model_->Content(), *heading_, note_); });
    }
    heading_ = heading;
    note_ = note;
}

void TextGridView::MakeRoomFor(const TextGrid &grid) {
    const QFontMetricsF metrics(Sized(font(), font().pointSizeF(), true));
    const qsizetype columns = TitlesOf(grid).size();
    std::vector<double> widths(static_cast<std::size_t>(columns));
    widest_ = QStringList(columns);
    for (const std::vector<std::string> &row : grid.rows) {
        for (std::size_t column = 0; column < std::min(row.size(), widths.size()); ++column) {
            const QString text = TextOf(row.at(column));
            const double width = WidthOf(text, metrics);
            if (width > widths.at(column)) {
                widths.at(column) = width;
                widest_[static_cast<qsizetype>(column)] = text;
            }
        }
    }
}

std::vector<int> TextGridView::ColumnWidths(const QFont &boldFont) const {
    const QFontMetricsF metrics(boldFont);
    // What the style keeps free in a cell and in a heading, and the line of the grid.
    const int cellPadding = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 1;
    const int titlePadding = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin) + 1;
    std::vector<int> widths;
    for (int column = 0; column < model_->columnCount(); ++column) {
        const QString title = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        double width = column < widest_.size() ? WidthOf(widest_.at(column), metrics) : 0;
        for (int row = 0; row < model_->rowCount(); ++row) {
            width = std::max(width, WidthOf(model_->index(row, column).data().toString(), metrics));
        }
        // Both are cut to whole pixels where they are drawn.
        widths.push_back(
            static_cast<int>(std::max(std::ceil(width) + cellPadding,
                                      std::ceil(metrics.horizontalAdvance(title)) + titlePadding)) +
            1);
    }
    return widths;
}

QSize TextGridView::SizeAt(double points) const {
    const std::vector<int> widths = ColumnWidths(Sized(font(), points, true));
    return {std::accumulate(widths.begin(), widths.end(), frame),
            (model_->rowCount() + 1) * RowHeight(Sized(font(), points, false), closeRow) + frame};
}

int TextGridView::RowHeightAt(double points, int rows, int room) const {
    const QFont sized = Sized(font(), points, false);
    return std::clamp((room - frame) / std::max(rows, 1), RowHeight(sized, closeRow),
                      RowHeight(sized, airyRow));
}

void TextGridView::LayOut(double points, int width, int rowHeight) {
    setFont(Sized(font(), points, false));
    horizontalHeader()->setFont(Sized(font(), points, true));
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(rowHeight);
    horizontalHeader()->setFixedHeight(rowHeight);

    const std::vector<int> widths = ColumnWidths(horizontalHeader()->font());
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
    if (event->matches(QKeySequence::Copy)) {
        if (selectionModel()->hasSelection()) {
            Copy(selectionModel()->selectedIndexes());
        }
    } else if (event->matches(QKeySequence::Cancel) && HasChosenCells()) {
        clearSelection();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void TextGridView::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::RightButton) {
        QTableView::mousePressEvent(event);
    }
}

/// In a list of single rows one of them is always selected, and nobody has chosen it to be copied.
bool TextGridView::HasChosenCells() const {
    return selectionMode() != SingleSelection && selectionModel()->hasSelection();
}

void TextGridView::Copy(const QModelIndexList &cells) const {
    QApplication::clipboard()->setMimeData(TableOf(*model_, cells, copiedTitle_).release());
}

/// What the table copies: the cells that are selected, or all.
QModelIndexList TextGridView::CellsToCopy() const {
    if (HasChosenCells()) {
        return selectionModel()->selectedIndexes();
    }
    QModelIndexList cells;
    for (int row = 0; row < model_->rowCount(); ++row) {
        for (int column = 0; column < model_->columnCount(); ++column) {
            cells << model_->index(row, column);
        }
    }
    return cells;
}

} // namespace kelvaro
