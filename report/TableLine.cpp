#include "report/TableLine.h"

#include "report/TextLayout.h"

#include <algorithm>

namespace kelvaro {

std::string TableLine(std::span<const TableColumn> columns, std::span<const std::string> texts) {
    std::string line;
    std::size_t end = 0; // in characters; a text may have more bytes
    for (std::size_t i = 0; i < std::min(columns.size(), texts.size()); ++i) {
        const TableColumn &column = columns[i];
        line.append(column.start - end, ' ');
        line +=
            column.align == Align::Left ? Field(texts[i], column.width) : RightField(texts[i], column.width);
        end = column.start + column.width;
    }
    return line;
}

} // namespace kelvaro
