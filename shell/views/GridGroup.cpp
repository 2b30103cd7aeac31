#include "shell/views/GridGroup.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kelvaro {

namespace {

constexpr double fontStep = 0.05; // times the window's size

} // namespace

GridGroup::GridGroup(std::vector<TextGridView *> grids, Order order, FontSizes sizes, int rowsBeside)
    : grids_(std::move(grids)), isBeside_(order == Order::Beside), sizes_(sizes), rowsBeside_(rowsBeside),
      perLine_(isBeside_ ? grids_.size() : 1) {}

int GridGroup::RowCount() const {
    if (isBeside_) {
        return rowsBeside_ * static_cast<int>(LineCount());
    }
    return std::accumulate(grids_.begin(), grids_.end(), 0, [](int sum, const TextGridView *grid) {
        return sum + grid->model()->rowCount() + 1;
    });
}

/// The least size at which every cell is seen.
QSize GridGroup::SizeAt(double points) const {
    if (isBeside_) {
        return SizeBesideAt(points);
    }
    QSize whole(0, 0);
    for (const TextGridView *grid : grids_) {
        const QSize size = grid->SizeAt(points);
        whole = QSize(std::max(whole.width(), size.width()), whole.height() + size.height());
    }
    return whole;
}

QSize GridGroup::SizeBesideAt(double points) const {
    std::vector<int> widths(LineCount());
    for (std::size_t i = 0; i < grids_.size(); ++i) {
        widths.at(i / perLine_) += grids_[i]->SizeAt(points).width();
    }
    return {*std::ranges::max_element(widths), RowCount() * grids_.front()->RowHeightAt(points, 1, 0)};
}

void GridGroup::LayOut(double windowPoints, const QSize &room) {
    const auto fits = [&](double points) {
        const QSize size = SizeAt(points);
        return size.width() <= room.width() && size.height() <= room.height();
    };
    const double points = LargestFitting(windowPoints * sizes_.largest, windowPoints * sizes_.smallest,
                                         windowPoints * fontStep, fits);
    const int natural = SizeAt(points).width();
    const double share = std::max(1.0, static_cast<double>(room.width()) / natural);
    const int widest =
        std::max(natural, std::min(room.width(), static_cast<int>(natural * TextGridView::widestStretch)));
    const int rows = RowCount();
    for (TextGridView *grid : grids_) {
        const int width = isBeside_ ? static_cast<int>(grid->SizeAt(points).width() * share) : widest;
        grid->LayOut(points, width, grid->RowHeightAt(points, rows, room.height()));
    }
}

} // namespace kelvaro
