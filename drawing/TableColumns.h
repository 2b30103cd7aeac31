#pragma once

#include "drawing/TableContent.h"

#include <QFont>

#include <vector>

namespace kelvaro {

/// The fonts of a table whose cells have a size in points; titles are a little smaller.
QFont CellFont(double points, bool isBold);
QFont TitleFont(double points);

/// The texts of a table's columns, measured once for all sizes of the font.
class TableColumns {
public:
    explicit TableColumns(const TableContent &content);

    /// The widths that every text needs for a line of its own.
    std::vector<double> NaturalWidths(double points) const;

    /// The width of a column's widest hanging mark; 0 where its texts have none.
    double MarkWidth(std::size_t column, double points) const;

    /// Whether there is room for the longest word of each column.
    bool HasRoomForWords(double points, double room) const;

    /// Widths that make no more than a room. Where it is narrow, titles first go on in more lines, then the
    /// longest cells, and only in the end are words broken.
    std::vector<double> WidthsIn(double room, double points) const;

private:
    /// In sizes of the font.
    struct Measure {
        double cell = 0; ///< the widest
        double title = 0;
        double wordOfCell = 0; ///< the longest
        double wordOfTitle = 0;
        double mark = 0;
    };

    template <typename Width> std::vector<double> Widths(double points, const Width &width) const;
    std::vector<double> WordWidths(double points) const;

    std::vector<Measure> measures_;
};

/// The sum of some widths.
double SumOf(const std::vector<double> &widths);

} // namespace kelvaro
