#pragma once

#include "horoscope/entry/SavedChartClocks.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QListWidgetItem;

namespace kelvaro {

/// The saved charts whose time zone is to be looked at, and what the records say of the one under the cursor.
class ClockSurveyDialog : public QDialog {
    Q_OBJECT

public:
    /// Looks at all saved charts. Raises StoreError when they cannot be read.
    explicit ClockSurveyDialog(store::Connection &connection, QWidget *parent = nullptr);

    /// The chart that the dialog was left with; nothing where it was only closed.
    const store::ListItem *Chosen() const;

private:
    void List(const std::vector<DoubtfulClock> &clocks, bool areWrong);
    void ShowRemark();

    ClockSurvey survey_;
    std::vector<DoubtfulClock> listed_; ///< in the order of the list
    QListWidget *charts_;
    QLabel *remark_;
};

} // namespace kelvaro
