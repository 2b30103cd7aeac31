#include "shell/dialogs/BirthControls.h"

#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "horoscope/entry/BirthRemarks.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/ListedChoice.h"
#include "ui_BirthDialog.h"

#include <QAccessible>
#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <initializer_list>

namespace kelvaro {

namespace {

using Form = Ui::frm_OpenChart;

constexpr int remarkColumns = 30;
constexpr qsizetype longestRemark = 500; // characters
constexpr QColor warningColour(255, 230, 120);

struct BoxOfField {
    QComboBox *Form::*box;
    std::string BirthFields::*text;
};

constexpr std::array<BoxOfField, 9> boxesOfFields{{
    {&Form::cbGender, &BirthFields::cbGender},
    {&Form::txt_Date, &BirthFields::txt_Date},
    {&Form::txt_Month, &BirthFields::txt_Month},
    {&Form::txt_Year, &BirthFields::txt_Year},
    {&Form::cbHour, &BirthFields::cbHour},
    {&Form::cbMins, &BirthFields::cbMins},
    {&Form::txt_VC_Country, &BirthFields::txt_VC_Country},
    {&Form::txt_VC_City, &BirthFields::txt_VC_City},
    {&Form::cbTimeZone, &BirthFields::cbTimeZone},
}};

/// Sets a label off from its surroundings, in a light and in a dark theme.
void SetOff(QLabel *label, bool isSetOff) {
    if (label->autoFillBackground() == isSetOff) {
        return;
    }
    QPalette colours = QGuiApplication::palette();
    if (isSetOff) {
        colours.setColor(QPalette::Window, warningColour);
        colours.setColor(QPalette::WindowText, Qt::black);
    }
    label->setPalette(colours);
    label->setAutoFillBackground(isSetOff);
}

/// Says something beside the fields. Who hears the form instead of seeing it hears a warning at once, and the
/// other words with the controls that they belong to.
void Say(QLabel *label, const Remark &remark, std::initializer_list<QWidget *> controls) {
    const QString text = OneLine(TextOf(remark.text), longestRemark);
    if (label->text() == text) {
        return;
    }
    label->setText(text);
    SetOff(label, remark.isWarning);
    for (QWidget *control : controls) {
        control->setAccessibleDescription(text);
    }
    if (remark.isWarning) {
        QAccessibleEvent warning(label, QAccessible::Alert);
        QAccessible::updateAccessibility(&warning);
    }
}

/// Whether a box holds a text that is neither a row of its list nor the one that was chosen.
bool IsUnlisted(const QComboBox *box, const std::string &chosen) {
    const QString text = box->currentText();
    return !text.trimmed().isEmpty() && text != TextOf(chosen) && ChosenText(box).isEmpty();
}

} // namespace

void ListDatesAndTimes(const DateAndTimeBoxes &boxes) {
    struct TextList {
        QComboBox *box;
        int columns; ///< characters that the box has room for
        QStringList texts;
    };
    for (const auto &[box, columns, texts] :
         {TextList{boxes.date, 2, NumbersFromTo(1, 31, 2)}, TextList{boxes.month, 3, TextsOf(monthChoices)},
          TextList{boxes.year, 4, NumbersFromTo(firstListedYear, lastListedYear, 4)},
          TextList{boxes.hour, 2, NumbersFromTo(1, 12, 2)},
          TextList{boxes.minute, 2, NumbersFromTo(0, 59, 2)}}) {
        PrepareList(box, columns);
        FillList(box, texts);
    }
}

void PrepareControls(const QWidget &window, Form &form) {
    FillList(form.cbGender, TextsOf(genderChoices)); // nothing can be typed into this one
    ListDatesAndTimes({form.txt_Date, form.txt_Month, form.txt_Year, form.cbHour, form.cbMins});
    TakeDigitsOnly(form.txt_Year->lineEdit());
    LetAltUpClose(form.cbGender);
    for (QComboBox *box : {form.txt_VC_Country, form.txt_VC_City, form.cbTimeZone}) {
        PrepareListWithCandidates(box, placeColumns);
    }
    // The remarks, two lines long, come and go without moving anything else.
    const QFontMetrics letters = window.fontMetrics();
    const int twoLines = 2 * letters.lineSpacing();
    form.label_remark->setMinimumSize(remarkColumns * letters.averageCharWidth(), twoLines);
    form.label_chart->setMinimumHeight(twoLines + 2 * form.label_chart->margin());
    form.label_understood->setMinimumHeight(twoLines);
    form.label_clock->setMinimumHeight(3 * letters.lineSpacing() + 2 * form.label_clock->margin());
    form.cmdTakeZone->setIcon(HouseIcon("zone"));
    QPalette shown = window.palette();
    shown.setColor(QPalette::Base, shown.color(QPalette::Window));
    form.txtLatDetails->setPalette(shown);
    form.txtLonDetails->setPalette(shown);
}

void ReadControls(const Form &form, BirthFields &fields) {
    fields.Txt_VC_ChartName = form.Txt_VC_ChartName->text().toStdString();
    for (const auto &[box, text] : boxesOfFields) {
        fields.*text = (form.*box)->currentText().toStdString();
    }
    fields.Opt_PM = form.Opt_PM->isChecked();
}

void ShowFields(const BirthFields &fields, Form &form) {
    form.Txt_VC_ChartName->setText(TextOf(fields.Txt_VC_ChartName));
    for (const auto &[box, text] : boxesOfFields) {
        ShowText(form.*box, fields.*text);
    }
    (fields.Opt_PM ? form.Opt_PM : form.Opt_AM)->setChecked(true);
}

void ShowRemarks(const BirthFields &fields, const DiscardedBirths &discarded, Form &form) {
    BirthFields present = fields;
    ReadControls(form, present);
    const bool hasCity =
        present.txt_VC_City == fields.chosen.city && present.txt_VC_Country == fields.chosen.country;
    form.txtLatDetails->setText(hasCity ? TextOf(fields.txtLatDetails) : QString());
    form.txtLonDetails->setText(hasCity ? TextOf(fields.txtLonDetails) : QString());
    const UnlistedPlaces unlisted{IsUnlisted(form.txt_VC_Country, fields.chosen.country),
                                  IsUnlisted(form.txt_VC_City, fields.chosen.city),
                                  IsUnlisted(form.cbTimeZone, fields.chosen.zone)};
    SetOff(form.label_txt_VC_Country, unlisted.country);
    SetOff(form.label_txt_VC_City, unlisted.city);
    SetOff(form.label_cbTimeZone, unlisted.zone);
    Say(form.label_remark, RemarkOnTime(present), {form.cbHour, form.Opt_AM, form.Opt_PM});
    Say(form.label_chart, RemarkOnChart(present), {form.Txt_VC_ChartName});
    Say(form.label_understood, {BirthAsUnderstood(present, unlisted)}, {form.cmdSave});

    const BirthFields *next = discarded.Next();
    form.cmdBringBack->setVisible(next != nullptr);
    Say(form.label_discarded, {next == nullptr ? "" : "Not saved: " + NameOfBirth(*next)},
        {form.cmdBringBack});
}

void ShowClock(const std::optional<ClockAdvice> &advice, Form &form) {
    const bool hasWayOut = advice && (advice->zoneNumber || advice->newZone);
    form.cmdTakeZone->setVisible(hasWayOut);
    if (hasWayOut) {
        form.cmdTakeZone->setText(advice->zoneNumber ? QObject::tr("&Use This Zone")
                                                     : QObject::tr("&Add This Zone..."));
    }
    Say(form.label_clock, advice ? Remark{advice->text, advice->isWarning} : Remark(),
        {form.cbTimeZone, form.cmdTakeZone});
}

QWidget *FieldAfter(QWidget *field, const Form &form) {
    QWidget *const halfOfDay = form.Opt_PM->isChecked() ? form.Opt_PM : form.Opt_AM;
    const std::array<QWidget *, 14> order{
        form.Txt_VC_ChartName, form.cbGender,      form.txt_Date,      form.txt_Month,      form.txt_Year,
        form.cbHour,           form.cbMins,        halfOfDay,          form.txt_VC_Country, form.txt_VC_City,
        form.cbTimeZone,       form.txtLatDetails, form.txtLonDetails, form.cmdSave};
    const bool isHalfOfDay = field == form.Opt_AM || field == form.Opt_PM;
    const auto *const place = std::ranges::find(order, isHalfOfDay ? halfOfDay : field);
    return place == order.end() || std::next(place) == order.end() ? nullptr : *std::next(place);
}

} // namespace kelvaro
