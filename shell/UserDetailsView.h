#pragma once

#include "shell/HoroscopeView.h"
#include "shell/ViewHeading.h"

#include <QLabel>

#include <vector>

namespace kelvaro {

/// The window of the birth summary: person, clock, place and almanac at a glance.
class UserDetailsView : public HoroscopeView {
public:
    explicit UserDetailsView(QWidget *parent = nullptr);

    void Refresh(const Horoscope &horoscope) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    ViewHeading *heading_;
    QWidget *content_ = nullptr;
    std::vector<QLabel *> texts_; ///< in the order of the fields' table
};

} // namespace kelvaro
