#include "horoscope/entry/PreferencesEntry.h"

#include "astronomy/Ayanamsa.h"
#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Horoscope.h"
#include "runtime/Numbers.h"

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

template <auto text, const auto &choices> bool IsNoChoice(const PreferenceFields &fields) {
    const auto found = std::ranges::find(choices, fields.*text, &PreferenceChoice::text);
    return found == choices.end() || (!found->isListed && found->text != fields.storedBhava);
}

bool IsCustom(const PreferenceFields &fields) {
    return AyanamsaOf(ValueOf(ayanamsaChoices, fields.cbAyanamsa)) == Ayanamsa::Custom;
}

store::OnLoadClass PreferencesIn(const PreferenceFields &fields) {
    store::OnLoadClass preferences;
    preferences.clsAyanamsa = ValueOf(ayanamsaChoices, fields.cbAyanamsa);
    preferences.clsDays_in_a_Year = NumberFromText(ValueOf(dayChoices, fields.Cbdays));
    preferences.clsBhava = ValueOf(bhavaChoices, fields.cbBhava);
    preferences.clsChart_Type = ValueOf(chartChoices, fields.cbChart);
    preferences.clsLanguage = ValueOf(languageChoices, fields.cbLanguage);
    // A custom year that is not in force must not stay behind.
    const bool isCustom = IsCustom(fields);
    preferences.clsYear = isCustom ? NumberFromText(fields.txtZero) : 0;
    preferences.clsProgress = isCustom ? NumberFromText(fields.txtPogression) : 0;
    return preferences;
}

std::optional<Notice> FirstBrokenOf(const PreferenceFields &fields) {
    auto notice = IsCustom(fields) ? FirstBroken(customRules, fields) : std::nullopt;
    return notice ? notice : FirstBroken(choiceRules, fields);
}

} // namespace

constexpr std::array<Rule<PreferenceFields>, 8> customRules{{
    {[](const PreferenceFields &f) { return f.txtZero.empty(); }, "Enter Zero Year", "txtZero"},
    {[](const PreferenceFields &f) { return f.txtPogression.empty(); }, "Enter Progression", "txtPogression"},
    {LacksNumber<&PreferenceFields::txtZero>, "Enter Year in Number", "txtZero"},
    {LacksNumber<&PreferenceFields::txtPogression>, "Enter Progression in Number ", "txtPogression"},
    // The limit is this year and not that of the clock, whatever the message says.
    {[](const PreferenceFields &f) { return NumberFromText(f.txtZero) > latestZeroYear; },
     "Enter Zero Year Less than current Year ", "txtZero"},
    {[](const PreferenceFields &f) { return NumberFromText(f.txtZero) < 0; }, "Enter Positive Zero Year ",
     "txtZero"},
    {[](const PreferenceFields &f) { return NumberFromText(f.txtPogression) < 0; },
     "Enter Positive Progression ", "txtPogression"},
    {[](const PreferenceFields &f) { return NumberFromText(f.txtPogression) > greatestProgress; },
     "Enter Progression less than 1000", "txtPogression"},
}};

constexpr std::array<Rule<PreferenceFields>, 5> choiceRules{{
    {IsNoChoice<&PreferenceFields::cbAyanamsa, ayanamsaChoices>, "Choose one of the list for Ayanamsa",
     "cbAyanamsa"},
    {IsNoChoice<&PreferenceFields::Cbdays, dayChoices>, "Choose one of the list for Days in a Year",
     "Cbdays"},
    {IsNoChoice<&PreferenceFields::cbBhava, bhavaChoices>, "Choose one of the list for Bhava", "cbBhava"},
    {IsNoChoice<&PreferenceFields::cbChart, chartChoices>, "Choose one of the list for Chart Style",
     "cbChart"},
    {IsNoChoice<&PreferenceFields::cbLanguage, languageChoices>, "Choose one of the list for Language",
     "cbLanguage"},
}};

PreferenceFields FieldsOfPreferences(const store::OnLoadClass &preferences) {
    return {TextOf(ayanamsaChoices, preferences.clsAyanamsa),
            NumberText(preferences.clsDays_in_a_Year),
            TextOf(bhavaChoices, preferences.clsBhava),
            TextOf(chartChoices, preferences.clsChart_Type),
            TextOf(languageChoices, preferences.clsLanguage),
            NumberText(preferences.clsYear),
            NumberText(preferences.clsProgress),
            TextOf(bhavaChoices, preferences.clsBhava)};
}

void PutPreferencesInForce(const store::OnLoadClass &preferences, HoroscopeState &state) {
    Preferences &inForce = state.preferences;
    inForce.DaysInYear = preferences.clsDays_in_a_Year;
    inForce.AyanamsaName = inForce.AyanamsaInForce = preferences.clsAyanamsa;
    inForce.BhavaSystem = preferences.clsBhava;
    inForce.ChartStyle = preferences.clsChart_Type;
    inForce.Language = preferences.clsLanguage;
    inForce.PrefProgress = inForce.ProgressInForce = preferences.clsProgress;
    inForce.PrefYear = inForce.YearInForce = preferences.clsYear;
}

std::optional<Notice> SavePreferences(const PreferenceFields &fields, Horoscope &horoscope) {
    if (auto notice = FirstBrokenOf(fields)) {
        return notice;
    }
    const store::OnLoadClass preferences = PreferencesIn(fields);
    preferences.Store(horoscope.connection);
    PutPreferencesInForce(preferences, horoscope.state);
    CalculateHoroscope(horoscope);
    return std::nullopt;
}

std::optional<Notice> ApplyPreferences(const PreferenceFields &fields, Horoscope &horoscope) {
    if (auto notice = FirstBrokenOf(fields)) {
        return notice;
    }
    store::OnLoadClass preferences = PreferencesIn(fields);
    preferences.clsBhava = horoscope.state.preferences.BhavaSystem;
    PutPreferencesInForce(preferences, horoscope.state);
    CalculateHoroscope(horoscope);
    return std::nullopt;
}

} // namespace kelvaro
