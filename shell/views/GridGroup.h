#pragma once

#include "shell/views/HoroscopeView.h"
#include "shell/widgets/TextGridView.h"

#include <vector>

namespace kelvaro {

/// Grids that share the room of a window, in the largest font in which they show all their cells.
class GridGroup {
public:
    enum class Order { Below, Beside };

    /// Sizes of the font, as times that of the window.
    struct FontSizes {
        double largest;
        double smallest;
    };

    /// Grids beside one another have rows of one height, of which so many share the room; those of grids
    /// below one another share it all together.
    GridGroup(std::vector<TextGridView *> grids, Order order, FontSizes sizes, int rowsBeside = 0);

    const std::vector<TextGridView *> &Grids() const { return grids_; }

    /// Sets how many of the grids stand beside one another, in lines below one another; all at first.
    void SetGridsPerLine(std::size_t count) { perLine_ = count; }

    /// What the group needs in the smallest font.
    QSize LeastSize(double windowPoints) const { return SizeAt(windowPoints * sizes_.smallest); }

    /// Lays the grids out. What does not fit in the smallest font is as large as it needs to be. Width that
    /// is left over is shared: among grids beside one another all of it, otherwise up to
    /// `TextGridView::widestStretch`.
    void LayOut(double windowPoints, const QSize &room);

private:
    std::size_t LineCount() const { return (grids_.size() + perLine_ - 1) / perLine_; }
    QSize SizeAt(double points) const;
    QSize SizeBesideAt(double points) const;
    int RowCount() const;

    std::vector<TextGridView *> grids_;
    bool isBeside_;
    FontSizes sizes_;
    int rowsBeside_;
    std::size_t perLine_;
};

} // namespace kelvaro
