#include "shell/dialogs/BirthControls.h"

#include "shell/widgets/FormKeys.h"
#include "shell/widgets/ListedChoice.h"
#include "shell/widgets/TextOf.h"
#include "ui_BirthDialog.h"

#include <algorithm>
#include <array>

namespace kelvaro {

namespace {

using Form = Ui::frm_OpenChart;

constexpr int remarkColumns = 30;

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
    for (QComboBox *box : {form.txt_VC_Country, form.txt_VC_City, form.cbTimeZone}) {
        PrepareList(box, placeColumns);
    }
    // The remark, two lines long, comes and goes without moving anything else.
    const QFontMetrics letters = window.fontMetrics();
    form.label_remark->setMinimumSize(remarkColumns * letters.averageCharWidth(), 2 * letters.lineSpacing());
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
    ShowPlace(fields, form);
    ShowRemark(fields, form);
}

void ShowRemark(const BirthFields &fields, Form &form) {
    BirthFields present = fields;
    ReadControls(form, present);
    form.label_remark->setText(TextOf(RemarkOnTime(present)));
}

void ShowPlace(const BirthFields &fields, Form &form) {
    form.txtLatDetails->setText(TextOf(fields.txtLatDetails));
    form.txtLonDetails->setText(TextOf(fields.txtLonDetails));
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
