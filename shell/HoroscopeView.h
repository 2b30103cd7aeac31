#pragma once

#include "shell/ChartColours.h"

#include <QWidget>

namespace kelvaro {

struct Horoscope;

/// A window of the horoscope: it shows contents that the driver filled and computes nothing.
class HoroscopeView : public QWidget {
public:
    explicit HoroscopeView(QWidget *parent = nullptr) : QWidget(parent) {
        QPalette colours = palette();
        colours.setColor(QPalette::Window, parchmentColour);
        colours.setColor(QPalette::WindowText, nameColour);
        setPalette(colours);
        setAutoFillBackground(true);
    }

    /// Shows the contents anew, as they stand after a run.
    virtual void Refresh(const Horoscope &horoscope) = 0;
};

} // namespace kelvaro
