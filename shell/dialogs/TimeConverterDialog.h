#pragma once

#include "horoscope/entry/TimeConverters.h"
#include "shell/dialogs/MasterDialog.h"

#include <memory>

namespace Ui {
class TimeConverter;
} // namespace Ui

namespace kelvaro {

struct Horoscope;

/// The dialog of a time converter: a date, a time, a place and the result.
class TimeConverterDialog : public MasterDialog {
    Q_OBJECT

public:
    TimeConverterDialog(const TimeConverterDialog &) = delete;
    TimeConverterDialog &operator=(const TimeConverterDialog &) = delete;
    ~TimeConverterDialog() override;

protected:
    /// What the two converters differ in.
    struct Kind {
        const char *form, *caption, *result; ///< object names of dialog and result, and the caption between
        bool takesGhatis;                    ///< in the place of a clock time
        TimeConverters::Result (TimeConverters::*convert)(const BirthFields &);
    };

    /// Shows the present date and time and lists the countries. The horoscope must outlive the dialog. Raises
    /// StoreError when the countries cannot be read.
    TimeConverterDialog(const Kind &kind, Horoscope &horoscope, QWidget *parent);

private:
    void FillLists();
    void TakeGhatis();
    void TakeCountry();
    void ReadFields();
    void Convert();

    const Kind kind_;
    const HoroscopeState &state_;
    store::PlaceLists lists_;
    BirthFields fields_;
    TimeConverters converters_;
    std::unique_ptr<Ui::TimeConverter> controls_;
};

/// From a birth time to Ishta Ghati.
class IshtaGhatiDialog : public TimeConverterDialog {
public:
    explicit IshtaGhatiDialog(Horoscope &horoscope, QWidget *parent = nullptr);
};

/// From Ishta Ghati to a birth time.
class BirthTimeDialog : public TimeConverterDialog {
public:
    explicit BirthTimeDialog(Horoscope &horoscope, QWidget *parent = nullptr);
};

} // namespace kelvaro
