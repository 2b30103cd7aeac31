#include "shell/dialogs/CountryDialog.h"

#include "ui_CountryDialog.h"

#include <QKeyEvent>

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
    connect(controls_->cmdAddSave, &QPushButton::clicked, this, [this] { Guard([this] { Add(); }); });
    connect(controls_->cmdEditUpdate, &QPushButton::clicked, this, [this] { Guard([this] { Rename(); }); });
    connect(controls_->cmdAddCLose, &QPushButton::clicked, this, &QDialog::reject);
    controls_->txtSearch->setFocus();
}

CountryDialog::~CountryDialog() = default;

void CountryDialog::Fill() {
    countries_ = master_.Countries();
    for (SearchLine &search : searches_) {
        search.list->clear();
        for (const store::ListItem &country : countries_) {
            auto *item = new QListWidgetItem(QString::fromStdString(country.text), search.list);
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
    const store::Outcome outcome = master_.Add(controls_->txtAddName->text().toStdString());
    Tell(outcome.notice);
    if (outcome.isStored) {
        Fill();
    }
}

void CountryDialog::Rename() {
    store::ListItem chosen;
    for (const QListWidgetItem *item : controls_->lstEditBox->selectedItems()) {
        chosen = {item->text().toStdString(), item->data(Qt::UserRole).toInt()};
    }
    const store::Outcome outcome = master_.Rename(chosen, controls_->txtEdit->text().toStdString());
    Tell(outcome.notice);
    if (outcome.isStored) {
        controls_->txtEdit->clear();
        Fill();
    }
}

/// Enter in a name presses the button beside it.
void CountryDialog::keyPressEvent(QKeyEvent *event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && focusWidget() == controls_->txtAddName) {
        controls_->cmdAddSave->click();
    } else if (isEnter && focusWidget() == controls_->txtEdit) {
        controls_->cmdEditUpdate->click();
    } else {
        MasterDialog::keyPressEvent(event);
    }
}

} // namespace kelvaro
