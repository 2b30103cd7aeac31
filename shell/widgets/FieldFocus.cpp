#include "shell/widgets/FieldFocus.h"

#include <QComboBox>
#include <QLineEdit>

namespace kelvaro {

void SelectText(QWidget *field) {
    const auto *box = qobject_cast<QComboBox *>(field);
    if (auto *line = box != nullptr ? box->lineEdit() : qobject_cast<QLineEdit *>(field)) {
        line->selectAll();
    }
}

void FocusOn(QWidget *field) {
    field->setFocus(Qt::TabFocusReason);
    SelectText(field);
}

} // namespace kelvaro
