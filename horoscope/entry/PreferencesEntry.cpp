#include "horoscope/entry/PreferencesEntry.h"

#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Horoscope.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <span>

namespace kelvaro {

namespace {

using Choices = std::span<const PreferenceChoice>;

std::string TextOf(Choices choices, std::string_view value) {
    const auto found = std::ranges::find(choices, value, &PreferenceChoice::value);
    return std::string(found == choices.end() ? value : found->text);
}

std::string ValueOf(Choices choices, std::string_view text) {
    const auto found = std::ranges::find(choices, text, &PreferenceChoice::text);
    return std::string(found == choices.end() ? text : found->value);
}

std::optional<double> NumberIn(const std::string &text) {
    try {
        return NumberFromText(text);
    } catch (const ConversionError &) {
        return std::nullopt;
    }
}

/// The tests of the custom ayanamsa; the first that fails is told.
std::optional<Notice> TestCustom(const PreferenceFields &fields) {
    const auto notice = [](const char *text, const char *focus) {
        return Notice{text, Notice::Icon::Information, focus};
    };
    if (fields.txtZero.empty()) {
        return notice("Enter Zero Year", "txtZero");
    }
    if (fields.txtPogression.empty()) {
        return notice("Enter Progression", "txtPogression");
    }
    const auto zeroYear = NumberIn(fields.txtZero);
    if (!zeroYear) {
        return notice("Enter Year in Number", "txtZero");
    }
    const auto progress = NumberIn(fields.txtPogression);
    if (!progress) {
        return notice("Enter Progression in Number ", "txtPogression");
    }
    // The limit is this year and not that of the clock, whatever the message says.
    if (*zeroYear > 2003) {
        return notice("Enter Zero Year Less than current Year ", "txtZero");
    }
    if (*zeroYear < 0) {
        return notice("Enter Positive Zero Year ", "txtZero");
    }
    if (*progress < 0) {
        return notice("Enter Positive Progression ", "txtPogression");
    }
    if (*progress > 1000) {
        return notice("Enter Progression less than 1000", "txtPogression");
    }
    return std::nullopt;
}

store::OnLoadClass PreferencesIn(const PreferenceFields &fields) {
    store::OnLoadClass preferences;
    preferences.clsAyanamsa = ValueOf(ayanamsaChoices, fields.cbAyanamsa);
    preferences.clsDays_in_a_Year = NumberFromText(ValueOf(dayChoices, fields.Cbdays));
    preferences.clsBhava = ValueOf(bhavaChoices, fields.cbBhava);
    preferences.clsChart_Type = ValueOf(chartChoices, fields.cbChart);
    preferences.clsLanguage = ValueOf(languageChoices, fields.cbLanguage);
    // A custom year that is not in force must not stay behind.
    const bool isCustom = preferences.clsAyanamsa == "Custom";
    preferences.clsYear = isCustom ? NumberFromText(fields.txtZero) : 0;
    preferences.clsProgress = isCustom ? NumberFromText(fields.txtPogression) : 0;
    return preferences;
}

/// A combo box takes any text; one that is no choice must not become a preference.
std::optional<Notice> TestChoices(const PreferenceFields &fields) {
    struct Combo {
        Choices choices;
        const std::string &text;
        const char *control;
        const char *label;
    };
    for (const Combo &combo : {Combo{ayanamsaChoices, fields.cbAyanamsa, "cbAyanamsa", "Ayanamsa"},
                               Combo{dayChoices, fields.Cbdays, "Cbdays", "Days in a Year"},
                               Combo{bhavaChoices, fields.cbBhava, "cbBhava", "Bhava"},
                               Combo{chartChoices, fields.cbChart, "cbChart", "Chart Style"},
                               Combo{languageChoices, fields.cbLanguage, "cbLanguage", "Language"}}) {
        if (std::ranges::find(combo.choices, combo.text, &PreferenceChoice::text) == combo.choices.end()) {
            return Notice{std::string("Choose one of the list for ") + combo.label, Notice::Icon::Information,
                          combo.control};
        }
    }
    return std::nullopt;
}

std::optional<Notice> TestFields(const PreferenceFields &fields) {
    if (ValueOf(ayanamsaChoices, fields.cbAyanamsa) == "Custom") {
        if (auto notice = TestCustom(fields)) {
            return notice;
        }
    }
    return TestChoices(fields);
}

} // namespace

PreferenceFields FieldsOfPreferences(const store::OnLoadClass &preferences) {
    return {TextOf(ayanamsaChoices, preferences.clsAyanamsa),
            NumberText(preferences.clsDays_in_a_Year),
            TextOf(bhavaChoices, preferences.clsBhava),
            TextOf(chartChoices, preferences.clsChart_Type),
            TextOf(languageChoices, preferences.clsLanguage),
            NumberText(preferences.clsYear),
            NumberText(preferences.clsProgress)};
}

void PutPreferencesInForce(const store::OnLoadClass &preferences, HoroscopeState &state) {
    state.preferences.DaysInYear = preferences.clsDays_in_a_Year;
    state.preferences.AyanamsaName = preferences.clsAyanamsa;
    state.preferences.AyanamsaInForce = preferences.clsAyanamsa;
    state.preferences.BhavaSystem = preferences.clsBhava;
    state.preferences.ChartStyle = preferences.clsChart_Type;
    state.preferences.Language = preferences.clsLanguage;
    state.preferences.PrefProgress = preferences.clsProgress;
    state.preferences.ProgressInForce = preferences.clsProgress;
    state.preferences.PrefYear = preferences.clsYear;
    state.preferences.YearInForce = preferences.clsYear;
}

std::optional<Notice> SavePreferences(const PreferenceFields &fields, Horoscope &horoscope) {
    if (auto notice = TestFields(fields)) {
        return notice;
    }
    const store::OnLoadClass preferences = PreferencesIn(fields);
    preferences.Store(horoscope.connection);
    PutPreferencesInForce(preferences, horoscope.state);
    CalculateHoroscope(horoscope);
    return std::nullopt;
}

std::optional<Notice> ApplyPreferences(const PreferenceFields &fields, Horoscope &horoscope) {
    if (auto notice = TestFields(fields)) {
        return notice;
    }
    store::OnLoadClass preferences = PreferencesIn(fields);
    preferences.clsBhava = horoscope.state.preferences.BhavaSystem;
    PutPreferencesInForce(preferences, horoscope.state);
    CalculateHoroscope(horoscope);
    return std::nullopt;
}

} // namespace kelvaro
