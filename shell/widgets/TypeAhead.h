#pragma once

#include <QComboBox>
#include <QObject>

namespace kelvaro {

/// Completes what is typed into an editable combo box from its list.
///
/// A letter that continues the text left of the caret to the beginning of an item, in any case, selects the
/// first such item and shows it with the completed rest selected. Any other letter goes through as usual.
class TypeAhead : public QObject {
    Q_OBJECT

public:
    /// Makes the box editable and serves it as long as it lives.
    static TypeAhead *Serve(QComboBox *box);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// What the user has typed, without what was completed.
    void Typed(const QString &text);

private:
    explicit TypeAhead(QComboBox *box);

    bool Complete(const QString &letter);

    QComboBox *box_;
};

} // namespace kelvaro
