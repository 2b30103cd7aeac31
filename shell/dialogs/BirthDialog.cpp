#include "shell/dialogs/BirthDialog.h"

#include "drawing/TextOf.h"
#include "horoscope/Horoscope.h"
#include "horoscope/entry/BirthStorage.h"
#include "runtime/Now.h"
#include "runtime/RuntimeError.h"
#include "shell/dialogs/BirthControls.h"
#include "shell/dialogs/BirthPlaces.h"
#include "shell/dialogs/ChartListDialog.h"
#include "shell/widgets/FieldFocus.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/ListedChoice.h"
#include "shell/widgets/MessageBoxes.h"
#include "shell/widgets/SpokenNames.h"
#include "ui_BirthDialog.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QShowEvent>
#include <QStyleHints>
#include <QToolBar>

#include <array>

namespace kelvaro {

BirthDialog::BirthDialog(Horoscope &horoscope, SettingsStore &settings, DiscardedBirths &discarded,
                         QWidget *parent)
    : QDialog(parent), horoscope_(horoscope), settings_(settings), discarded_(discarded),
      fields_(FieldsAtLoad(Now())), controls_(std::make_unique<Ui::frm_OpenChart>()),
      places_(std::make_unique<BirthPlaces>(*controls_, fields_, horoscope)), clock_(horoscope.connection) {
    controls_->setupUi(this);
    firstField_ = controls_->Txt_VC_ChartName;
    BuildMenu();
    BuildToolbar();
    PrepareControls(*this, *controls_);
    NameFields(*this);
    places_->ListAnew();
    ShowFields(fields_, *controls_);
    ConnectFields();
    Settle();
}

BirthDialog::~BirthDialog() {
    // A form that is still shown is left as it goes, when its fields can no longer be taken.
    for (const QLineEdit *line : findChildren<QLineEdit *>()) {
        line->disconnect(this);
    }
}

/// An entry of the menu or the toolbar; one without a name separates its neighbours.
struct BirthDialog::Command {
    const char *name, *text;
    void (BirthDialog::*run)();
    QKeyCombination keys = {};
    const char *icon = nullptr;
};

void BirthDialog::BuildMenu() {
    static constexpr std::array<Command, 7> entries{{
        {"mnu_New", "&New", &BirthDialog::New, Qt::CTRL | Qt::Key_N, "new"},
        {"mnuOpen", "&Open", &BirthDialog::OpenList, Qt::CTRL | Qt::Key_O, "open"},
        {},
        {"mnuSave", "&Save", &BirthDialog::Save, Qt::CTRL | Qt::Key_S, "save"},
        {"mnuDelete", "&Delete", &BirthDialog::DeleteFromMenu, {}, "delete"},
        {},
        // Escape is no key of the menu, which would take it from an open list.
        {"mnuClose", "&Close", &BirthDialog::reject, {}, "close"},
    }};
    auto *bar = new QMenuBar(this);
    layout()->setMenuBar(bar);
    QMenu *file = bar->addMenu(tr("&File"));
    file->menuAction()->setObjectName(QStringLiteral("mnu_File"));
    for (const Command &entry : entries) {
        if (entry.name == nullptr) {
            file->addSeparator();
            continue;
        }
        QAction *action = file->addAction(QString::fromLatin1(entry.text), this, entry.run);
        action->setObjectName(QString::fromLatin1(entry.name));
        action->setIcon(HouseIcon(entry.icon));
        if (entry.keys.key() != Qt::Key(0)) {
            action->setShortcut(entry.keys);
        }
    }
}

void BirthDialog::BuildToolbar() {
    static constexpr std::array<Command, 5> buttons{{
        {"new", "New BrithDetails", &BirthDialog::New, {}, "new"},
        {"open", "Open Birthdetails", &BirthDialog::OpenListAnew, {}, "open"},
        {"save", "Save Details", &BirthDialog::Save, {}, "save"},
        {"delete", "Delete Details", &BirthDialog::DeleteFromToolbar, {}, "delete"},
        {"close", "Close", &BirthDialog::reject, {}, "close"},
    }};
    for (const Command &button : buttons) {
        QAction *action = controls_->tbrMirvane->addAction(
            HouseIcon(button.icon), QString::fromLatin1(button.text), this, button.run);
        action->setObjectName(QString::fromLatin1(button.name));
        action->setToolTip(QString::fromLatin1(button.text));
    }
    DressButtons(*this);
    controls_->cmdSave->setIcon(HouseIcon("accept"));
}

/// A place is taken when its row is picked, or when its field is left with the text of a row, and not while
/// the text is still being completed.
void BirthDialog::ConnectFields() {
    const auto on = [this](auto *sender, auto signal, void (BirthPlaces::*take)()) {
        connect(sender, signal, this, [this, take] {
            Guard([this, take] { (places_.get()->*take)(); });
            ShowAllRemarks();
        });
    };
    const auto picked = &QComboBox::activated;
    const auto left = &QLineEdit::editingFinished;
    on(controls_->txt_VC_Country, picked, &BirthPlaces::PickCountry);
    on(controls_->txt_VC_City, picked, &BirthPlaces::PickCity);
    on(controls_->cbTimeZone, picked, &BirthPlaces::PickZone);
    on(controls_->txt_VC_Country->lineEdit(), left, &BirthPlaces::TakeCountry);
    on(controls_->txt_VC_City->lineEdit(), left, &BirthPlaces::TakeCity);
    on(controls_->cbTimeZone->lineEdit(), left, &BirthPlaces::TakeZone);

    const auto remark = [this] { ShowAllRemarks(); };
    for (const QComboBox *box : controls_->page->findChildren<QComboBox *>()) {
        connect(box, &QComboBox::currentTextChanged, this, remark);
    }
    connect(controls_->Txt_VC_ChartName, &QLineEdit::textChanged, this, remark);
    connect(controls_->Opt_PM, &QRadioButton::toggled, this, remark);
    connect(controls_->cmdTakeZone, &QPushButton::clicked, this, &BirthDialog::TakeClock);
    connect(controls_->cmdBringBack, &QPushButton::clicked, this, &BirthDialog::BringBack);
    connect(controls_->cmdSave, &QPushButton::clicked, this, &BirthDialog::Confirm);
    connect(controls_->CMDCANCEl, &QPushButton::clicked, this, &BirthDialog::reject);
    connect(controls_->cmdadd, &QPushButton::clicked, this,
            [this] { AskMaster(controls_->txt_VC_City, &BirthDialog::CityMasterWanted); });
    connect(controls_->cmdTimeZoneHelp, &QPushButton::clicked, this,
            [this] { AskMaster(controls_->cbTimeZone, &BirthDialog::TimeZoneMasterWanted); });
    secondClick_.setSingleShot(true);
    connect(&secondClick_, &QTimer::timeout, this, [this] { SetDeafToMouse(false); });
    connect(this, &QDialog::rejected, this, [this] {
        KeepTyping();
        chartList_.reset();
        emit Closed();
    });
}

void BirthDialog::Guard(const std::function<void()> &work) {
    if (horoscope_.isCalculating) {
        return;
    }
    Guarded(this, work);
}

void BirthDialog::Tell(const Notice &notice) {
    QWidget *present = focusWidget();
    ShowNotice(this, notice);
    QWidget *field = notice.focus.empty() ? present : FieldOf(*this, notice);
    if (field != nullptr) {
        FocusOn(field);
    }
}

void BirthDialog::ShowAll() {
    ShowFields(fields_, *controls_);
    ShowAllRemarks();
}

void BirthDialog::ShowAllRemarks() {
    ShowRemarks(fields_, discarded_, *controls_);
    BirthFields present = fields_;
    ReadControls(*controls_, present);
    try {
        clockAdvice_ = clock_.Advice(present);
    } catch (const RuntimeError &error) {
        // No box: the remark follows every key.
        clockAdvice_ = ClockAdvice{error.what()};
    }
    ShowClock(clockAdvice_, *controls_);
}

/// The chosen zone gives way to the one of the records only here, at the user's wish.
void BirthDialog::TakeClock() {
    Guard([this] {
        const auto [text, isWarning, zoneNumber, newZone] = clockAdvice_.value_or(ClockAdvice());
        if (zoneNumber) {
            ChooseKey(controls_->cbTimeZone, *zoneNumber);
            places_->PickZone();
            ShowAllRemarks();
            FocusOn(controls_->cbTimeZone);
        } else if (newZone) {
            TakePlaces();
            firstField_ = controls_->cbTimeZone;
            hide();
            emit NewZoneWanted(*newZone);
        }
    });
}

void BirthDialog::Show(const PlaceChoices &choices) {
    places_->List(choices);
    ShowAll();
}

/// What stands on the form is stored, or was not typed.
void BirthDialog::Settle() {
    ReadControls(*controls_, fields_);
    settled_ = fields_;
    ShowAllRemarks();
}

void BirthDialog::KeepTyping() {
    ReadControls(*controls_, fields_);
    if (IsTyped()) {
        discarded_.Keep(fields_);
    }
}

void BirthDialog::BringBack() {
    Guard([this] {
        ReadControls(*controls_, fields_);
        discarded_.BringBack(fields_, IsTyped());
        places_->ListAnew();
        ShowAll();
        FocusOn(controls_->Txt_VC_ChartName);
    });
}

/// A command can come from the keyboard while the field with the focus has not been left yet.
void BirthDialog::TakePlaces() {
    places_->TakeCountry();
    places_->TakeCity();
    places_->TakeZone();
    ReadControls(*controls_, fields_);
}

void BirthDialog::Confirm() {
    Guard([this] {
        TakePlaces();
        if (const auto notice = AcceptBirth(fields_, horoscope_)) {
            Tell(*notice);
        }
    });
}

void BirthDialog::New() {
    Guard([this] {
        KeepTyping();
        ClearFields(fields_);
        Show({});
        Settle();
        FocusOn(controls_->Txt_VC_ChartName);
    });
}

void BirthDialog::Save() {
    Guard([this] {
        TakePlaces();
        // The list that is left over would not have the chart, or have it under its former name.
        chartList_.reset();
        const store::SavedOrNot outcome = SaveBirth(fields_, horoscope_.connection, settings_);
        if (outcome.isSaved) {
            discarded_.Forget(fields_);
            Settle();
        }
        Tell(outcome.notice);
    });
    // A save that fails can have found that the chart has gone.
    ShowAllRemarks();
}

void BirthDialog::OpenList() {
    Guard([this] {
        if (chartList_ == nullptr) {
            auto list = std::make_unique<ChartListDialog>(horoscope_.connection, this);
            list->fnFillChart();
            connect(list.get(), &ChartListDialog::ChartChosen, this, &BirthDialog::OpenChart);
            chartList_ = std::move(list);
        }
        chartList_->Choose(ChartInForce(fields_, horoscope_, chartList_->Charts()));
        chartList_->open();
    });
}

void BirthDialog::OpenListAnew() {
    Guard([this] {
        chartList_.reset();
        OpenList();
    });
}

void BirthDialog::OpenChart(const store::ListItem &chart) {
    Guard([this, &chart] {
        const OpenedBirth opened = OpenBirth(chart, horoscope_.connection, horoscope_.state);
        KeepTyping();
        fields_ = opened.fields;
        Show(opened.choices);
        Settle();
        if (chartList_ != nullptr) {
            chartList_->hide();
        }
        PassOverSecondClick();
        FocusOn(controls_->Txt_VC_ChartName);
    });
}

/// The first click of a double click in the list has opened the chart; the second one comes down on the form,
/// where it must not press or choose anything.
void BirthDialog::PassOverSecondClick() {
    SetDeafToMouse(true);
    secondClick_.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
}

void BirthDialog::SetDeafToMouse(bool isDeaf) {
    for (QWidget *part : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        part->setAttribute(Qt::WA_TransparentForMouseEvents, isDeaf);
    }
}

void BirthDialog::DeleteFromMenu() {
    Guard([this] {
        ReadControls(*controls_, fields_);
        if (CanDeleteFromMenu(fields_)) {
            Delete();
        }
    });
}

void BirthDialog::DeleteFromToolbar() {
    Guard([this] {
        ReadControls(*controls_, fields_);
        if (CanDeleteFromToolbar(fields_)) {
            Delete();
        }
    });
}

void BirthDialog::Delete() {
    if (!IsConfirmed(this, windowTitle(), TextOf(deleteQuestion))) {
        return;
    }
    const bool isTyped = IsTyped();
    const BirthFields typed = fields_;
    const Notice notice = DeleteBirth(fields_, horoscope_.connection);
    if (isTyped) {
        discarded_.Keep(typed);
    }
    chartList_.reset();
    Show({});
    Settle();
    Tell(notice);
}

void BirthDialog::AskMaster(QWidget *returnTo, void (BirthDialog::*wanted)(std::int32_t)) {
    Guard([this, returnTo, wanted] {
        TakePlaces();
        firstField_ = returnTo;
        hide();
        const bool isCountryChosen = fields_.txt_VC_Country == fields_.chosen.country;
        emit(this->*wanted)(isCountryChosen ? fields_.chosen.countryId : 0);
    });
}

void BirthDialog::ReturnFromMaster() {
    Guard([this] { places_->ListAnew(); });
    clock_.Forget();
    ShowAll();
    show();
}

void BirthDialog::reject() {
    if (!horoscope_.isCalculating) {
        QDialog::reject();
    }
}

void BirthDialog::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        FocusOn(firstField_);
        firstField_ = controls_->Txt_VC_ChartName;
    }
}

/// Enter goes on to the next field; a button with the focus is pressed by it.
void BirthDialog::keyPressEvent(QKeyEvent *event) {
    if (!IsEnter(*event)) {
        QDialog::keyPressEvent(event);
    } else if (PressFocused(this)) {
        return;
    } else if (QWidget *next = FieldAfter(focusWidget(), *controls_)) {
        FocusOn(next);
    } else {
        focusNextChild();
    }
}

} // namespace kelvaro
