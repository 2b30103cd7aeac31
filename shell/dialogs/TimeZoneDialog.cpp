#include "shell/dialogs/TimeZoneDialog.h"

#include "shell/widgets/ListedChoice.h"
#include "shell/widgets/TypeAhead.h"
#include "store/masters/CountryMaster.h"
#include "ui_TimeZoneDialog.h"

#include <QSignalBlocker>

namespace kelvaro {

TimeZoneDialog::TimeZoneDialog(store::Connection &connection, QWidget *parent)
    : MasterDialog(parent), master_(connection), controls_(std::make_unique<Ui::frm_AddTimeZone>()) {
    Ui::frm_AddTimeZone &ui = *controls_;
    ui.setupUi(this);
    add_ = {ui.cbAddCountry, nullptr, ui.txtAddCity, ui.txtAddLatDeg, ui.txtAddLAtMin, ui.cbAddEW};
    edit_ = {ui.cbEditCountry, ui.cbEditCity,    ui.txtEditCity,
             ui.txtEditLatDeg, ui.txtEditLatMIn, ui.cbEditEW};
    FillLists(connection);
    Refill();
    ConnectChoices();
    ConnectButtons();
    ui.cbAddCountry->setFocus();
}

TimeZoneDialog::~TimeZoneDialog() = default;

void TimeZoneDialog::FillLists(store::Connection &connection) {
    TypeAhead::Serve(edit_.zone);
    const auto countries = store::CountryMaster(connection).Countries();
    for (QComboBox *country : {add_.country, edit_.country, controls_->cmbCountry}) {
        TypeAhead::Serve(country);
        FillList(country, countries);
    }
    for (const Entry &entry : {add_, edit_}) {
        TypeAhead::Serve(entry.direction);
        FillList(entry.direction, {QStringLiteral("E"), QStringLiteral("W")});
        TakeDigitsOnly(entry.hours);
        TakeDigitsOnly(entry.minutes);
    }
}

void TimeZoneDialog::ConnectChoices() {
    OnChoice(add_.country, [this] { Guard([this] { ShowZones(add_.country, controls_->mshCity); }); });
    OnChoice(edit_.country, [this] { Guard([this] { ShowEditedCountry(); }); });
    OnChoice(edit_.zone, [this] { Guard([this] { ShowZone(); }); });
    OnChoice(controls_->cmbCountry,
             [this] { Guard([this] { ShowZones(controls_->cmbCountry, controls_->mshViewCity); }); });
}

void TimeZoneDialog::ConnectButtons() {
    const auto announce = [this](const Notice &notice) { Tell(notice); };
    connect(controls_->cmdAddSave, &QPushButton::clicked, this,
            [this, announce] { Guard([&] { Conclude(master_.Add(FieldsOf(add_), announce)); }); });
    connect(controls_->cmdEditUpdate, &QPushButton::clicked, this,
            [this, announce] { Guard([&] { Conclude(master_.Update(FieldsOf(edit_), announce)); }); });
    connect(controls_->Command1, &QPushButton::clicked, this, &QDialog::reject);
}

store::ZoneList TimeZoneDialog::ShowZones(const QComboBox *country, MasterGrid *grid) const {
    const std::int32_t chosen = ChosenKey(country);
    store::ZoneList list = chosen == 0 ? store::ZoneList() : master_.Zones(chosen);
    grid->Show(store::zoneGridHeading, QStringLiteral("lrrc"), list.rows);
    return list;
}

void TimeZoneDialog::ShowEditedCountry() {
    // The list chooses none, so the fields of the zone before go too.
    FillList(edit_.zone, ShowZones(edit_.country, controls_->mshEditCity).zones);
}

void TimeZoneDialog::ShowZone() {
    store::ZoneFields fields;
    if (const std::int32_t chosen = ChosenKey(edit_.zone); chosen != 0) {
        master_.Show(chosen, fields);
    }
    edit_.place->setText(QString::fromStdString(fields.place));
    edit_.hours->setText(QString::fromStdString(fields.hours));
    edit_.minutes->setText(QString::fromStdString(fields.minutes));
    edit_.direction->setCurrentText(QString::fromStdString(fields.direction));
}

store::ZoneFields TimeZoneDialog::FieldsOf(const Entry &entry) {
    return {ChosenKey(entry.country),
            entry.zone == nullptr ? 0 : ChosenKey(entry.zone),
            entry.place->text().toStdString(),
            entry.hours->text().toStdString(),
            entry.minutes->text().toStdString(),
            ChosenText(entry.direction).toStdString()};
}

void TimeZoneDialog::Conclude(const store::Outcome &outcome) {
    Tell(outcome.notice);
    if (outcome.isStored) {
        Refill();
    }
}

/// Shows what is stored on all tabs; the fields stay as they are.
void TimeZoneDialog::Refill() {
    ShowZones(add_.country, controls_->mshCity);
    ShowZones(controls_->cmbCountry, controls_->mshViewCity);
    const store::ZoneList edited = ShowZones(edit_.country, controls_->mshEditCity);
    const std::int32_t zone = ChosenKey(edit_.zone);
    const QSignalBlocker quiet(edit_.zone);
    FillList(edit_.zone, edited.zones);
    ChooseKey(edit_.zone, zone);
}

} // namespace kelvaro
