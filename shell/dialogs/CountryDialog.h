#pragma once

#include "shell/dialogs/MasterDialog.h"
#include "store/masters/CountryMaster.h"

#include <array>
#include <memory>
#include <vector>

class QLineEdit;
class QListWidget;

namespace Ui {
class frm_Add_Country;
} // namespace Ui

namespace kelvaro {

/// The dialog that adds and renames countries.
class CountryDialog : public MasterDialog {
    Q_OBJECT

public:
    /// Lists the stored countries. The connection must outlive the dialog. Raises StoreError when they cannot
    /// be read.
    explicit CountryDialog(store::Connection &connection, QWidget *parent = nullptr);
    CountryDialog(const CountryDialog &) = delete;
    CountryDialog &operator=(const CountryDialog &) = delete;
    ~CountryDialog() override;

    /// Searches at each key that is released in a search line.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct SearchLine {
        QLineEdit *line;
        QListWidget *list;
        QString answered; ///< the text that the last search was for
    };

    void Fill();
    void Search(SearchLine &search);
    void ShowChosen();
    void Add();
    void Rename();

    store::CountryMaster master_;
    std::vector<store::ListItem> countries_;
    std::unique_ptr<Ui::frm_Add_Country> controls_;
    std::array<SearchLine, 2> searches_;
};

} // namespace kelvaro
