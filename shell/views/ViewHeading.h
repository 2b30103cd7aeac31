#pragma once

#include "horoscope/record/HoroscopeState.h"
#include "shell/charts/ChartHeading.h"

#include <QLabel>

namespace kelvaro {

/// The heading of a view: its title, and whose horoscope it is. Long names are shortened.
ChartHeading HeadingOf(const HoroscopeState &state, const QString &title);

/// The same as a line of text above a table.
class ViewHeading : public QLabel {
public:
    explicit ViewHeading(QString title, QWidget *parent = nullptr);

    void Show(const HoroscopeState &state);

private:
    QString title_;
};

} // namespace kelvaro
