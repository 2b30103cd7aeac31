#include "shell/dialogs/TimeZoneDialog.h"

#include "drawing/TextOf.h"
#include "shell/widgets/ListedChoice.h"
#include "ui_TimeZoneDialog.h"

namespace kelvaro {

TimeZoneDialog::TimeZoneDialog(store::Connection &connection, QWidget *parent)
    : PlaceMasterDialog(parent), master_(connection), controls_(std::make_unique<Ui::frm_AddTimeZone>()) {
    Ui::frm_AddTimeZone &ui = *controls_;
    ui.setupUi(this);
    add_ = {ui.cbAddCountry, nullptr, ui.txtAddCity, ui.txtAddLatDeg, ui.txtAddLAtMin, ui.cbAddEW};
    edit_ = {ui.cbEditCountry, ui.cbEditCity,    ui.txtEditCity,
             ui.txtEditLatDeg, ui.txtEditLatMIn, ui.cbEditEW};
    for (const Entry &entry : {add_, edit_}) {
        ListDirections(entry.direction, "E", "W");
        TakeNumbers({entry.hours, entry.minutes});
    }
    Begin({{{{ui.cbAddCountry, ui.mshCity},
             {ui.cbEditCountry, ui.mshEditCity},
             {ui.cmbCountry, ui.mshViewCity}}},
           ui.cbEditCity,
           store::zoneGridHeading,
           QStringLiteral("lrrc"),
           [this](std::int32_t country) { return master_.Zones(country); },
           [this] { ShowZone(); }},
          connection);
    const auto announce = [this](const Notice &notice) { Tell(notice); };
    OnPress(ui.cmdAddSave, [this, announce] { ConcludeAndRefill(master_.Add(FieldsOf(add_), announce)); });
    OnPress(ui.cmdEditUpdate,
            [this, announce] { ConcludeAndRefill(master_.Update(FieldsOf(edit_), announce)); });
    connect(ui.Command1, &QPushButton::clicked, this, &QDialog::reject);
    ui.cbAddCountry->setFocus();
}

TimeZoneDialog::~TimeZoneDialog() = default;

void TimeZoneDialog::Propose(const store::ZoneFields &zone) {
    StartIn(zone.countryId);
    Fill(add_, zone);
    add_.place->setFocus();
    add_.place->selectAll();
}

void TimeZoneDialog::Fill(const Entry &entry, const store::ZoneFields &zone) {
    entry.place->setText(TextOf(zone.place));
    entry.hours->setText(TextOf(zone.hours));
    entry.minutes->setText(TextOf(zone.minutes));
    entry.direction->setCurrentText(TextOf(zone.direction));
}

void TimeZoneDialog::ShowZone() {
    store::ZoneFields fields;
    if (const std::int32_t chosen = ChosenKey(edit_.zone); chosen != 0) {
        master_.Show(chosen, fields);
    }
    Fill(edit_, fields);
}

store::ZoneFields TimeZoneDialog::FieldsOf(const Entry &entry) {
    return {KeyIn(entry.country),
            KeyIn(entry.zone),
            entry.place->text().toStdString(),
            entry.hours->text().toStdString(),
            entry.minutes->text().toStdString(),
            ChosenText(entry.direction).toStdString()};
}

} // namespace kelvaro
