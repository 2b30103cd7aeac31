#pragma once

#include "runtime/Rule.h"
#include "store/masters/OnLoadClass.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kelvaro {

struct Horoscope;
struct HoroscopeState;

/// A choice of a preference: the text that the list shows and the value that is stored.
struct PreferenceChoice {
    std::string_view text;
    std::string_view value;
    bool isListed = true; ///< an unlisted choice comes from the database only: it is kept and cannot be typed
};

inline constexpr std::array<PreferenceChoice, 5> ayanamsaChoices{{
    {"Chitrapaksha Ayanamsa (Lahiri)", "Lahiri"},
    {"Raman Ayanamsa", "Raman"},
    {"Krishnamoorthy Ayanamsa", "KP"},
    {"Tropical Ayanamsa (Sayana)", "Sayana"},
    {"Custom Ayanamsa", "Custom"},
}};
inline constexpr std::array<PreferenceChoice, 2> dayChoices{{{"365.25", "365.25"}, {"360", "360"}}};
inline constexpr std::array<PreferenceChoice, 2> bhavaChoices{{
    {"Equal House", "Equal"},
    {"Placidius", "Not Equal", false},
}};
inline constexpr std::array<PreferenceChoice, 3> chartChoices{{
    {"South Indian", "South"},
    {"North Indian", "North"},
    {"East Indian", "East"},
}};
inline constexpr std::array<PreferenceChoice, 2> languageChoices{{
    {"English", "English"},
    {"Sanskrit", "Sanskrit"},
}};

/// The fields of the preferences dialog, as texts.
struct PreferenceFields {
    std::string cbAyanamsa, Cbdays, cbBhava, cbChart, cbLanguage;
    std::string txtZero, txtPogression;
    std::string storedBhava{}; ///< the text of the stored value, which is kept even where the list lacks it
};

/// The rules of the custom ayanamsa, which hold only while it is chosen, and those after them for all
/// choices: a combo box takes any text, and one that is no choice must not become a preference.
extern const std::array<Rule<PreferenceFields>, 8> customRules;
extern const std::array<Rule<PreferenceFields>, 5> choiceRules;

/// The fields for a stored row. A value that is no choice shows as it is.
PreferenceFields FieldsOfPreferences(const store::OnLoadClass &preferences);

/// Copies preferences into the record, the ayanamsa also into the birth details in force.
void PutPreferencesInForce(const store::OnLoadClass &preferences, HoroscopeState &state);

/// Checks the fields, stores them, puts them in force and computes the horoscope anew. Returns what is to be
/// told when a rule is broken, with nothing stored and nothing changed. Raises StoreError when the row cannot
/// be written.
std::optional<Notice> SavePreferences(const PreferenceFields &fields, Horoscope &horoscope);

/// The same without storing; the bhava system stays as it is in force.
std::optional<Notice> ApplyPreferences(const PreferenceFields &fields, Horoscope &horoscope);

} // namespace kelvaro
