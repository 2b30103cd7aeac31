#include "shell/widgets/TextGridView.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>
#include <QTextTable>

using namespace kelvaro;

namespace {

TextGrid Periods() {
    TextGrid grid;
    grid.header = "Lord   |  From  | Sub  Lord  |Age ";
    grid.rows = {{"Sun", "14/Jul/1965", "Moon", "0 - 2"},
                 {"A lord of a long name", "1", "", "12"},
                 {"Mars", "31/Jul/1977", "Ketu"}};
    grid.boldCells = {{1, 3}, {2, 0}};
    return grid;
}

} // namespace

class TextGridViewTest : public QObject {
    Q_OBJECT

private slots:
    void TextsComeFromTheGrid();
    void SomeRowsOfTheGridKeepTheirBoldCells();
    void NothingIsCut();
    void RowsShareTheRoomWithinBounds();
    void ColumnsHaveRoomForRowsThatAreNotShown();
    void SelectionIsCopiedWithItsHeadings();
    void TheMenuCopiesTheTable();
    void CellsAreReadWithTheirHeadings();

private:
    static QString TextAt(const TextGridView &view, int row, int column) {
        return view.model()->index(row, column).data().toString();
    }

    static bool IsBoldAt(const TextGridView &view, int row, int column) {
        return view.model()->index(row, column).data(Qt::FontRole).value<QFont>().bold();
    }
};

void TextGridViewTest::TextsComeFromTheGrid() {
    TextGridView view(QStringLiteral("grid"), QStringLiteral("lr"));
    view.Show(Periods());
    QStringList titles;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        titles << view.model()->headerData(column, Qt::Horizontal).toString().trimmed();
    }
    QCOMPARE(titles, (QStringList{"Lord", "From", "Sub Lord", "Age"}));
    QCOMPARE(view.model()->rowCount(), 3);
    QCOMPARE(TextAt(view, 0, 1), QStringLiteral("14/Jul/1965"));
    QCOMPARE(TextAt(view, 2, 3), QString()); // a row may be shorter than the header
    const auto alignment = [&](int column) {
        return view.model()->index(0, column).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask;
    };
    QCOMPARE(alignment(0), static_cast<int>(Qt::AlignLeft));
    QCOMPARE(alignment(3), static_cast<int>(Qt::AlignRight)); // as the last letter says
}

void TextGridViewTest::SomeRowsOfTheGridKeepTheirBoldCells() {
    TextGridView view(QStringLiteral("grid"), QStringLiteral("l"));
    view.Show(Periods(), 1, 2);
    QCOMPARE(view.model()->rowCount(), 2);
    QCOMPARE(TextAt(view, 1, 0), QStringLiteral("Mars"));
    QVERIFY(IsBoldAt(view, 0, 3));
    QVERIFY(IsBoldAt(view, 1, 0));
    QVERIFY(!IsBoldAt(view, 0, 0));
    view.Rows().Mark(0);
    QVERIFY(IsBoldAt(view, 0, 0));
    QVERIFY(!IsBoldAt(view, 1, 1));
    view.Show(Periods(), 0, 1);
    QVERIFY(!IsBoldAt(view, 0, 0));
}

void TextGridViewTest::NothingIsCut() {
    TextGridView view(QStringLiteral("grid"), QStringLiteral("lccr"));
    view.Show(Periods());
    for (const auto &[points, extraWidth] : {std::pair{9.0, 0}, {14.0, 40}, {9.0, 2000}}) {
        for (int row = 0; row < 3; ++row) {
            view.Rows().Mark(row); // bold texts are the widest
            const QSize least = view.SizeAt(points);
            view.LayOut(points, least.width() + extraWidth, view.RowHeightAt(points, 4, 0));
            QCOMPARE(view.size(), least + QSize(extraWidth, 0));
            view.show();
            for (int column = 0; column < view.model()->columnCount(); ++column) {
                QVERIFY(view.columnWidth(column) >=
                        view.sizeHintForIndex(view.model()->index(row, column)).width());
            }
            QCOMPARE(view.horizontalScrollBar()->maximum(), 0);
            QCOMPARE(view.verticalScrollBar()->maximum(), 0);
        }
    }
}

void TextGridViewTest::RowsShareTheRoomWithinBounds() {
    TextGridView view(QStringLiteral("grid"), QStringLiteral("l"));
    view.Show(Periods());
    const int close = view.RowHeightAt(9, 4, 0);
    const int airy = view.RowHeightAt(9, 4, 10000);
    QVERIFY(close >= view.fontMetrics().height());
    QVERIFY(airy > close);
    const int between = (close + airy) / 2;
    QCOMPARE(view.RowHeightAt(9, 4, 4 * between + 3), between);
    QCOMPARE(view.RowHeightAt(18, 0, 0), view.RowHeightAt(18, 4, 0));
}

void TextGridViewTest::ColumnsHaveRoomForRowsThatAreNotShown() {
    TextGridView view(QStringLiteral("grid"), QStringLiteral("l"));
    view.Show(Periods());
    const QSize whole = view.SizeAt(9);
    view.MakeRoomFor(Periods());
    view.Show(Periods(), 0, 1);
    QCOMPARE(view.SizeAt(9).width(), whole.width());
}

void TextGridViewTest::SelectionIsCopiedWithItsHeadings() {
    TextGridView view(QStringLiteral("grid"), QStringLiteral("l"));
    view.Show(Periods());
    QApplication::clipboard()->setText(QStringLiteral("kept"));
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("kept")); // nothing was selected
    view.selectAll();
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("Lord\tFrom\tSub Lord\tAge\nSun\t14/Jul/1965\tMoon\t0 - 2\n"
                            "A lord of a long name\t1\t\t12\nMars\t31/Jul/1977\tKetu\t"));
    view.clearSelection();
    for (const auto &[row, column] : {std::pair{2, 1}, {0, 3}}) {
        view.selectionModel()->select(view.model()->index(row, column), QItemSelectionModel::Select);
    }
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("Lord\tFrom\tAge\nSun\t\t0 - 2\nMars\t31/Jul/1977\t"));
}

void TextGridViewTest::TheMenuCopiesTheTable() {
    TextGridView view(QStringLiteral("grid"), QStringLiteral("lr"));
    TextGrid grid = Periods();
    grid.rows[0][2] = "Moon & <Sun>";
    view.Show(grid);
    view.resize(400, 200);
    view.show();
    auto *copy = view.findChild<QAction *>(QStringLiteral("copyTable"));
    const auto copied = [&] {
        copy->trigger();
        return QApplication::clipboard()->text();
    };
    const QString whole = QStringLiteral("Lord\tFrom\tSub Lord\tAge\nSun\t14/Jul/1965\tMoon & <Sun>\t0 - 2\n"
                                         "A lord of a long name\t1\t\t12\nMars\t31/Jul/1977\tKetu\t");
    QCOMPARE(copied(), whole);
    // As a word processor reads it: a table of the same cells.
    QTextDocument document;
    document.setHtml(QApplication::clipboard()->mimeData()->html());
    const auto *table = document.rootFrame()->childFrames().isEmpty()
                            ? nullptr
                            : qobject_cast<QTextTable *>(document.rootFrame()->childFrames().front());
    QVERIFY(table != nullptr);
    QStringList lines;
    for (int row = 0; row < table->rows(); ++row) {
        QStringList texts;
        for (int column = 0; column < table->columns(); ++column) {
            texts << table->cellAt(row, column).firstCursorPosition().block().text();
        }
        lines << texts.join(u'\t');
    }
    QCOMPARE(lines.join(u'\n'), whole);

    const QModelIndex cell = view.model()->index(2, 1);
    view.selectionModel()->select(cell, QItemSelectionModel::Select);
    QTest::mouseClick(view.viewport(), Qt::RightButton, {},
                      view.visualRect(view.model()->index(0, 0)).center());
    QCOMPARE(copied(), QStringLiteral("Lord\tFrom\nMars\t31/Jul/1977"));
    QTest::keyClick(&view, Qt::Key_Escape);
    QCOMPARE(copied(), whole);
    view.setSelectionMode(QAbstractItemView::SingleSelection); // where a row is always selected
    view.selectRow(1);
    QCOMPARE(copied(), whole);
}

void TextGridViewTest::CellsAreReadWithTheirHeadings() {
    TextGridView view(QStringLiteral("grid"), QStringLiteral("l"));
    view.Show(Periods());
    QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(&view)->tableInterface();
    const auto spoken = [&](int row, int column) {
        return table->cellAt(row, column)->text(QAccessible::Name);
    };
    QCOMPARE(spoken(0, 0), QStringLiteral("Lord: Sun"));
    QCOMPARE(spoken(2, 1), QStringLiteral("Mars, From: 31/Jul/1977"));
    QCOMPARE(spoken(2, 3), QStringLiteral("Mars, Age: "));
}

QTEST_MAIN(TextGridViewTest)
#include "TextGridViewTest.moc"
