#include "shell/views/ChartView.h"

#include "drawing/ChartHeading.h"
#include "horoscope/Horoscope.h"

#include <QVBoxLayout>

namespace kelvaro {

ChartView::ChartView(const char *title, Chart chart, QWidget *parent)
    : HoroscopeView(parent), title_(QString::fromLatin1(title)), chart_(chart) {
    setAccessibleName(title_);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const StyleOfChart &style : chartStyles) {
        auto *frame = new ChartFrame(style, QString::fromLatin1(style.Of(chart).labels), this);
        frame->setObjectName(QString::fromLatin1(style.frame));
        frame->hide();
        layout->addWidget(frame);
        frames_.at(static_cast<std::size_t>(style.style)) = frame;
    }
}

void ChartView::Refresh(const Horoscope &horoscope) {
    const ChartForm &form = horoscope.forms.*chartWindows.at(static_cast<std::size_t>(chart_));
    const ChartHeading heading = HeadingOf(horoscope.state, title_);
    for (const StyleOfChart &style : chartStyles) {
        ChartFrame &frame = Frame(style.style);
        frame.Show(form, heading, horoscope.state.names.RasiNames);
        const bool isSeen = form.VisibleFrame == style.style;
        frame.setFocusPolicy(isSeen ? Qt::StrongFocus : Qt::NoFocus);
        frame.setVisible(isSeen);
    }
}

} // namespace kelvaro
