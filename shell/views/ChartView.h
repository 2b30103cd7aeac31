#pragma once

#include "presentation/ChartStyles.h"
#include "shell/charts/ChartFrame.h"
#include "shell/views/HoroscopeView.h"

#include <array>

namespace kelvaro {

/// A chart window: three drawings of one chart, of which the one in the preferred style is seen.
class ChartView : public HoroscopeView {
public:
    ChartView(const char *title, Chart chart, QWidget *parent = nullptr);

    void Refresh(const Horoscope &horoscope) override;

    ChartFrame &Frame(ChartStyle style) { return *frames_.at(static_cast<std::size_t>(style)); }

private:
    QString title_;
    Chart chart_;
    std::array<ChartFrame *, 3> frames_{}; ///< South, East, North
};

} // namespace kelvaro
