#pragma once

#include "shell/widgets/TextGridView.h"
#include "store/masters/Masters.h"

#include <string_view>

namespace kelvaro {

/// A grid of a master: rows to scroll through and to be found in, one of them selected.
class MasterGrid : public TextGridView {
public:
    explicit MasterGrid(QWidget *parent = nullptr);

    /// Shows rows under a heading that gives the titles of the columns, joined by "|". Columns are aligned by
    /// the letters "l", "c" and "r".
    void Show(std::string_view heading, const QString &alignments, const store::GridRows &rows);

    /// Selects a row and scrolls to it.
    void SelectRow(std::size_t row);
};

} // namespace kelvaro
