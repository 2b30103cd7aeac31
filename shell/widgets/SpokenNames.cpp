#include "shell/widgets/SpokenNames.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace kelvaro {

namespace {

QString NameOf(const QWidget &field, const QList<QLabel *> &labels) {
    if (!field.accessibleName().isEmpty()) {
        return field.accessibleName();
    }
    const auto label =
        std::ranges::find_if(labels, [&field](const QLabel *each) { return each->buddy() == &field; });
    return label == labels.end() ? QString() : (*label)->text().remove(u'&');
}

} // namespace

void NameFields(QWidget &window) {
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    const QList<QAbstractItemView *> lists = window.findChildren<QAbstractItemView *>();
    for (QAbstractItemView *list : lists) {
        list->setAccessibleName(NameOf(*list, labels));
    }
    const QList<QComboBox *> boxes = window.findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        const QString name = NameOf(*box, labels);
        box->setAccessibleDescription(name);
        if (box->isEditable()) {
            box->lineEdit()->setAccessibleName(name);
        }
    }
}

} // namespace kelvaro
