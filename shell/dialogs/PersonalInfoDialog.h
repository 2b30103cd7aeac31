#pragma once

#include "shell/dialogs/MasterDialog.h"
#include "store/masters/PersonalDetails.h"

#include <memory>

namespace Ui {
class frm_Details;
} // namespace Ui

namespace kelvaro {

/// The dialog of the owner's letterhead.
class PersonalInfoDialog : public MasterDialog {
    Q_OBJECT

public:
    /// Shows the stored letterhead. The connection must outlive the dialog. Raises StoreError when it cannot
    /// be read.
    explicit PersonalInfoDialog(store::Connection &connection, QWidget *parent = nullptr);
    PersonalInfoDialog(const PersonalInfoDialog &) = delete;
    PersonalInfoDialog &operator=(const PersonalInfoDialog &) = delete;
    ~PersonalInfoDialog() override;

private:
    void Show(const store::PersonalDetails &details);
    store::PersonalDetails Details() const;
    void BeginAnew();

    store::Connection &connection_;
    std::unique_ptr<Ui::frm_Details> controls_;
};

} // namespace kelvaro
