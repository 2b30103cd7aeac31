#include "shell/widgets/TypeAhead.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace kelvaro {

TypeAhead *TypeAhead::Serve(QComboBox *box) {
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr);
    // The keys come to the box, which hands them on to its line without passing the line's filters.
    auto *typeAhead = new TypeAhead(box);
    box->installEventFilter(typeAhead);
    connect(box->lineEdit(), &QLineEdit::textEdited, typeAhead, &TypeAhead::Typed);
    return typeAhead;
}

TypeAhead::TypeAhead(QComboBox *box) : QObject(box), box_(box) {}

bool TypeAhead::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const auto *key =
            static_cast<QKeyEvent *>(event); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
        const QString letter = key->text();
        const bool isCommand = (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
        if (!isCommand && letter.size() == 1 && letter.front().isPrint()) {
            return Complete(letter);
        }
    }
    return QObject::eventFilter(watched, event);
}

bool TypeAhead::Complete(const QString &letter) {
    QLineEdit *line = box_->lineEdit();
    const int caret = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
    const QString typed = line->text().left(caret) + letter;
    const int found = box_->findText(typed, Qt::MatchStartsWith);
    if (found < 0) {
        return false;
    }
    box_->setCurrentIndex(found);
    const QString text = box_->itemText(found);
    line->setText(text);
    line->setSelection(static_cast<int>(typed.size()), static_cast<int>(text.size() - typed.size()));
    emit Typed(typed);
    return true;
}

} // namespace kelvaro
