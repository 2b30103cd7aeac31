#pragma once

#include "horoscope/record/HoroscopeState.h"

#include <QLabel>

namespace kelvaro {

/// The heading of a view as a line of text above a table: its title, and whose horoscope it is.
class ViewHeading : public QLabel {
public:
    explicit ViewHeading(QString title, QWidget *parent = nullptr);

    void Show(const HoroscopeState &state);

private:
    QString title_;
};

} // namespace kelvaro
