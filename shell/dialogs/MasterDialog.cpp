#include "shell/dialogs/MasterDialog.h"

#include "runtime/Texts.h"
#include "shell/widgets/FieldFocus.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/ListedChoice.h"
#include "shell/widgets/MessageBoxes.h"
#include "shell/widgets/ScreenFit.h"
#include "shell/widgets/SpokenNames.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace kelvaro {

void MasterDialog::keyPressEvent(QKeyEvent *event) {
    if (!IsEnter(*event)) {
        QDialog::keyPressEvent(event);
    } else if (!PressFocused(this)) {
        focusNextChild();
        SelectText(focusWidget());
    }
}

void MasterDialog::showEvent(QShowEvent *event) {
    KeepWithinScreen(*this);
    DressButtons(*this);
    for (QLineEdit *line : findChildren<QLineEdit *>()) {
        // The line of a box shows whole rows, which say more than a name.
        if (qobject_cast<QComboBox *>(line->parentWidget()) == nullptr) {
            line->setMaxLength(static_cast<int>(longestName));
        }
    }
    NameFields(*this);
    QDialog::showEvent(event);
}

void MasterDialog::Tell(const Notice &notice) {
    ShowNotice(this, notice);
    SelectText(FieldOf(*this, notice));
}

bool MasterDialog::Conclude(const store::Outcome &outcome) {
    Tell(outcome.notice);
    return outcome.isStored;
}

void MasterDialog::OnPress(QPushButton *button, const std::function<void()> &work) {
    connect(button, &QPushButton::clicked, this, [this, work] { Guarded(this, work); });
}

void MasterDialog::OnChoiceOf(QComboBox *box, const std::function<void()> &work) {
    OnChoice(box, [this, work] { Guarded(this, work); });
}

} // namespace kelvaro
