#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kelvaro {

/// A table of texts: what a grid of a view shows and what the report reads.
struct TextGrid {
    struct Cell {
        std::size_t row, column;
    };
    /// A heading that stands above some rows.
    struct Section {
        std::string title;
        std::size_t firstRow;
    };

    std::string header; ///< column headings, joined by "|", with the blanks that set their widths
    std::vector<std::vector<std::string>> rows;
    std::vector<Cell> boldCells;
    std::vector<Section> sections; ///< empty for most grids
};

} // namespace kelvaro
