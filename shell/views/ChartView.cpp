#include "shell/views/ChartView.h"

#include "horoscope/Horoscope.h"
#include "horoscope/record/Bodies.h"
#include "shell/views/ViewHeading.h"

#include <QVBoxLayout>

namespace kelvaro {

namespace {

struct FrameOfStyle {
    ChartStyle style;
    const char *objectName;
    const char *ChartWindow::*labels;
    int firstIndex;
    std::array<std::string, 12> ChartForm::*cells;
};

constexpr std::array<FrameOfStyle, 3> framesOfStyles{{
    {ChartStyle::South, "Frame_SouthBride", &ChartWindow::southLabels, 0, &ChartForm::South},
    {ChartStyle::East, "Frame_EastBride", &ChartWindow::eastLabels, 1, &ChartForm::East},
    {ChartStyle::North, "Frame_NorthBride", &ChartWindow::northLabels, 1, &ChartForm::North},
}};

ChartNames NamesOf(const HoroscopeState &state) {
    ChartNames names;
    names.lagna << QString::fromStdString(ShortNameOf(state, Body::Lagna))
                << QString::fromStdString(LongNameOf(state, Body::Lagna));
    for (const std::string &sign : state.names.RasiNames) {
        names.signs << QString::fromStdString(sign);
    }
    return names;
}

} // namespace

ChartView::ChartView(const ChartWindow &window, QWidget *parent) : HoroscopeView(parent), window_(window) {
    setAccessibleName(QString::fromLatin1(window.title));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const FrameOfStyle &each : framesOfStyles) {
        auto *frame =
            new ChartFrame(each.style, QString::fromLatin1(window.*each.labels), each.firstIndex, this);
        frame->setObjectName(QString::fromLatin1(each.objectName));
        if (each.style == ChartStyle::South) {
            frame->SetCellFlow(window.southFlow);
        }
        frame->hide();
        layout->addWidget(frame);
        frames_.at(static_cast<std::size_t>(each.style)) = frame;
    }
}

void ChartView::Refresh(const Horoscope &horoscope) {
    const ChartForm &form = horoscope.forms.*window_.form;
    const ChartHeading heading = HeadingOf(horoscope.state, QString::fromLatin1(window_.title));
    const ChartNames names = NamesOf(horoscope.state);
    for (const FrameOfStyle &each : framesOfStyles) {
        ChartFrame &frame = Frame(each.style);
        frame.SetHeading(heading);
        frame.SetNames(names);
        frame.SetCells(form.*each.cells, form.Lab_NHouseNo);
        frame.setVisible(form.VisibleFrame == each.style);
    }
}

} // namespace kelvaro
