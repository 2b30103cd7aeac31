#include "shell/dialogs/TimeConverterDialog.h"

#include "drawing/TextOf.h"
#include "horoscope/Horoscope.h"
#include "runtime/Now.h"
#include "shell/dialogs/BirthControls.h"
#include "shell/widgets/FieldFocus.h"
#include "shell/widgets/ListedChoice.h"
#include "ui_TimeConverterDialog.h"

namespace kelvaro {

namespace {

constexpr int ghatisOfDay = 60;

} // namespace

TimeConverterDialog::TimeConverterDialog(const Kind &kind, Horoscope &horoscope, QWidget *parent)
    : MasterDialog(parent), kind_(kind), state_(horoscope.state), lists_(horoscope.connection),
      fields_(FieldsAtLoad(Now())), controls_(std::make_unique<Ui::TimeConverter>()) {
    controls_->setupUi(this);
    setObjectName(QString::fromLatin1(kind.form));
    setWindowTitle(QString::fromLatin1(kind.caption));
    controls_->result->setObjectName(QString::fromLatin1(kind.result));
    FillLists();
    if (kind.takesGhatis) {
        TakeGhatis();
    }
    OnChoiceOf(controls_->Cmb_VP_Country, [this] { TakeCountry(); });
    // A result never stands beside fields that it does not belong to.
    for (const QComboBox *box : findChildren<QComboBox *>()) {
        connect(box, &QComboBox::currentTextChanged, controls_->result, &QLineEdit::clear);
    }
    connect(controls_->Opt_PM, &QRadioButton::toggled, controls_->result, &QLineEdit::clear);
    OnPress(controls_->cmdSubmit, [this] { Convert(); });
    connect(controls_->CMDCANCEl, &QPushButton::clicked, this, &QDialog::reject);
    FocusOn(controls_->txt_Date);
}

TimeConverterDialog::~TimeConverterDialog() = default;

void TimeConverterDialog::FillLists() {
    const DateAndTimeBoxes boxes{controls_->txt_Date, controls_->txt_Month, controls_->txt_Year,
                                 controls_->cbHour, controls_->cbMins};
    ListDatesAndTimes(boxes);
    ShowText(boxes.date, fields_.txt_Date);
    ShowText(boxes.month, fields_.txt_Month);
    ShowText(boxes.year, fields_.txt_Year);
    ShowText(boxes.hour, fields_.cbHour);
    ShowText(boxes.minute, fields_.cbMins);
    (fields_.Opt_PM ? controls_->Opt_PM : controls_->Opt_AM)->setChecked(true);
    for (QComboBox *box : {controls_->Cmb_VP_Country, controls_->Cmb_VP_City, controls_->cbTimeZone}) {
        PrepareList(box, placeColumns);
    }
    FillList(controls_->Cmb_VP_Country, lists_.Countries());
}

/// The lists of hour and minute take ghatis and vighatis.
void TimeConverterDialog::TakeGhatis() {
    controls_->label_cbHour->setText(tr("Ghati : Vighati"));
    controls_->cbHour->setAccessibleName(tr("Ghati"));
    controls_->cbMins->setAccessibleName(tr("Vighati"));
    FillList(controls_->cbHour, NumbersFromTo(0, ghatisOfDay, 2));
    ShowText(controls_->cbHour, "00");
    ShowText(controls_->cbMins, "00");
    controls_->Opt_AM->hide();
    controls_->Opt_PM->hide();
}

void TimeConverterDialog::TakeCountry() {
    const store::ListItem country{ChosenText(controls_->Cmb_VP_Country).toStdString(),
                                  ChosenKey(controls_->Cmb_VP_Country)};
    const PlaceChoices choices = ChooseCountry(fields_, country, lists_, state_);
    FillList(controls_->Cmb_VP_City, choices.cities);
    FillList(controls_->cbTimeZone, RowsOf(choices.zones));
    ShowText(controls_->cbTimeZone, country.text.empty() ? std::string() : fields_.cbTimeZone);
}

void TimeConverterDialog::ReadFields() {
    const auto text = [](const QComboBox *box) { return box->currentText().toStdString(); };
    const auto chosen = [&text](const QComboBox *box) {
        const QString row = ChosenText(box);
        return row.isEmpty() ? text(box) : row.toStdString();
    };
    fields_.txt_Date = text(controls_->txt_Date);
    fields_.txt_Month = text(controls_->txt_Month);
    fields_.txt_Year = text(controls_->txt_Year);
    fields_.cbHour = text(controls_->cbHour);
    fields_.cbMins = text(controls_->cbMins);
    fields_.Opt_PM = controls_->Opt_PM->isChecked();
    fields_.txt_VC_Country = chosen(controls_->Cmb_VP_Country);
    fields_.txt_VC_City = chosen(controls_->Cmb_VP_City);
    fields_.cbTimeZone = chosen(controls_->cbTimeZone);
    if (!ChosenText(controls_->Cmb_VP_City).isEmpty()) {
        ChooseCity(fields_, lists_);
    }
    if (const std::int32_t zone = ChosenKey(controls_->cbTimeZone)) {
        ChooseZone(fields_, zone, lists_, state_);
    }
}

void TimeConverterDialog::Convert() {
    controls_->result->clear();
    ReadFields();
    const TimeConverters::Result result = (converters_.*kind_.convert)(fields_);
    if (const auto *notice = std::get_if<Notice>(&result)) {
        Tell(*notice);
        return;
    }
    controls_->result->setText(TextOf(std::get<std::string>(result)));
}

IshtaGhatiDialog::IshtaGhatiDialog(Horoscope &horoscope, QWidget *parent)
    : TimeConverterDialog({"frm_BirthTimetoIshtaGhatika", "BirthTime To  IshtaGhatika", "txtIshtaGhati",
                           false, &TimeConverters::IshtaGhatiOfBirthTime},
                          horoscope, parent) {}

BirthTimeDialog::BirthTimeDialog(Horoscope &horoscope, QWidget *parent)
    : TimeConverterDialog({"frm_IshtaghatikaToBirthTime", "IshtaGhatika To BirthTime", "txtBirthTime", true,
                           &TimeConverters::BirthTimeOfIshtaGhati},
                          horoscope, parent) {}

} // namespace kelvaro
