#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "shell/charts/ChartFrame.h"
#include "shell/views/HoroscopeView.h"

#include <array>

namespace kelvaro {

/// What tells one chart window from another.
struct ChartWindow {
    const char *title;
    ChartForm HoroscopeForms::*form;
    const char *southLabels; ///< label arrays; those of the South count from 0, the others from 1
    const char *eastLabels;
    const char *northLabels;
    CellFlow southFlow = CellFlow::Lines;
};

/// A chart window: three drawings of one chart, of which the one in the preferred style is seen.
class ChartView : public HoroscopeView {
public:
    explicit ChartView(const ChartWindow &window, QWidget *parent = nullptr);

    void Refresh(const Horoscope &horoscope) override;

    ChartFrame &Frame(ChartStyle style) { return *frames_.at(static_cast<std::size_t>(style)); }

private:
    ChartWindow window_;
    std::array<ChartFrame *, 3> frames_{}; ///< South, East, North
};

} // namespace kelvaro
