#include "shell/dialogs/PersonalInfoDialog.h"

#include "drawing/TextOf.h"
#include "ui_PersonalInfoDialog.h"

#include <array>

namespace kelvaro {

namespace {

using store::PersonalDetails;

struct Field {
    QLineEdit *Ui::frm_Details::*line;
    std::string PersonalDetails::*text;
};

constexpr std::array<Field, 8> fields{{
    {&Ui::frm_Details::txtName, &PersonalDetails::Name},
    {&Ui::frm_Details::txtAdd, &PersonalDetails::Address},
    {&Ui::frm_Details::txtAdd2, &PersonalDetails::Address2},
    {&Ui::frm_Details::txtCity, &PersonalDetails::City},
    {&Ui::frm_Details::txtCountry, &PersonalDetails::Country},
    {&Ui::frm_Details::txtZip, &PersonalDetails::Zipcode},
    {&Ui::frm_Details::txtPhone, &PersonalDetails::Phone},
    {&Ui::frm_Details::txtEmail, &PersonalDetails::EMail},
}};

} // namespace

PersonalInfoDialog::PersonalInfoDialog(store::Connection &connection, QWidget *parent)
    : MasterDialog(parent), connection_(connection), controls_(std::make_unique<Ui::frm_Details>()) {
    controls_->setupUi(this);
    Show(store::ReadPersonalDetails(connection));
    connect(controls_->cmdEdit, &QPushButton::clicked, this, [this] { controls_->txtName->setFocus(); });
    OnPress(controls_->cmdNew, [this] { BeginAnew(); });
    OnPress(controls_->cmdSave, [this] { Tell(store::SavePersonalDetails(Details(), connection_)); });
    connect(controls_->CMDCANCEl, &QPushButton::clicked, this, &QDialog::reject);
}

PersonalInfoDialog::~PersonalInfoDialog() = default;

void PersonalInfoDialog::Show(const PersonalDetails &details) {
    for (const Field &field : fields) {
        ((*controls_).*field.line)->setText(TextOf(details.*field.text));
    }
}

PersonalDetails PersonalInfoDialog::Details() const {
    PersonalDetails details;
    for (const Field &field : fields) {
        details.*field.text = ((*controls_).*field.line)->text().toStdString();
    }
    return details;
}

void PersonalInfoDialog::BeginAnew() {
    Show({});
    store::DeletePersonalDetails(connection_);
}

} // namespace kelvaro
