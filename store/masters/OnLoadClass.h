#pragma once

#include "store/database/Connection.h"

#include <string>

namespace kelvaro::store {

/// The stored preferences: the one row of the table `Preference`.
class OnLoadClass {
public:
    double clsDays_in_a_Year = 0; ///< year length of the dasa arithmetic, days
    std::string clsChart_Type;    ///< "South", "North" or "East"
    std::string clsLanguage;      ///< "English" or "Sanskrit"
    double clsYear = 0;           ///< zero year of the custom ayanamsa
    double clsProgress = 0;       ///< its progress, seconds of arc a year
    std::string clsAyanamsa;      ///< "Lahiri", "Raman", "KP", "Sayana" or "Custom"
    std::string clsBhava;         ///< "Equal" or "Not Equal"
    std::string ClsPath;          ///< the executable's folder

    /// The connection text of the database of couples, which this edition does not open.
    std::string ConstringVal() const;

    /// Reads the row. Raises StoreError when there is none.
    void FnPreferences(Connection &connection);

    /// Writes the row in place. Raises StoreError when there is none.
    void Store(Connection &connection) const;
};

} // namespace kelvaro::store
