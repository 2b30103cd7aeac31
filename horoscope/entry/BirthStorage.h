#pragma once

#include "horoscope/entry/BirthEntry.h"
#include "store/charts/ChartStore.h"

namespace kelvaro {

class SettingsStore;

// Births as saved charts: what the form of birth details does with the store of charts.

struct OpenedBirth {
    BirthFields fields;
    PlaceChoices choices;
};

/// "&Save": checks the fields and stores them, as a new chart or over the saved one, and as the last chart in
/// the settings. Returns whether that is done and what is to be told. The horoscope in force stays. Raises
/// StoreError or ConversionError with database, settings and fields as they were, and RuntimeError for
/// settings that cannot be written: a saved chart then keeps its row, a new one is stored all the same.
store::SavedOrNot SaveBirth(BirthFields &fields, store::Connection &connection, SettingsStore &settings);

/// The gender that "&Save" would store: a new chart without one gets "Female", a changed chart keeps the
/// empty text.
std::string StoredGender(const BirthFields &fields);

/// The fields for a row of the list of saved charts. Nothing is computed before "&OK". The country is the
/// one at the stored number's position in the list, counted from 1. Raises StoreError when the chart, its
/// country or its zone is not found.
OpenedBirth OpenBirth(const store::ListItem &chart, store::Connection &connection,
                      const HoroscopeState &state);

/// The number of the saved chart to look for in the list: that of the form, or that of the horoscope in
/// force. A chart that the start has restored has no number and is known by its name and date. 0 where there
/// is none.
std::int32_t ChartInForce(const BirthFields &fields, const Horoscope &horoscope,
                          std::span<const store::ListItem> charts);

/// What is said when a chart is to be opened and none is chosen.
Notice NoChartChosen();

inline constexpr std::string_view deleteQuestion = "Are You Sure You want to delete ?";

/// Whether the menu asks its question: a saved chart stands on the form.
bool CanDeleteFromMenu(const BirthFields &fields);

/// Whether the toolbar asks its question: a name stands on the form.
bool CanDeleteFromToolbar(const BirthFields &fields);

/// Deletes the saved chart on the form and clears the form, which keeps the number of the chart that has
/// gone.
Notice DeleteBirth(BirthFields &fields, store::Connection &connection);

} // namespace kelvaro
