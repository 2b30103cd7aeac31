#include "shell/dialogs/BirthDialog.h"

#include "horoscope/Horoscope.h"
#include "horoscope/entry/BirthStorage.h"
#include "runtime/Now.h"
#include "shell/dialogs/ChartListDialog.h"
#include "shell/widgets/FieldFocus.h"
#include "shell/widgets/ListedChoice.h"
#include "shell/widgets/MessageBoxes.h"
#include "ui_BirthDialog.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QRegularExpressionValidator>
#include <QShowEvent>
#include <QStyleHints>
#include <QToolBar>

#include <algorithm>
#include <array>

namespace kelvaro {

namespace {

constexpr int placeColumns = 44; ///< characters of the longest zones
constexpr int remarkColumns = 30;

struct TextList {
    QComboBox *box;
    int columns; ///< characters that the box has room for
    QStringList texts;
};

QIcon IconOf(const QStyle *style, const char *theme, QStyle::StandardPixmap otherwise) {
    return QIcon::fromTheme(QString::fromLatin1(theme), style->standardIcon(otherwise));
}

} // namespace

BirthDialog::BirthDialog(Horoscope &horoscope, SettingsStore &settings, QWidget *parent)
    : QDialog(parent), horoscope_(horoscope), settings_(settings), lists_(horoscope.connection),
      fields_(FieldsAtLoad(Now())), controls_(std::make_unique<Ui::frm_OpenChart>()) {
    controls_->setupUi(this);
    firstField_ = controls_->Txt_VC_ChartName;
    BuildMenu();
    BuildToolbar();
    FillLists();
    PrepareLabels();
    ConnectFields();
    Show();
}

BirthDialog::~BirthDialog() = default;

/// An entry of the menu or the toolbar; one without a name separates its neighbours.
struct BirthDialog::Command {
    const char *name, *text;
    void (BirthDialog::*run)();
    QKeyCombination keys = {};
    const char *icon = nullptr;
    QStyle::StandardPixmap otherIcon = QStyle::SP_CustomBase;
};

void BirthDialog::BuildMenu() {
    static constexpr std::array<Command, 7> entries{{
        {"mnu_New", "&New", &BirthDialog::New, Qt::CTRL | Qt::Key_N},
        {"mnuOpen", "&Open", &BirthDialog::OpenList, Qt::CTRL | Qt::Key_O},
        {},
        {"mnuSave", "&Save", &BirthDialog::Save, Qt::CTRL | Qt::Key_S},
        {"mnuDelete", "&Delete", &BirthDialog::DeleteFromMenu},
        {},
        {"mnuClose", "&Close", &BirthDialog::reject, Qt::Key_Escape},
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
        if (entry.keys.key() != Qt::Key(0)) {
            action->setShortcut(entry.keys);
        }
    }
}

void BirthDialog::BuildToolbar() {
    static constexpr std::array<Command, 5> buttons{{
        {"new", "New BrithDetails", &BirthDialog::New, {}, "document-new", QStyle::SP_FileIcon},
        {"open",
         "Open Birthdetails",
         &BirthDialog::OpenListAnew,
         {},
         "document-open",
         QStyle::SP_DialogOpenButton},
        {"save", "Save Details", &BirthDialog::Save, {}, "document-save", QStyle::SP_DialogSaveButton},
        {"delete",
         "Delete Details",
         &BirthDialog::DeleteFromToolbar,
         {},
         "edit-delete",
         QStyle::SP_TrashIcon},
        {"close", "Close", &BirthDialog::reject, {}, "window-close", QStyle::SP_DialogCloseButton},
    }};
    for (const Command &button : buttons) {
        QAction *action =
            controls_->tbrMirvane->addAction(IconOf(style(), button.icon, button.otherIcon),
                                             QString::fromLatin1(button.text), this, button.run);
        action->setObjectName(QString::fromLatin1(button.name));
        action->setToolTip(QString::fromLatin1(button.text));
    }
    controls_->cmdadd->setIcon(IconOf(style(), "list-add", QStyle::SP_FileDialogNewFolder));
    controls_->cmdTimeZoneHelp->setIcon(IconOf(style(), "help-contents", QStyle::SP_DialogHelpButton));
}

void BirthDialog::FillLists() {
    FillList(controls_->cbGender, TextsOf(genderChoices)); // nothing can be typed into this one
    const std::array<TextList, 5> boxes{{
        {controls_->txt_Date, 2, NumbersFromTo(1, 31, 2)},
        {controls_->txt_Month, 3, TextsOf(monthChoices)},
        {controls_->txt_Year, 4, NumbersFromTo(firstListedYear, lastListedYear, 4)},
        {controls_->cbHour, 2, NumbersFromTo(1, 12, 2)},
        {controls_->cbMins, 2, NumbersFromTo(0, 59, 2)},
    }};
    for (const auto &[box, columns, texts] : boxes) {
        PrepareList(box, columns);
        FillList(box, texts);
    }
    static const QRegularExpression digits(QStringLiteral("[0-9]*"));
    controls_->txt_Year->setValidator(new QRegularExpressionValidator(digits, this));
    for (QComboBox *box : {controls_->txt_VC_Country, controls_->txt_VC_City, controls_->cbTimeZone}) {
        PrepareList(box, placeColumns);
    }
    FillList(controls_->txt_VC_Country, lists_.Countries());
}

void BirthDialog::PrepareLabels() {
    // The remark, two lines long, comes and goes without moving anything else.
    controls_->label_remark->setMinimumSize(remarkColumns * fontMetrics().averageCharWidth(),
                                            2 * fontMetrics().lineSpacing());
    QPalette shown = palette();
    shown.setColor(QPalette::Base, shown.color(QPalette::Window));
    controls_->txtLatDetails->setPalette(shown);
    controls_->txtLonDetails->setPalette(shown);
}

/// A place is taken when its row is picked, or when its field is left with the text of a row, and not while
/// the text is still being completed.
void BirthDialog::ConnectFields() {
    const auto onPick = [this](QComboBox *box, const std::function<void()> &pick) {
        connect(box, &QComboBox::activated, this, [this, pick] { Guard(pick); });
    };
    const auto onLeave = [this](QComboBox *box, void (BirthDialog::*take)()) {
        connect(box->lineEdit(), &QLineEdit::editingFinished, this,
                [this, take] { Guard([this, take] { (this->*take)(); }); });
    };
    // Picking the row that stands there takes it anew: its master may have been changed since.
    onPick(controls_->txt_VC_Country, [this] {
        fields_.countryOfId.clear();
        TakeCountry();
    });
    onPick(controls_->txt_VC_City, [this] {
        fields_.cityOfPlace.clear();
        TakeCity();
    });
    onPick(controls_->cbTimeZone, [this] {
        fields_.zoneOfOffset.clear();
        TakeZone();
    });
    onLeave(controls_->txt_VC_Country, &BirthDialog::TakeCountry);
    onLeave(controls_->txt_VC_City, &BirthDialog::TakeCity);
    onLeave(controls_->cbTimeZone, &BirthDialog::TakeZone);

    connect(controls_->cbHour, &QComboBox::currentTextChanged, this, &BirthDialog::ShowRemark);
    connect(controls_->Opt_PM, &QRadioButton::toggled, this, &BirthDialog::ShowRemark);
    connect(controls_->cmdSave, &QPushButton::clicked, this, &BirthDialog::Confirm);
    connect(controls_->CMDCANCEl, &QPushButton::clicked, this, &BirthDialog::reject);
    connect(controls_->cmdadd, &QPushButton::clicked, this,
            [this] { AskMaster(controls_->txt_VC_City, &BirthDialog::CityMasterWanted); });
    connect(controls_->cmdTimeZoneHelp, &QPushButton::clicked, this,
            [this] { AskMaster(controls_->cbTimeZone, &BirthDialog::TimeZoneMasterWanted); });
    secondClick_.setSingleShot(true);
    connect(&secondClick_, &QTimer::timeout, this, [this] { SetDeafToMouse(false); });
    connect(this, &QDialog::rejected, this, [this] {
        chartList_.reset();
        emit Closed();
    });
}

void BirthDialog::Guard(const std::function<void()> &work) {
    if (horoscope_.isCalculating) {
        return;
    }
    try {
        work();
    } catch (const std::exception &error) {
        ShowError(this, error);
    }
}

void BirthDialog::Tell(const Notice &notice) {
    QWidget *present = focusWidget();
    ShowNotice(this, notice);
    QWidget *field =
        notice.focus.empty() ? present : findChild<QWidget *>(QString::fromStdString(notice.focus));
    if (field != nullptr) {
        FocusOn(field);
    }
}

void BirthDialog::Read() {
    fields_.Txt_VC_ChartName = controls_->Txt_VC_ChartName->text().toStdString();
    fields_.cbGender = controls_->cbGender->currentText().toStdString();
    fields_.txt_Date = controls_->txt_Date->currentText().toStdString();
    fields_.txt_Month = controls_->txt_Month->currentText().toStdString();
    fields_.txt_Year = controls_->txt_Year->currentText().toStdString();
    fields_.cbHour = controls_->cbHour->currentText().toStdString();
    fields_.cbMins = controls_->cbMins->currentText().toStdString();
    fields_.Opt_PM = controls_->Opt_PM->isChecked();
    fields_.txt_VC_Country = controls_->txt_VC_Country->currentText().toStdString();
    fields_.txt_VC_City = controls_->txt_VC_City->currentText().toStdString();
    fields_.cbTimeZone = controls_->cbTimeZone->currentText().toStdString();
}

void BirthDialog::Show() {
    controls_->Txt_VC_ChartName->setText(QString::fromStdString(fields_.Txt_VC_ChartName));
    ShowText(controls_->cbGender, fields_.cbGender);
    ShowText(controls_->txt_Date, fields_.txt_Date);
    ShowText(controls_->txt_Month, fields_.txt_Month);
    ShowText(controls_->txt_Year, fields_.txt_Year);
    ShowText(controls_->cbHour, fields_.cbHour);
    ShowText(controls_->cbMins, fields_.cbMins);
    (fields_.Opt_PM ? controls_->Opt_PM : controls_->Opt_AM)->setChecked(true);
    ShowText(controls_->txt_VC_Country, fields_.txt_VC_Country);
    ShowText(controls_->txt_VC_City, fields_.txt_VC_City);
    ShowText(controls_->cbTimeZone, fields_.cbTimeZone);
    controls_->txtLatDetails->setText(QString::fromStdString(fields_.txtLatDetails));
    controls_->txtLonDetails->setText(QString::fromStdString(fields_.txtLonDetails));
    ShowRemark();
}

void BirthDialog::ShowRemark() {
    BirthFields present = fields_;
    present.cbHour = controls_->cbHour->currentText().toStdString();
    present.Opt_PM = controls_->Opt_PM->isChecked();
    controls_->label_remark->setText(QString::fromStdString(RemarkOnTime(present)));
}

void BirthDialog::ListPlaces(const PlaceChoices &choices) {
    FillList(controls_->txt_VC_City, choices.cities);
    FillList(controls_->cbTimeZone, RowsOf(choices.zones));
}

void BirthDialog::TakeCountry() {
    const store::ListItem country{ChosenText(controls_->txt_VC_Country).toStdString(),
                                  ChosenKey(controls_->txt_VC_Country)};
    if (country.text.empty() || country == store::ListItem{fields_.countryOfId, fields_.countryId}) {
        return;
    }
    const PlaceChoices choices = ChooseCountry(fields_, country, lists_, horoscope_.state);
    ListPlaces(choices);
    ShowText(controls_->txt_VC_Country, fields_.txt_VC_Country);
    ShowText(controls_->cbTimeZone, fields_.cbTimeZone);
}

void BirthDialog::TakeCity() {
    const std::string city = ChosenText(controls_->txt_VC_City).toStdString();
    if (city.empty() || city == fields_.cityOfPlace) {
        return;
    }
    fields_.txt_VC_City = city;
    ChooseCity(fields_, lists_);
    ShowText(controls_->txt_VC_City, city);
    controls_->txtLatDetails->setText(QString::fromStdString(fields_.txtLatDetails));
    controls_->txtLonDetails->setText(QString::fromStdString(fields_.txtLonDetails));
}

void BirthDialog::TakeZone() {
    const std::string zone = ChosenText(controls_->cbTimeZone).toStdString();
    if (zone.empty() || zone == fields_.zoneOfOffset) {
        return;
    }
    ChooseZone(fields_, ChosenKey(controls_->cbTimeZone), lists_, horoscope_.state);
    ShowText(controls_->cbTimeZone, fields_.cbTimeZone);
}

/// A command can come from the keyboard while the field with the focus has not been left yet.
void BirthDialog::TakePlaces() {
    TakeCountry();
    TakeCity();
    TakeZone();
    Read();
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
        Read();
        ClearFields(fields_);
        ListPlaces({});
        Show();
        FocusOn(controls_->Txt_VC_ChartName);
    });
}

void BirthDialog::Save() {
    Guard([this] {
        TakePlaces();
        // The list that is left over would not have the chart, or have it under its former name.
        chartList_.reset();
        Tell(SaveBirth(fields_, horoscope_.connection, settings_));
    });
}

void BirthDialog::OpenList() {
    Guard([this] {
        if (chartList_ == nullptr) {
            auto list = std::make_unique<ChartListDialog>(horoscope_.connection, this);
            list->fnFillChart();
            connect(list.get(), &ChartListDialog::ChartChosen, this, &BirthDialog::OpenChart);
            chartList_ = std::move(list);
        }
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
        fields_ = opened.fields;
        ListPlaces(opened.choices);
        Show();
        chartList_->hide();
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
        Read();
        if (CanDeleteFromMenu(fields_)) {
            Delete();
        }
    });
}

void BirthDialog::DeleteFromToolbar() {
    Guard([this] {
        Read();
        if (CanDeleteFromToolbar(fields_)) {
            Delete();
        }
    });
}

void BirthDialog::Delete() {
    const QString question = QString::fromLatin1(deleteQuestion.data(), deleteQuestion.size());
    if (QMessageBox::question(this, windowTitle(), question, QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) != QMessageBox::Yes) {
        return;
    }
    const Notice notice = DeleteBirth(fields_, horoscope_.connection);
    chartList_.reset();
    ListPlaces({});
    Show();
    Tell(notice);
}

void BirthDialog::AskMaster(QWidget *returnTo, void (BirthDialog::*wanted)()) {
    Guard([this, returnTo, wanted] {
        TakePlaces();
        firstField_ = returnTo;
        hide();
        emit(this->*wanted)();
    });
}

void BirthDialog::ReturnFromMaster() {
    Guard([this] {
        FillList(controls_->txt_VC_Country, lists_.Countries());
        if (fields_.countryId != 0) {
            ListPlaces({lists_.CitiesOf(fields_.countryId), lists_.ZonesOf(fields_.countryId)});
        }
    });
    Show();
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
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
    } else if (auto *button = qobject_cast<QPushButton *>(focusWidget())) {
        button->click();
    } else {
        GoToNextField();
    }
}

/// From field to field, past the buttons that only the Tab key comes to.
void BirthDialog::GoToNextField() {
    const auto &form = *controls_;
    const std::array<QWidget *, 14> order{form.Txt_VC_ChartName, form.cbGender,   form.txt_Date,
                                          form.txt_Month,        form.txt_Year,   form.cbHour,
                                          form.cbMins,           nullptr,         form.txt_VC_Country,
                                          form.txt_VC_City,      form.cbTimeZone, form.txtLatDetails,
                                          form.txtLonDetails,    form.cmdSave};
    QWidget *present = qobject_cast<QRadioButton *>(focusWidget()) == nullptr ? focusWidget() : nullptr;
    const auto *const place = std::ranges::find(order, present);
    if (place == order.end()) {
        focusNextChild();
    } else if (QWidget *next = *std::next(place)) {
        FocusOn(next);
    } else {
        FocusOn(form.Opt_PM->isChecked() ? form.Opt_PM : form.Opt_AM);
    }
}

} // namespace kelvaro
