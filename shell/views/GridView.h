#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "shell/views/GridGroup.h"
#include "shell/views/ViewHeading.h"

#include <QScrollArea>

#include <vector>

namespace kelvaro {

/// A grid of a window.
struct GridOfWindow {
    const char *name;       ///< of the grid
    const char *caption;    ///< above it; empty for none
    const char *alignments; ///< letters "l", "c", "r" of the columns
    const TextGrid &(*grid)(const HoroscopeForms &);
};

/// What tells one window of grids from another.
struct GridWindow {
    const char *title;
    std::vector<GridOfWindow> grids;
    const char *note; ///< below the grids; empty for none
};

/// A window of one or more grids, one above the other, in a font that fills the window where it can.
class GridView : public HoroscopeView {
public:
    explicit GridView(const GridWindow &window, QWidget *parent = nullptr);

    void Refresh(const Horoscope &horoscope) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void AddLine(QLabel *line);
    void LayOut();
    /// Too low a window is scrolled, and the scroll bar takes some of the width.
    QSize RoomForGrids() const;

    GridWindow window_;
    ViewHeading *heading_;
    std::vector<QLabel *> lines_; ///< all texts but the grids
    QScrollArea *scroll_;
    GridGroup grids_;
};

} // namespace kelvaro
