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
    dialog_ = new BirthDialog(window_.HoroscopeInForce(), settings_, &window_);
    dialog_->setModal(true);
    QObject::connect(dialog_, &BirthDialog::CityMasterWanted, &window_, [this] { ShowMaster<CityDialog>(); });
    QObject::connect(dialog_, &BirthDialog::TimeZoneMasterWanted, &window_,
                     [this] { ShowMaster<TimeZoneDialog>(); });
    QObject::connect(dialog_, &BirthDialog::Closed, &window_, [this] { Forget(); });
    dialog_->show();
    return *dialog_;
}

void BirthForm::Hide() {
    if (dialog_ != nullptr) {
        dialog_->hide();
    }
}

void BirthForm::Forget() {
    dialog_->deleteLater();
    dialog_ = nullptr;
    window_.findChild<QAction *>(QStringLiteral("mnuPreferences"))->setEnabled(true);
}

template <class Master> void BirthForm::ShowMaster() {
    window_.Guard([this] { Master(window_.HoroscopeInForce().connection, &window_).exec(); });
    window_.Guard([this] { dialog_->ReturnFromMaster(); });
}

} // namespace kelvaro
