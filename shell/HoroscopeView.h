#pragma once

#include <QWidget>

namespace kelvaro {

struct Horoscope;

/// A window of the horoscope: it shows contents that the driver filled and computes nothing.
class HoroscopeView : public QWidget {
public:
    using QWidget::QWidget;

    /// Shows the contents anew, as they stand after a run.
    virtual void Refresh(const Horoscope &horoscope) = 0;
};

} // namespace kelvaro
