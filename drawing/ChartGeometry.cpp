#include "drawing/ChartGeometry.h"

#include <span>

namespace kelvaro {

namespace {

struct GridPoint {
    int x;
    int y;
};

struct GridLine {
    GridPoint from;
    GridPoint to;
};

/// A triangle repeats its last corner.
using GridCell = std::array<GridPoint, 4>;

constexpr int southGrid = 4;
constexpr std::array<GridPoint, 12> southCorners{
    {{1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}, {3, 3}, {2, 3}, {1, 3}, {0, 3}, {0, 2}, {0, 1}, {0, 0}}};
constexpr std::array<GridLine, 8> southLines{{{{1, 0}, {1, 4}},
                                              {{3, 0}, {3, 4}},
                                              {{0, 1}, {4, 1}},
                                              {{0, 3}, {4, 3}},
                                              {{2, 0}, {2, 1}},
                                              {{2, 3}, {2, 4}},
                                              {{0, 2}, {1, 2}},
                                              {{3, 2}, {4, 2}}}};

constexpr int eastGrid = 3;
constexpr std::array<GridCell, 12> eastCells{{{{{1, 0}, {2, 0}, {2, 1}, {1, 1}}},
                                              {{{0, 0}, {1, 0}, {1, 1}, {1, 1}}},
                                              {{{0, 0}, {1, 1}, {0, 1}, {0, 1}}},
                                              {{{0, 1}, {1, 1}, {1, 2}, {0, 2}}},
                                              {{{0, 2}, {1, 2}, {0, 3}, {0, 3}}},
                                              {{{0, 3}, {1, 2}, {1, 3}, {1, 3}}},
                                              {{{1, 2}, {2, 2}, {2, 3}, {1, 3}}},
                                              {{{2, 2}, {3, 3}, {2, 3}, {2, 3}}},
                                              {{{2, 2}, {3, 2}, {3, 3}, {3, 3}}},
                                              {{{2, 1}, {3, 1}, {3, 2}, {2, 2}}},
                                              {{{2, 1}, {3, 0}, {3, 1}, {3, 1}}},
                                              {{{2, 0}, {3, 0}, {2, 1}, {2, 1}}}}};
constexpr std::array<GridLine, 8> eastLines{{{{1, 0}, {1, 3}},
                                             {{2, 0}, {2, 3}},
                                             {{0, 1}, {3, 1}},
                                             {{0, 2}, {3, 2}},
                                             {{0, 0}, {1, 1}},
                                             {{3, 0}, {2, 1}},
                                             {{0, 3}, {1, 2}},
                                             {{3, 3}, {2, 2}}}};

// The first corner of each cell is the one that points to the middle of the drawing.
constexpr int northGrid = 4;
constexpr std::array<GridCell, 12> northCells{{{{{2, 2}, {1, 1}, {2, 0}, {3, 1}}},
                                               {{{1, 1}, {0, 0}, {2, 0}, {2, 0}}},
                                               {{{1, 1}, {0, 2}, {0, 0}, {0, 0}}},
                                               {{{2, 2}, {1, 3}, {0, 2}, {1, 1}}},
                                               {{{1, 3}, {0, 4}, {0, 2}, {0, 2}}},
                                               {{{1, 3}, {2, 4}, {0, 4}, {0, 4}}},
                                               {{{2, 2}, {3, 3}, {2, 4}, {1, 3}}},
                                               {{{3, 3}, {4, 4}, {2, 4}, {2, 4}}},
                                               {{{3, 3}, {4, 2}, {4, 4}, {4, 4}}},
                                               {{{2, 2}, {3, 1}, {4, 2}, {3, 3}}},
                                               {{{3, 1}, {4, 0}, {4, 2}, {4, 2}}},
                                               {{{3, 1}, {2, 0}, {4, 0}, {4, 0}}}}};
constexpr std::array<GridLine, 6> northLines{{{{0, 0}, {4, 4}},
                                              {{4, 0}, {0, 4}},
                                              {{2, 0}, {0, 2}},
                                              {{0, 2}, {2, 4}},
                                              {{2, 4}, {4, 2}},
                                              {{4, 2}, {2, 0}}}};

QPointF OnUnitSquare(GridPoint point, int grid) {
    return {static_cast<double>(point.x) / grid, static_cast<double>(point.y) / grid};
}

QPolygonF OutlineOf(const GridCell &cell, int grid) {
    QPolygonF outline;
    for (const GridPoint &corner : cell) {
        const QPointF point = OnUnitSquare(corner, grid);
        if (outline.isEmpty() || outline.last() != point) {
            outline << point;
        }
    }
    return outline;
}

std::array<QPolygonF, 12> OutlinesOf(const std::array<GridCell, 12> &cells, int grid) {
    std::array<QPolygonF, 12> outlines;
    for (std::size_t index = 0; index < cells.size(); ++index) {
        outlines.at(index) = OutlineOf(cells.at(index), grid);
    }
    return outlines;
}

std::vector<QLineF> LinesOf(std::span<const GridLine> lines, int grid) {
    std::vector<QLineF> result;
    for (const GridLine &line : lines) {
        result.emplace_back(OnUnitSquare(line.from, grid), OnUnitSquare(line.to, grid));
    }
    return result;
}

std::array<QPolygonF, 12> SouthOutlines() {
    std::array<QPolygonF, 12> outlines;
    for (std::size_t index = 0; index < southCorners.size(); ++index) {
        const auto [x, y] = southCorners.at(index);
        outlines.at(index) = OutlineOf({{{x, y}, {x + 1, y}, {x + 1, y + 1}, {x, y + 1}}}, southGrid);
    }
    return outlines;
}

} // namespace

std::array<QPolygonF, 12> CellOutlines(ChartStyle style) {
    switch (style) {
    case ChartStyle::South:
        return SouthOutlines();
    case ChartStyle::East:
        return OutlinesOf(eastCells, eastGrid);
    case ChartStyle::North:
        return OutlinesOf(northCells, northGrid);
    case ChartStyle::Unknown:
        break;
    }
    return {};
}

std::vector<QLineF> InnerLines(ChartStyle style) {
    switch (style) {
    case ChartStyle::South:
        return LinesOf(southLines, southGrid);
    case ChartStyle::East:
        return LinesOf(eastLines, eastGrid);
    case ChartStyle::North:
        return LinesOf(northLines, northGrid);
    case ChartStyle::Unknown:
        break;
    }
    return {};
}

QRectF OpenCentre(ChartStyle style) {
    switch (style) {
    case ChartStyle::South:
        return {0.25, 0.25, 0.5, 0.5};
    case ChartStyle::East:
        return {1.0 / 3, 1.0 / 3, 1.0 / 3, 1.0 / 3};
    case ChartStyle::North:
    case ChartStyle::Unknown:
        break;
    }
    return {};
}

QPointF NumberCorner(std::size_t house) {
    return OnUnitSquare(northCells.at(house).front(), northGrid);
}

} // namespace kelvaro
