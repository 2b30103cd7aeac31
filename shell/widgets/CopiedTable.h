#pragma once

#include <QAbstractItemModel>
#include <QMimeData>
#include <QString>

#include <memory>

namespace kelvaro {

/// Some cells of a table as the clipboard takes them: lines with tabs between the texts, for spreadsheets,
/// and a table of HTML, for word processors. The headings of their columns stand above them, and each line
/// begins with the first column, which names the rows. What is not among the cells is empty. A title, if
/// there is one, is a line above all.
std::unique_ptr<QMimeData> TableOf(const QAbstractItemModel &table, const QModelIndexList &cells,
                                   const QString &title = {});

} // namespace kelvaro
