#pragma once

#include <QAbstractItemModel>
#include <QMimeData>

#include <memory>

namespace kelvaro {

/// Some cells of a table as the clipboard takes them: lines with tabs between the texts, for spreadsheets,
/// and a table of HTML, for word processors. The headings of their columns stand above them, and each line
/// begins with the first column, which names the rows. What is not among the cells is empty.
std::unique_ptr<QMimeData> TableOf(const QAbstractItemModel &table, const QModelIndexList &cells);

} // namespace kelvaro
