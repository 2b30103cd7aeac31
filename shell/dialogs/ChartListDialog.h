#pragma once

#include "store/masters/PlaceLists.h"

#include <QDialog>

#include <memory>
#include <string>

namespace Ui {
class Frm_RetriveBirthData;
} // namespace Ui

namespace kelvaro {

/// The list of saved charts. Whoever receives the choice hides the dialog.
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

signals:
    void ChartChosen(const kelvaro::store::ListItem &chart);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Submit();

    store::Connection &connection_;
    std::unique_ptr<Ui::Frm_RetriveBirthData> controls_;
};

} // namespace kelvaro
