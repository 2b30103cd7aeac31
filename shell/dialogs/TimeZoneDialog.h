#pragma once

#include "shell/dialogs/PlaceMasterDialog.h"
#include "store/masters/TimeZoneMaster.h"

#include <memory>

namespace Ui {
class frm_AddTimeZone;
} // namespace Ui

namespace kelvaro {

/// The dialog that adds and edits time zones.
class TimeZoneDialog : public PlaceMasterDialog {
    Q_OBJECT

public:
    /// Lists the stored countries. The connection must outlive the dialog. Raises StoreError when they cannot
    /// be read.
    explicit TimeZoneDialog(store::Connection &connection, QWidget *parent = nullptr);
    TimeZoneDialog(const TimeZoneDialog &) = delete;
    TimeZoneDialog &operator=(const TimeZoneDialog &) = delete;
    ~TimeZoneDialog() override;

    /// Fills in a zone to add, for the user to look at and save.
    void Propose(const store::ZoneFields &zone);

private:
    /// The fields of the tab that adds or of the one that edits.
    struct Entry {
        QComboBox *country;
        QComboBox *zone; ///< null where a zone is added
        QLineEdit *place, *hours, *minutes;
        QComboBox *direction;
    };

    void ShowZone();
    static void Fill(const Entry &entry, const store::ZoneFields &zone);
    static store::ZoneFields FieldsOf(const Entry &entry);

    store::TimeZoneMaster master_;
    std::unique_ptr<Ui::frm_AddTimeZone> controls_;
    Entry add_{}, edit_{};
};

} // namespace kelvaro
