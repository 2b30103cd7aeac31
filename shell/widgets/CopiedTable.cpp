#include "shell/widgets/CopiedTable.h"

#include <QStringList>

#include <set>

namespace kelvaro {

namespace {

struct Line {
    QStringList texts;
    const char *element; ///< of its cells in HTML
};

QString AlignmentIn(const QAbstractItemModel &table, int column) {
    const int alignment = table.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    return (alignment & Qt::AlignRight) != 0     ? QStringLiteral("right")
           : (alignment & Qt::AlignHCenter) != 0 ? QStringLiteral("center")
                                                 : QStringLiteral("left");
}

QString HtmlOf(const QString &title, const QList<Line> &lines, const QStringList &alignments) {
    QString html = QStringLiteral("<meta charset=\"utf-8\">");
    if (!title.isEmpty()) {
        html += QStringLiteral("<p>%1</p>\n").arg(title.toHtmlEscaped());
    }
    html += QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">\n");
    for (const Line &line : lines) {
        html += QStringLiteral("<tr>");
        for (qsizetype column = 0; column < line.texts.size(); ++column) {
            html += QStringLiteral("<%1 align=\"%2\">%3</%1>")
                        .arg(QLatin1String(line.element), alignments.at(column),
                             line.texts.at(column).toHtmlEscaped());
        }
        html += QStringLiteral("</tr>\n");
    }
    return html + QStringLiteral("</table>\n");
}

} // namespace

std::unique_ptr<QMimeData> TableOf(const QAbstractItemModel &table, const QModelIndexList &cells,
                                   const QString &title) {
    const std::set<QModelIndex> wanted(cells.begin(), cells.end());
    std::set<int> rows;
    std::set<int> columns{0};
    for (const QModelIndex &cell : cells) {
        rows.insert(cell.row());
        columns.insert(cell.column());
    }
    QStringList alignments;
    Line headings{{}, "th"};
    for (const int column : columns) {
        headings.texts << table.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().trimmed();
        alignments << AlignmentIn(table, column);
    }
    QList<Line> lines{headings};
    for (const int row : rows) {
        Line line{{}, "td"};
        for (const int column : columns) {
            const QModelIndex cell = table.index(row, column);
            line.texts << (column == 0 || wanted.contains(cell) ? cell.data().toString() : QString());
        }
        lines << line;
    }
    QStringList texts;
    if (!title.isEmpty()) {
        texts << title;
    }
    for (const Line &line : lines) {
        texts << line.texts.join(u'\t');
    }
    auto mime = std::make_unique<QMimeData>();
    mime->setText(texts.join(u'\n'));
    mime->setHtml(HtmlOf(title, lines, alignments));
    return mime;
}

} // namespace kelvaro
