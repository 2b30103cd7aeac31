#include "analysis/DasaForms.h"

#include "horoscope/NamesForLanguage.h"
#include "horoscope/Steps.h"
#include "store/database/Recordset.h"
#include "tests/horoscope/HoroscopeFixture.h"

#include <string>
#include <vector>

namespace kelvaro {
namespace {

using Row = std::vector<std::string>;

/// The sample chart: a Moon at 275 degrees 27 minutes, with 273 minutes of arc left in a star of the Sun, so
/// 2.0475 years of its six.
NamedScheme SampleScheme(Language language = Language::English) {
    clsStar stars;
    return FindNamedScheme(275.456, MomentOf({1965, 7, 14}, {14, 15, 0}), 365.25, *NamesIn(language), stars);
}

/// The periods follow one another from birth on, a row each.
void ExpectContiguous(const std::vector<DasaPeriod> &periods, const TextGrid &grid) {
    ASSERT_EQ(grid.rows.size(), periods.size());
    std::string end = "14/Jul/1965";
    std::string age = "0";
    for (const Row &row : grid.rows) {
        ASSERT_EQ(row.size(), 4U);
        EXPECT_EQ(row[1], end);
        EXPECT_EQ(row[3].substr(0, row[3].find(" - ")), age);
        end = row[2];
        age = row[3].substr(row[3].find(" - ") + 3);
    }
}

TEST(DasaForms, BalanceAndDasasFromBirthOn) {
    const NamedScheme scheme = SampleScheme();
    EXPECT_EQ(BalanceTextsOf(scheme).window, "Dasa Balance at Birth :Dasa  Sun 2-0- 17");
    EXPECT_EQ(BalanceTextsOf(scheme).report, "Sun Dasa  2 Years 0 Months 17 Days ");
    const TextGrid grid = DasaGrid(scheme);
    EXPECT_EQ(grid.header, "Dasa       | From              | To                 |  Age ");
    // 747.85 days from 14 July 14:15; ages count New Years, so two come before the second birthday.
    ASSERT_EQ(grid.rows.size(), 9U);
    EXPECT_EQ(grid.rows.front(), (Row{"Sun", "14/Jul/1965", "01/Aug/1967", "0 - 2"}));
    EXPECT_EQ(grid.rows.back(), (Row{"Venus", "31/Jul/2061", "31/Jul/2081", "96 - 116"}));
    ExpectContiguous(scheme.dasas, grid);
}

TEST(DasaForms, BhuktisThatEndedBeforeBirthAreNotListed) {
    const NamedScheme scheme = SampleScheme();
    const TextGrid grid = BhuktiGrid(scheme);
    EXPECT_EQ(grid.header, "Bhukthi  | From            | To                |  Age ");
    // The Sun's dasa starts on 1 August 1961; its first six bhuktis take four years less 45 days.
    ASSERT_EQ(grid.rows.size(), 75U);
    EXPECT_EQ(grid.rows.front(), (Row{"Mercury Dasa", "14/Jul/1965", "24/Mar/1966", "0 - 1"}));
    EXPECT_EQ(scheme.bhuktis.front().bhukti, 6U);
    ExpectContiguous(scheme.bhuktis, grid);
    ASSERT_EQ(grid.sections.size(), 9U);
    for (std::size_t dasa = 0; dasa < 9; ++dasa) {
        EXPECT_EQ(grid.sections[dasa].title, scheme.dasas[dasa].lordName + " Dasa");
        EXPECT_EQ(grid.sections[dasa].firstRow, dasa == 0 ? 0 : dasa * 9 - 6);
        EXPECT_EQ(InDasa(scheme.bhuktis, dasa).data(), &scheme.bhuktis[grid.sections[dasa].firstRow]);
    }
}

TEST(DasaForms, AntrasStartAtBirthAtFullLength) {
    const NamedScheme scheme = SampleScheme();
    const TextGrid grid = AntraGrid(scheme);
    EXPECT_EQ(grid.header, "Antra     | From            | To                |  Age ");
    ASSERT_EQ(grid.rows.size(), 729U);
    // 6 x 6 x 6 / 40 are 5.4 days, 6 x 6 x 10 / 40 are nine.
    EXPECT_EQ(grid.rows[0], (Row{"Sun", "14/Jul/1965", "19/Jul/1965", "0 - 0"}));
    EXPECT_EQ(grid.rows[1], (Row{"Moon", "19/Jul/1965", "28/Jul/1965", "0 - 0"}));
    EXPECT_EQ(grid.rows[728][2], "23/Oct/2083") << "43200 days after birth";
    ExpectContiguous(scheme.antras, grid);
    ASSERT_EQ(grid.sections.size(), 81U);
    EXPECT_EQ(grid.sections[10].title, "Moon Dasa, Mars Bhukthi");
    EXPECT_EQ(grid.sections[10].firstRow, 90U);
    EXPECT_EQ(InBhukti(scheme.antras, 1, 1).data(), &scheme.antras[90]);
    EXPECT_EQ(InBhukti(scheme.antras, 1, 1).size(), 9U);
}

TEST(DasaForms, LordsInSanskrit) {
    const NamedScheme scheme = SampleScheme(Language::Sanskrit);
    EXPECT_EQ(BalanceTextsOf(scheme).report, "Surya Dasa  2 Years 0 Months 17 Days ");
    EXPECT_EQ(BhuktiGrid(scheme).rows.front()[0], "Budha Dasa");
    EXPECT_EQ(AntraGrid(scheme).sections.back().title, "Sukra Dasa, Ketu Bhukthi");
}

class DasaStepTest : public HoroscopeTest {
protected:
    DasaStepTest() {
        LoadNamesForLanguage(horoscope);
        horoscope.state.positions.BirthMomentDate = MomentOf({1965, 7, 14}, {14, 15, 0});
    }

    std::vector<Row> Stored() {
        store::Recordset records;
        std::vector<Row> rows;
        for (records.Open("select * from tempBhukthi", connection); !records.IsEndOfFile();
             records.MoveNext()) {
            Row row;
            for (const char *field :
                 {"UserID", "DasaName", "BhukthiName", "BhukthiStart", "BhukhiEnd", "BhukthiAge"}) {
                row.push_back(records.Text(field));
            }
            rows.push_back(row);
        }
        return rows;
    }
};

TEST_F(DasaStepTest, FindsTheMoonAndStoresTheBhuktis) {
    horoscope.chartNumber = 17;
    FillDasa(horoscope);
    EXPECT_NEAR(horoscope.state.positions.MoonLon, 275.456, 0.01);
    EXPECT_EQ(horoscope.state.DasaBalanceText, "Sun Dasa  2 Years 0 Months 17 Days ");
    const std::vector<Row> stored = Stored();
    ASSERT_EQ(stored.size(), 75U);
    EXPECT_EQ(stored.front(), (Row{"17", "Sun", "Mercury", "14/Jul/1965", "24/Mar/1966", "0 - 1"}));
    EXPECT_EQ(stored.back()[1] + stored.back()[2], "VenusKetu");
    EXPECT_EQ(stored.back()[4], horoscope.forms.Frm_Dasa.mshBukti.rows.back()[2]);
}

TEST_F(DasaStepTest, AFailingInsertAddsNothing) {
    connection.Execute("create trigger full before insert on tempBhukthi "
                       "when (select count(*) from tempBhukthi) >= 5 begin select raise(abort, 'full'); end");
    EXPECT_THROW(FillDasa(horoscope), store::StoreError);
    EXPECT_TRUE(Stored().empty());
    EXPECT_TRUE(horoscope.forms.Frm_Dasa.mshAntra.rows.empty());
}

} // namespace
} // namespace kelvaro
