#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace kelvaro {

enum class Align { Left, Right };

/// Where the texts of a table's column stand in a line, in characters. Columns of a table do not overlap.
struct TableColumn {
    std::size_t start;
    std::size_t width;
    Align align = Align::Left;
};

/// A line of a table: each text in its column, cut where it is longer. Texts beyond the last column are left
/// out.
std::string TableLine(std::span<const TableColumn> columns, std::span<const std::string> texts);

} // namespace kelvaro
