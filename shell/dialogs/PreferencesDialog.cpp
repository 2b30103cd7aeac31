#include "shell/dialogs/PreferencesDialog.h"

#include "drawing/TextOf.h"
#include "horoscope/Horoscope.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/MessageBoxes.h"
#include "shell/widgets/SpokenNames.h"
#include "shell/widgets/TypeAhead.h"
#include "ui_PreferencesDialog.h"

#include <QLineEdit>

#include <span>

namespace kelvaro {

namespace {

/// Lists the choices; one that is not listed only shows as text.
void Fill(QComboBox *box, std::span<const PreferenceChoice> choices, const std::string &present) {
    for (const PreferenceChoice &choice : choices) {
        if (choice.isListed) {
            box->addItem(TextOf(choice.text));
        }
    }
    TypeAhead::Serve(box);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setCurrentText(TextOf(present));
}

} // namespace

PreferencesDialog::PreferencesDialog(Horoscope &horoscope, QWidget *parent)
    : QDialog(parent), horoscope_(horoscope), controls_(std::make_unique<Ui::frm_Preferences>()) {
    store::OnLoadClass stored;
    stored.FnPreferences(horoscope.connection);
    controls_->setupUi(this);
    stored_ = FieldsOfPreferences(stored);
    Show(stored_);
    DressButtons(*this);
    controls_->Command1->setIcon(HouseIcon("accept"));
    NameFields(*this);
    connect(controls_->cmdSave, &QPushButton::clicked, this, [this] { Accept(SavePreferences); });
    connect(controls_->Command1, &QPushButton::clicked, this, [this] { Accept(ApplyPreferences); });
    connect(controls_->CMDCANCEl, &QPushButton::clicked, this, &QDialog::reject);
}

PreferencesDialog::~PreferencesDialog() = default;

void PreferencesDialog::Show(const PreferenceFields &fields) {
    const auto showCustom = [this](const QString &ayanamsa) {
        controls_->FRAMECUSTOM->setVisible(ayanamsa == TextOf(ayanamsaChoices.back().text));
    };
    connect(controls_->cbAyanamsa, &QComboBox::currentTextChanged, this, showCustom);
    Fill(controls_->cbAyanamsa, ayanamsaChoices, fields.cbAyanamsa);
    Fill(controls_->Cbdays, dayChoices, fields.Cbdays);
    Fill(controls_->cbBhava, bhavaChoices, fields.cbBhava);
    Fill(controls_->cbChart, chartChoices, fields.cbChart);
    Fill(controls_->cbLanguage, languageChoices, fields.cbLanguage);
    controls_->txtZero->setText(TextOf(fields.txtZero));
    controls_->txtPogression->setText(TextOf(fields.txtPogression));
    showCustom(controls_->cbAyanamsa->currentText());
    // What is typed first replaces the text and does not go on from its end.
    controls_->cbAyanamsa->lineEdit()->selectAll();
}

PreferenceFields PreferencesDialog::Fields() const {
    return {
        controls_->cbAyanamsa->currentText().toStdString(), controls_->Cbdays->currentText().toStdString(),
        controls_->cbBhava->currentText().toStdString(),    controls_->cbChart->currentText().toStdString(),
        controls_->cbLanguage->currentText().toStdString(), controls_->txtZero->text().toStdString(),
        controls_->txtPogression->text().toStdString(),     stored_.storedBhava};
}

void PreferencesDialog::Accept(Acceptance acceptance) {
    if (horoscope_.isCalculating) {
        return;
    }
    Guarded(this, [this, acceptance] {
        if (const auto notice = acceptance(Fields(), horoscope_)) {
            ShowNotice(this, *notice);
        } else {
            accept();
        }
    });
}

/// Enter goes on to the next field; a button with the focus is pressed by it.
void PreferencesDialog::keyPressEvent(QKeyEvent *event) {
    if (!IsEnter(*event)) {
        QDialog::keyPressEvent(event);
    } else if (!PressFocused(this)) {
        focusNextChild();
    }
}

} // namespace kelvaro
