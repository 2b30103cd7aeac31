#pragma once

#include "horoscope/entry/BirthplaceClock.h"
#include "horoscope/entry/DiscardedBirths.h"

class QComboBox;
class QWidget;

namespace Ui {
class frm_OpenChart;
} // namespace Ui

namespace kelvaro {

inline constexpr int placeColumns = 44; ///< characters of the longest zones

/// The boxes of a date and a clock time.
struct DateAndTimeBoxes {
    QComboBox *date, *month, *year, *hour, *minute;
};

/// Fills their lists and chooses nothing.
void ListDatesAndTimes(const DateAndTimeBoxes &boxes);

// The controls of the form of birth details and the fields that stand in them.

/// Fills the lists, but for those of places, and fits boxes and labels to the window.
void PrepareControls(const QWidget &window, Ui::frm_OpenChart &form);

/// Reads the texts into the fields; what the fields remember beside the texts stays.
void ReadControls(const Ui::frm_OpenChart &form, BirthFields &fields);

void ShowFields(const BirthFields &fields, Ui::frm_OpenChart &form);

/// What is to be said of the form as it stands in the controls: the place of its city, the remarks on the
/// time and the saved chart, the birth as it is understood, and the typing that can be brought back. The
/// fields hold what the form remembers beside the texts.
void ShowRemarks(const BirthFields &fields, const DiscardedBirths &discarded, Ui::frm_OpenChart &form);

/// What the records say of the clock of the birthplace, and the button that takes their advice. Nothing
/// stands there where there is none.
void ShowClock(const std::optional<ClockAdvice> &advice, Ui::frm_OpenChart &form);

/// Where Enter goes from a field, past the buttons that only the Tab key comes to; null from a control that
/// is no field.
QWidget *FieldAfter(QWidget *field, const Ui::frm_OpenChart &form);

} // namespace kelvaro
