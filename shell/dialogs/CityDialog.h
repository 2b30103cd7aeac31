#pragma once

#include "shell/dialogs/PlaceMasterDialog.h"
#include "store/masters/CityMaster.h"

#include <memory>

namespace Ui {
class frm_New_LatLon;
} // namespace Ui

namespace kelvaro {

/// The dialog that adds, edits and finds cities.
class CityDialog : public PlaceMasterDialog {
    Q_OBJECT

public:
    /// Lists the stored countries. The connection must outlive the dialog. Raises StoreError when they cannot
    /// be read.
    explicit CityDialog(store::Connection &connection, QWidget *parent = nullptr);
    CityDialog(const CityDialog &) = delete;
    CityDialog &operator=(const CityDialog &) = delete;
    ~CityDialog() override;

private:
    /// The fields of the tab that adds or of the one that edits.
    struct Entry {
        QComboBox *country;
        QComboBox *city; ///< null where a city is added
        QLineEdit *name, *latDeg, *latMin;
        QComboBox *latNS;
        QLineEdit *lonDeg, *lonMin;
        QComboBox *lonEW;
    };

    void ShowCity();
    static store::CityFields FieldsOf(const Entry &entry);
    store::Found Search();

    store::CityMaster master_;
    std::unique_ptr<Ui::frm_New_LatLon> controls_;
    Entry add_{}, edit_{};
};

} // namespace kelvaro
