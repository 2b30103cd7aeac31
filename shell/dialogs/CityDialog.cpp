#include "shell/dialogs/CityDialog.h"

#include "drawing/TextOf.h"
#include "shell/widgets/ListedChoice.h"
#include "ui_CityDialog.h"

namespace kelvaro {

CityDialog::CityDialog(store::Connection &connection, QWidget *parent)
    : PlaceMasterDialog(parent), master_(connection), controls_(std::make_unique<Ui::frm_New_LatLon>()) {
    Ui::frm_New_LatLon &ui = *controls_;
    ui.setupUi(this);
    add_ = {ui.cbAddCountry, nullptr,         ui.txtAddCity,   ui.txtAddLatDeg, ui.txtAddLAtMin,
            ui.cbAddNS,      ui.txtAddLonDeg, ui.txtAddLonMin, ui.cbAddEW};
    edit_ = {ui.cbEditCountry, ui.cbEditCity,    ui.txtEditCity,   ui.txtEditLatDeg, ui.txtEditLatMIn,
             ui.cbEditNS,      ui.txtEditLonDeg, ui.txtEditLonMin, ui.cbEditEW};
    for (const Entry &entry : {add_, edit_}) {
        ListDirections(entry.latNS, "N", "S");
        ListDirections(entry.lonEW, "E", "W");
        TakeNumbers({entry.latDeg, entry.latMin, entry.lonDeg, entry.lonMin});
    }
    Begin({{{{ui.cbAddCountry, ui.mshCity},
             {ui.cbEditCountry, ui.mshEditCity},
             {ui.cmbCountry, ui.mshViewCity}}},
           ui.cbEditCity,
           store::cityGridHeading,
           QStringLiteral("lrcrrcr"),
           [this](std::int32_t country) { return master_.Cities(country); },
           [this] { ShowCity(); }},
          connection);
    OnPress(ui.cmdAddSave, [this] { ConcludeAndRefill(master_.Add(FieldsOf(add_))); });
    OnPress(ui.cmdEditUpdate, [this] { ConcludeAndRefill(master_.Update(FieldsOf(edit_))); });
    // The selection follows what is typed; only the button tells that nothing is found.
    connect(ui.txtCityName, &QLineEdit::textEdited, this, [this] {
        if (!Search().row) {
            controls_->mshViewCity->clearSelection();
        }
    });
    OnPress(ui.cmdFind, [this] {
        if (const auto notice = Search().notice) {
            Tell(*notice);
        }
    });
    connect(ui.cmdAddCLose1, &QPushButton::clicked, this, &QDialog::reject);
    ui.cbAddCountry->setFocus();
}

CityDialog::~CityDialog() = default;

void CityDialog::ShowCity() {
    store::CityFields fields;
    if (const std::int32_t chosen = ChosenKey(edit_.city); chosen != 0) {
        master_.Show({ChosenText(edit_.city).toStdString(), chosen}, fields);
    }
    edit_.name->setText(TextOf(fields.city));
    edit_.latDeg->setText(TextOf(fields.latDeg));
    edit_.latMin->setText(TextOf(fields.latMin));
    edit_.latNS->setCurrentText(TextOf(fields.latNS));
    edit_.lonDeg->setText(TextOf(fields.lonDeg));
    edit_.lonMin->setText(TextOf(fields.lonMin));
    edit_.lonEW->setCurrentText(TextOf(fields.lonEW));
}

store::CityFields CityDialog::FieldsOf(const Entry &entry) {
    return {KeyIn(entry.country),
            KeyIn(entry.city),
            entry.name->text().toStdString(),
            entry.latDeg->text().toStdString(),
            entry.latMin->text().toStdString(),
            ChosenText(entry.latNS).toStdString(),
            entry.lonDeg->text().toStdString(),
            entry.lonMin->text().toStdString(),
            ChosenText(entry.lonEW).toStdString()};
}

/// Looks for the city that is searched for and selects its row.
store::Found CityDialog::Search() {
    store::Found found = store::CityMaster::Find(Viewed(), controls_->txtCityName->text().toStdString());
    if (found.row) {
        controls_->mshViewCity->SelectRow(*found.row);
    }
    return found;
}

} // namespace kelvaro
