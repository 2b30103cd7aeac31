#include "shell/dialogs/CityDialog.h"

#include "shell/widgets/ListedChoice.h"
#include "shell/widgets/TypeAhead.h"
#include "store/masters/CountryMaster.h"
#include "ui_CityDialog.h"

#include <QSignalBlocker>

namespace kelvaro {

CityDialog::CityDialog(store::Connection &connection, QWidget *parent)
    : MasterDialog(parent), master_(connection), controls_(std::make_unique<Ui::frm_New_LatLon>()) {
    Ui::frm_New_LatLon &ui = *controls_;
    ui.setupUi(this);
    add_ = {ui.cbAddCountry, nullptr,         ui.txtAddCity,   ui.txtAddLatDeg, ui.txtAddLAtMin,
            ui.cbAddNS,      ui.txtAddLonDeg, ui.txtAddLonMin, ui.cbAddEW};
    edit_ = {ui.cbEditCountry, ui.cbEditCity,    ui.txtEditCity,   ui.txtEditLatDeg, ui.txtEditLatMIn,
             ui.cbEditNS,      ui.txtEditLonDeg, ui.txtEditLonMin, ui.cbEditEW};
    FillLists(connection);
    Refill();
    ConnectChoices();
    ConnectButtons();
    ui.cbAddCountry->setFocus();
}

CityDialog::~CityDialog() = default;

void CityDialog::FillLists(store::Connection &connection) {
    TypeAhead::Serve(edit_.city);
    const auto countries = store::CountryMaster(connection).Countries();
    for (QComboBox *country : {add_.country, edit_.country, controls_->cmbCountry}) {
        TypeAhead::Serve(country);
        FillList(country, countries);
    }
    for (const Entry &entry : {add_, edit_}) {
        TypeAhead::Serve(entry.latNS);
        TypeAhead::Serve(entry.lonEW);
        FillList(entry.latNS, {QStringLiteral("N"), QStringLiteral("S")});
        FillList(entry.lonEW, {QStringLiteral("E"), QStringLiteral("W")});
        for (QLineEdit *number : {entry.latDeg, entry.latMin, entry.lonDeg, entry.lonMin}) {
            TakeDigitsOnly(number);
        }
    }
}

void CityDialog::ConnectChoices() {
    OnChoice(add_.country, [this] { Guard([this] { ShowCities(add_.country, controls_->mshCity); }); });
    OnChoice(edit_.country, [this] { Guard([this] { ShowEditedCountry(); }); });
    OnChoice(edit_.city, [this] { Guard([this] { ShowCity(); }); });
    OnChoice(controls_->cmbCountry, [this] {
        Guard([this] { viewed_ = ShowCities(controls_->cmbCountry, controls_->mshViewCity); });
    });
}

void CityDialog::ConnectButtons() {
    connect(controls_->cmdAddSave, &QPushButton::clicked, this,
            [this] { Guard([this] { Conclude(master_.Add(FieldsOf(add_))); }); });
    connect(controls_->cmdEditUpdate, &QPushButton::clicked, this,
            [this] { Guard([this] { Conclude(master_.Update(FieldsOf(edit_))); }); });
    connect(controls_->cmdFind, &QPushButton::clicked, this, &CityDialog::Find);
    connect(controls_->txtCityName, &QLineEdit::textEdited, this, &CityDialog::FollowSearch);
    connect(controls_->cmdAddCLose1, &QPushButton::clicked, this, &QDialog::reject);
}

store::CityList CityDialog::ShowCities(const QComboBox *country, MasterGrid *grid) const {
    const std::int32_t chosen = ChosenKey(country);
    store::CityList list = chosen == 0 ? store::CityList() : master_.Cities(chosen);
    grid->Show(store::cityGridHeading, QStringLiteral("lrcrrcr"), list.rows);
    return list;
}

void CityDialog::ShowEditedCountry() {
    // The list chooses none, so the fields of the city before go too.
    FillList(edit_.city, ShowCities(edit_.country, controls_->mshEditCity).cities);
}

void CityDialog::ShowCity() {
    store::CityFields fields;
    if (ChosenKey(edit_.city) != 0) {
        master_.Show(ChosenText(edit_.city).toStdString(), fields);
    }
    Show(fields);
}

void CityDialog::Show(const store::CityFields &fields) {
    edit_.name->setText(QString::fromStdString(fields.city));
    edit_.latDeg->setText(QString::fromStdString(fields.latDeg));
    edit_.latMin->setText(QString::fromStdString(fields.latMin));
    edit_.latNS->setCurrentText(QString::fromStdString(fields.latNS));
    edit_.lonDeg->setText(QString::fromStdString(fields.lonDeg));
    edit_.lonMin->setText(QString::fromStdString(fields.lonMin));
    edit_.lonEW->setCurrentText(QString::fromStdString(fields.lonEW));
}

store::CityFields CityDialog::FieldsOf(const Entry &entry) {
    return {ChosenKey(entry.country),
            entry.city == nullptr ? 0 : ChosenKey(entry.city),
            entry.name->text().toStdString(),
            entry.latDeg->text().toStdString(),
            entry.latMin->text().toStdString(),
            ChosenText(entry.latNS).toStdString(),
            entry.lonDeg->text().toStdString(),
            entry.lonMin->text().toStdString(),
            ChosenText(entry.lonEW).toStdString()};
}

void CityDialog::Conclude(const store::Outcome &outcome) {
    Tell(outcome.notice);
    if (outcome.isStored) {
        Refill();
    }
}

/// Shows what is stored on all tabs; the fields stay as they are.
void CityDialog::Refill() {
    ShowCities(add_.country, controls_->mshCity);
    viewed_ = ShowCities(controls_->cmbCountry, controls_->mshViewCity);
    const store::CityList edited = ShowCities(edit_.country, controls_->mshEditCity);
    const std::int32_t city = ChosenKey(edit_.city);
    const QSignalBlocker quiet(edit_.city);
    FillList(edit_.city, edited.cities);
    ChooseKey(edit_.city, city);
}

void CityDialog::Find() {
    const store::Found found =
        store::CityMaster::Find(viewed_.rows, controls_->txtCityName->text().toStdString());
    if (found.row) {
        controls_->mshViewCity->SelectRow(*found.row);
    }
    if (found.notice) {
        Tell(*found.notice);
    }
}

/// The selection follows what is typed; only the button tells that nothing is found.
void CityDialog::FollowSearch() {
    const store::Found found =
        store::CityMaster::Find(viewed_.rows, controls_->txtCityName->text().toStdString());
    if (found.row) {
        controls_->mshViewCity->SelectRow(*found.row);
    } else {
        controls_->mshViewCity->clearSelection();
    }
}

} // namespace kelvaro
