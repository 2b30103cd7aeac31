#pragma once

#include "shell/dialogs/MasterDialog.h"
#include "store/masters/CityMaster.h"

#include <memory>

class QComboBox;

namespace Ui {
class frm_New_LatLon;
} // namespace Ui

namespace kelvaro {

class MasterGrid;

/// The dialog that adds, edits and finds cities.
class CityDialog : public MasterDialog {
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

    void FillLists(store::Connection &connection);
    void ConnectChoices();
    void ConnectButtons();
    store::CityList ShowCities(const QComboBox *country, MasterGrid *grid) const;
    void ShowEditedCountry();
    void ShowCity();
    void Show(const store::CityFields &fields);
    static store::CityFields FieldsOf(const Entry &entry);
    void Conclude(const store::Outcome &outcome);
    void Refill();
    void Find();
    void FollowSearch();

    store::CityMaster master_;
    std::unique_ptr<Ui::frm_New_LatLon> controls_;
    Entry add_{}, edit_{};
    store::CityList viewed_;
};

} // namespace kelvaro
