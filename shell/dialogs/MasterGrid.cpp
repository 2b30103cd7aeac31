#include "shell/dialogs/MasterGrid.h"

#include <QHeaderView>

namespace kelvaro {

MasterGrid::MasterGrid(QWidget *parent) : TextGridView(QString(), QString(), parent) {
    // Parchment is for horoscopes: what stands in a dialog has the colours of the theme.
    setPalette({});
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    // Thousands of rows are not measured one by one: they have one height, and those seen set the widths.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    horizontalHeader()->setResizeContentsPrecision(0);
}

void MasterGrid::Show(std::string_view heading, const QString &alignments, const store::GridRows &rows) {
    Rows().SetAlignments(alignments);
    TextGridView::Show({std::string(heading), rows, {}, {}});
    // Names take what the short columns leave.
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
}

void MasterGrid::SelectRow(std::size_t row) {
    const QModelIndex index = Rows().index(static_cast<int>(row), 0);
    selectRow(index.row());
    scrollTo(index, PositionAtCenter);
}

} // namespace kelvaro
