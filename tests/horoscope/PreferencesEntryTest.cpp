#include "horoscope/entry/PreferencesEntry.h"

#include "tests/RuleOrder.h"
#include "tests/horoscope/HoroscopeFixture.h"

namespace kelvaro {
namespace {

class PreferencesEntryTest : public HoroscopeTest {
protected:
    store::OnLoadClass Stored() {
        store::OnLoadClass stored;
        stored.FnPreferences(connection);
        return stored;
    }

    PreferenceFields Custom(const std::string &zeroYear, const std::string &progress) {
        PreferenceFields fields = FieldsOfPreferences(Stored());
        fields.cbAyanamsa = "Custom Ayanamsa";
        fields.txtZero = zeroYear;
        fields.txtPogression = progress;
        return fields;
    }
};

TEST_F(PreferencesEntryTest, RulesOfTheCustomAyanamsaComeInTheirOrder) {
    const struct {
        const char *zeroYear, *progress, *told;
    } cases[] = {
        {"", "", "Enter Zero Year@txtZero"},
        {"abc", "", "Enter Progression@txtPogression"},
        {"abc", "x", "Enter Year in Number@txtZero"},
        {"2004", "x", "Enter Progression in Number @txtPogression"},
        {"2004", "-1", "Enter Zero Year Less than current Year @txtZero"},
        {"-1", "-1", "Enter Positive Zero Year @txtZero"},
        {"0", "-0.5", "Enter Positive Progression @txtPogression"},
        {"2003", "1000.5", "Enter Progression less than 1000@txtPogression"},
    };
    for (const auto &[zeroYear, progress, told] : cases) {
        for (const auto accept : {SavePreferences, ApplyPreferences}) {
            const auto notice = accept(Custom(zeroYear, progress), horoscope);
            ASSERT_TRUE(notice) << told;
            EXPECT_EQ(Told(*notice), told);
        }
    }
    EXPECT_EQ(Stored().clsAyanamsa, "Lahiri");
    EXPECT_EQ(horoscope.state.preferences.AyanamsaName, "Lahiri");
    EXPECT_TRUE(display.events.empty());
    EXPECT_FALSE(SavePreferences(Custom("2003", "1000"), horoscope));
    EXPECT_FALSE(SavePreferences(Custom("0", "0"), horoscope));
}

TEST_F(PreferencesEntryTest, SaveStoresAndComputesAnew) {
    EXPECT_FALSE(SavePreferences(Custom("397", "50.3"), horoscope));
    EXPECT_EQ(display.Count("close"), 1U);
    EXPECT_EQ(Stored().clsYear, 397);
    EXPECT_EQ(Stored().clsProgress, 50.3);
    EXPECT_EQ(horoscope.state.preferences.AyanamsaInForce, "Custom");
    EXPECT_EQ(horoscope.state.preferences.YearInForce, 397);
    // (1965 - 397) years of 50.3 seconds, and half a year's share.
    EXPECT_NEAR(horoscope.state.positions.Ayanamsa, -(1968.0 - 400 + 194 / 365.25) * 50.3 / 3600, 0.001);

    // Another ayanamsa takes the custom figures away.
    PreferenceFields fields = FieldsOfPreferences(Stored());
    fields.cbAyanamsa = "Krishnamoorthy Ayanamsa";
    fields.cbChart = "North Indian";
    fields.cbLanguage = "Sanskrit";
    fields.Cbdays = "360";
    EXPECT_FALSE(SavePreferences(fields, horoscope));
    EXPECT_EQ(Stored().clsAyanamsa, "KP");
    EXPECT_EQ(Stored().clsYear, 0);
    EXPECT_EQ(Stored().clsChart_Type, "North");
    EXPECT_EQ(Stored().clsDays_in_a_Year, 360);
    EXPECT_EQ(horoscope.forms.frm_rasi.VisibleFrame, ChartStyle::North);
    EXPECT_EQ(horoscope.state.names.RasiNames.front(), "Mesha");
}

TEST_F(PreferencesEntryTest, ApplyStoresNothingAndTakesNoBhava) {
    connection.Execute("update Preference set Bhava = 'Not Equal'");
    horoscope.state.preferences.BhavaSystem = "Equal";
    PreferenceFields fields = FieldsOfPreferences(Stored());
    EXPECT_EQ(fields.cbBhava, "Placidius");
    fields.cbAyanamsa = "Tropical Ayanamsa (Sayana)";
    EXPECT_FALSE(ApplyPreferences(fields, horoscope));
    EXPECT_EQ(horoscope.state.positions.Ayanamsa, 0);
    EXPECT_EQ(horoscope.state.preferences.BhavaSystem, "Equal");
    EXPECT_EQ(Stored().clsAyanamsa, "Lahiri");

    // Saving keeps the unlisted choice and puts it in force.
    EXPECT_FALSE(SavePreferences(fields, horoscope));
    EXPECT_EQ(Stored().clsBhava, "Not Equal");
    EXPECT_EQ(horoscope.state.preferences.BhavaSystem, "Not Equal");
}

TEST_F(PreferencesEntryTest, TextsThatAreNoChoiceAreRefused) {
    ExpectOrder<PreferenceFields>(
        FieldsOfPreferences(Stored()),
        {{"Choose one of the list for Ayanamsa@cbAyanamsa", &PreferenceFields::cbAyanamsa, {"lahiri"}},
         {"Choose one of the list for Days in a Year@Cbdays", &PreferenceFields::Cbdays, {""}},
         {"Choose one of the list for Bhava@cbBhava", &PreferenceFields::cbBhava, {"Equal", "Placidius"}},
         {"Choose one of the list for Chart Style@cbChart", &PreferenceFields::cbChart, {"Sout"}},
         {"Choose one of the list for Language@cbLanguage", &PreferenceFields::cbLanguage, {"Latin"}}},
        [this](const PreferenceFields &wrong) { return Told(*SavePreferences(wrong, horoscope)); });
    EXPECT_EQ(Stored().clsChart_Type, "South");
}

} // namespace
} // namespace kelvaro
