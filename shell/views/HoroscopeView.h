#pragma once

#include <QWidget>

namespace kelvaro {

struct Horoscope;

/// The largest of some sizes, tried downwards in steps, at which contents fit; the smallest where none does.
template <class Size, class Fits> Size LargestFitting(Size largest, Size smallest, Size step, Fits fits) {
    while (largest > smallest && !fits(largest)) {
        largest -= step;
    }
    return largest;
}

/// A window of the horoscope: it shows contents that the driver filled and computes nothing.
class HoroscopeView : public QWidget {
public:
    explicit HoroscopeView(QWidget *parent = nullptr);

    /// Shows the contents anew, as they stand after a run.
    virtual void Refresh(const Horoscope &horoscope) = 0;

protected:
    bool event(QEvent *event) override;

    /// The font of the window, up to twice as large where so many lines of so many letters leave room.
    QFont RoomyFont(double lines, double letters) const;
};

} // namespace kelvaro
