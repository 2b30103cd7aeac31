#pragma once

#include "shell/dialogs/MasterDialog.h"

#include <QString>

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string_view>

class QLineEdit;

namespace kelvaro {

class MasterGrid;

/// What the dialogs of cities and of time zones share: three tabs, each with the countries to choose from and
/// the rows of the chosen one in a grid. The first adds a row, the second edits one, the third shows them.
class PlaceMasterDialog : public MasterDialog {
public:
    /// Chooses a country on all tabs where none is chosen; nothing for 0.
    void StartIn(std::int32_t countryId);

protected:
    struct Tab {
        QComboBox *country;
        MasterGrid *grid;
    };

    /// What the two differ in.
    struct Plan {
        std::array<Tab, 3> tabs;
        QComboBox *edited; ///< the rows of the second tab
        std::string_view heading;
        QString alignments; ///< of the columns of the grids
        std::function<store::MasterRows(std::int32_t countryId)> rowsOf;
        std::function<void()> showEdited; ///< whenever another row is chosen to be edited, or none
    };

    using MasterDialog::MasterDialog;

    /// Lists the countries, shows empty grids and follows the choices. Raises StoreError when the countries
    /// cannot be read.
    void Begin(Plan plan, store::Connection &connection);

    /// Tells what came of storing a row and shows what is stored on all tabs; the fields stay as they are.
    void ConcludeAndRefill(const store::Outcome &outcome);

    /// The rows of the third tab.
    const store::GridRows &Viewed() const { return viewed_.rows; }

    /// Lets a box complete what is typed from the letters of two directions.
    static void ListDirections(QComboBox *box, const char *one, const char *other);
    static void TakeNumbers(std::initializer_list<QLineEdit *> lines);

    /// The key of the chosen row; 0 where none is chosen or there is no list.
    static std::int32_t KeyIn(const QComboBox *box);

private:
    store::MasterRows ShowRows(const Tab &tab) const;

    Plan plan_;
    store::MasterRows viewed_;
};

} // namespace kelvaro
