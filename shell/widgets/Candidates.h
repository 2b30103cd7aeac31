#pragma once

#include <QComboBox>
#include <QListWidget>

namespace kelvaro {

class TypeAhead;

/// The rows of a list that begin with what is being typed into its box, shown below the box. The keys stay
/// with the box: the arrows move on, Enter takes the row, Escape closes this list and nothing else. A click
/// picks a row.
class Candidates : public QListWidget {
public:
    /// Shows them over the window of the box as long as it lives.
    static void Serve(QComboBox *box, const TypeAhead &typing);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit Candidates(QComboBox *box);

    void ShowFor(const QString &typed);
    void Mark();
    void Pick(const QListWidgetItem *row);
    QRect Place() const;

    QComboBox *box_;
};

} // namespace kelvaro
