#pragma once

#include "shell/views/HoroscopeView.h"
#include "shell/views/ViewHeading.h"

#include <QGridLayout>
#include <QLabel>

#include <array>
#include <vector>

namespace kelvaro {

class FieldGroup;

/// The window of the birth summary: person, clock, place and almanac at a glance.
class UserDetailsView : public HoroscopeView {
public:
    explicit UserDetailsView(QWidget *parent = nullptr);

    void Refresh(const Horoscope &horoscope) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void PlaceAlmanac();
    void LimitHeight();

    ViewHeading *heading_;
    QWidget *content_ = nullptr;
    QGridLayout *rows_ = nullptr;
    std::array<FieldGroup *, 4> groups_; ///< person, clock, place, almanac
    std::vector<QLabel *> texts_;        ///< in the order of the fields' table
};

} // namespace kelvaro
