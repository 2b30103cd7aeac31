#pragma once

#include "store/masters/PlaceLists.h"

#include <QDialog>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class QListWidgetItem;

namespace Ui {
class Frm_RetriveBirthData;
} // namespace Ui

namespace kelvaro {

/// The list of saved charts, which a part of a name narrows down; date, time and place of the chart under the
/// cursor stand below it. Whoever receives the choice hides the dialog.
class ChartListDialog : public QDialog {
    Q_OBJECT

public:
    /// The connection must outlive the dialog. The list is empty before `fnFillChart`.
    explicit ChartListDialog(store::Connection &connection, QWidget *parent = nullptr);
    ChartListDialog(const ChartListDialog &) = delete;
    ChartListDialog &operator=(const ChartListDialog &) = delete;
    ~ChartListDialog() override;

    std::string DataGen = "All"; ///< which charts: "All", "Male", "Female", or "G" for couples
    int DataMode = 3;            ///< set by callers, read by none

    /// Reads the list from the database. Raises StoreError when that fails.
    void fnFillChart();

    /// The charts of the list, with their chart numbers.
    const std::vector<store::ListItem> &Charts() const { return charts_; }

    /// Takes the filter away, selects a chart and brings it in view; a number without a row selects none.
    void Choose(std::int32_t chartNumber);

signals:
    void ChartChosen(const kelvaro::store::ListItem &chart);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void Submit();
    void Filter(const QString &part);
    QString DetailsOf(const QListWidgetItem *row) const;
    /// Below the list, with what the list was opened without.
    void ShowDetails(const QListWidgetItem *row);
    QListWidgetItem *Selected() const;

    store::Connection &connection_;
    std::vector<store::ListItem> charts_; ///< of the rows, in their order
    QString leftOut_;                     ///< in words, empty where every row could be read
    std::unique_ptr<Ui::Frm_RetriveBirthData> controls_;
};

} // namespace kelvaro
