#include "shell/dialogs/CountryDialog.h"

#include "drawing/TextOf.h"
#include "shell/widgets/FormKeys.h"
#include "ui_CountryDialog.h"

namespace kelvaro {

CountryDialog::CountryDialog(store::Connection &connection, QWidget *parent)
    : MasterDialog(parent), master_(connection), controls_(std::make_unique<Ui::frm_Add_Country>()) {
    controls_->setupUi(this);
    searches_ = {{{controls_->txtSearch, controls_->lstboxAdd, {}},
                  {controls_->txtEditSearch, controls_->lstEditBox, {}}}};
    Fill();
    for (const SearchLine &search : searches_) {
        search.line->installEventFilter(this);
    }
    connect(controls_->lstEditBox, &QListWidget::itemSelectionChanged, this, &CountryDialog::ShowChosen);
    connect(controls_->lstEditBox, &QListWidget::itemClicked, this, &CountryDialog::ShowChosen);
    connect(controls_->TabStrip1, &QTabWidget::currentChanged, controls_->txtEdit, &QLineEdit::clear);
    OnPress(controls_->cmdAddSave, [this] { Add(); });
    OnPress(controls_->cmdEditUpdate, [this] { Rename(); });
    connect(controls_->cmdAddCLose, &QPushButton::clicked, this, &QDialog::reject);
    controls_->txtSearch->setFocus();
}

CountryDialog::~CountryDialog() = default;

void CountryDialog::Fill() {
    countries_ = master_.Countries();
    for (SearchLine &search : searches_) {
        search.list->clear();
        for (const store::ListItem &country : countries_) {
            auto *item = new QListWidgetItem(TextOf(country.text), search.list);
            item->setData(Qt::UserRole, country.key);
        }
        search.answered.clear();
    }
}

bool CountryDialog::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyRelease) {
        for (SearchLine &search : searches_) {
            if (search.line == watched) {
                Search(search);
            }
        }
    }
    return MasterDialog::eventFilter(watched, event);
}

void CountryDialog::Search(SearchLine &search) {
    // The key that closes a message box is released here: it has not searched for anything new.
    if (search.line->text() == search.answered) {
        return;
    }
    search.answered = search.line->text();
    const store::Found found = store::CountryMaster::Search(countries_, search.answered.toStdString());
    if (found.row) {
        search.list->setCurrentRow(static_cast<int>(*found.row));
    }
    if (found.notice) {
        Tell(*found.notice);
    }
}

void CountryDialog::ShowChosen() {
    const QList<QListWidgetItem *> chosen = controls_->lstEditBox->selectedItems();
    if (!chosen.isEmpty()) {
        controls_->txtEdit->setText(chosen.front()->text());
    }
}

void CountryDialog::Add() {
    if (Conclude(master_.Add(controls_->txtAddName->text().toStdString()))) {
        Fill();
    }
}

void CountryDialog::Rename() {
    store::ListItem chosen;
    for (const QListWidgetItem *item : controls_->lstEditBox->selectedItems()) {
        chosen = {item->text().toStdString(), item->data(Qt::UserRole).toInt()};
    }
    if (Conclude(master_.Rename(chosen, controls_->txtEdit->text().toStdString()))) {
        controls_->txtEdit->clear();
        Fill();
    }
}

/// Enter in a name presses the button beside it.
void CountryDialog::keyPressEvent(QKeyEvent *event) {
    const bool isEnter = IsEnter(*event);
    if (isEnter && focusWidget() == controls_->txtAddName) {
        controls_->cmdAddSave->click();
    } else if (isEnter && focusWidget() == controls_->txtEdit) {
        controls_->cmdEditUpdate->click();
    } else {
        MasterDialog::keyPressEvent(event);
    }
}

} // namespace kelvaro
