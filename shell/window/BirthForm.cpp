#include "shell/window/BirthForm.h"

#include "shell/dialogs/CityDialog.h"
#include "shell/dialogs/TimeZoneDialog.h"
#include "shell/window/MDILight.h"

#include <QAction>

namespace kelvaro {

BirthDialog &BirthForm::Show() {
    if (dialog_ != nullptr) {
        dialog_->ReturnFromMaster();
        return *dialog_;
    }
    dialog_ = new BirthDialog(window_.HoroscopeInForce(), settings_, discarded_, &window_);
    dialog_->setModal(true);
    QObject::connect(dialog_, &BirthDialog::CityMasterWanted, &window_, [this](std::int32_t country) {
        ShowMaster<CityDialog>([country](CityDialog &master) { master.StartIn(country); });
    });
    QObject::connect(dialog_, &BirthDialog::TimeZoneMasterWanted, &window_, [this](std::int32_t country) {
        ShowMaster<TimeZoneDialog>([country](TimeZoneDialog &master) { master.StartIn(country); });
    });
    QObject::connect(dialog_, &BirthDialog::NewZoneWanted, &window_, [this](const store::ZoneFields &zone) {
        ShowMaster<TimeZoneDialog>([&zone](TimeZoneDialog &master) { master.Propose(zone); });
    });
    QObject::connect(dialog_, &BirthDialog::Closed, &window_, [this] { Forget(); });
    dialog_->show();
    return *dialog_;
}

void BirthForm::Hide() {
    if (dialog_ != nullptr) {
        dialog_->hide();
    }
}

void BirthForm::Close() {
    if (dialog_ != nullptr) {
        dialog_->reject();
    }
}

void BirthForm::Forget() {
    dialog_->deleteLater();
    dialog_ = nullptr;
    window_.findChild<QAction *>(QStringLiteral("mnuPreferences"))->setEnabled(true);
}

template <class Master> void BirthForm::ShowMaster(const std::function<void(Master &)> &begin) {
    window_.Guard([this, &begin] {
        Master master(window_.HoroscopeInForce().connection, &window_);
        begin(master);
        master.exec();
    });
    window_.Guard([this] { dialog_->ReturnFromMaster(); });
}

} // namespace kelvaro
