#pragma once

#include "horoscope/entry/BirthEntry.h"

namespace kelvaro {

class SettingsStore;

// Births as saved charts: what the form of birth details does with the store of charts.

struct OpenedBirth {
    BirthFields fields;
    PlaceChoices choices;
};

/// "&Save": checks the fields and stores them, as a new chart or over the saved one, and as the last chart in
/// the settings. Returns what is to be told in either case. The horoscope in force stays. Raises StoreError
/// or ConversionError with database, settings and fields as they were, and RuntimeError for settings that
/// cannot be written: a saved chart then keeps its row, a new one is stored all the same.
Notice SaveBirth(BirthFields &fields, store::Connection &connection, SettingsStore &settings);

/// The fields for a row of the list of saved charts. Nothing is computed before "&OK". The country is the
/// one at the stored number's position in the list, counted from 1. Raises StoreError when the chart, its
/// country or its zone is not found.
OpenedBirth OpenBirth(const store::ListItem &chart, store::Connection &connection,
                      const HoroscopeState &state);

/// What is said when a chart is to be opened and none is chosen.
Notice NoChartChosen();

inline constexpr std::string_view deleteQuestion = "Are You Sure You want to delete ?";

/// Whether the menu asks its question: a saved chart stands on the form.
bool CanDeleteFromMenu(const BirthFields &fields);

/// Whether the toolbar asks its question: a name stands on the form.
bool CanDeleteFromToolbar(const BirthFields &fields);

/// Deletes the saved chart on the form and clears the form.
Notice DeleteBirth(BirthFields &fields, store::Connection &connection);

} // namespace kelvaro
