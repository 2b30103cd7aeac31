#include "analysis/DasaForms.h"

#include "horoscope/NamesForLanguage.h"
#include "store/database/Recordset.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <vector>

namespace kelvaro {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// The sample chart: a Moon at 275 degrees 27 minutes, with 273 minutes of arc left in a star of the Sun, so
/// 2.0475 years of its six.
class DasaFormsTest : public testing::Test {
protected:
    DasaFormsTest() {
        connection_.OpenCopyInMemory(KELVARO_SEED_DATABASE);
        LoadNamesForLanguage(state_);
        state_.positions.BirthMomentDate = MomentOf({1965, 7, 14}, {14, 15, 0});
    }

    void Fill(long chartNumber = 0) { FillDasa(state_, form_, position_, stars_, connection_, chartNumber); }

    Rows Stored() {
        store::Recordset records;
        Rows rows;
        for (records.Open("select * from tempBhukthi", connection_); !records.IsEndOfFile();
             records.MoveNext()) {
            std::vector<std::string> row;
            for (const char *field :
                 {"UserID", "DasaName", "BhukthiName", "BhukthiStart", "BhukhiEnd", "BhukthiAge"}) {
                row.push_back(records.Text(field));
            }
            rows.push_back(row);
        }
        return rows;
    }

    HoroscopeState state_;
    DasaForm form_;
    ClsFindPlanetPosition position_;
    clsStar stars_;
    store::Connection connection_;
};

void ExpectContiguous(const TextGrid &grid, const std::string &start) {
    std::string end = start;
    std::string age = "0";
    for (const auto &row : grid.rows) {
        ASSERT_EQ(row.size(), 4U);
        EXPECT_EQ(row[1], end);
        EXPECT_EQ(row[3].substr(0, row[3].find(" - ")), age);
        end = row[2];
        age = row[3].substr(row[3].find(" - ") + 3);
    }
}

TEST_F(DasaFormsTest, BalanceAtBirth) {
    Fill();
    EXPECT_NEAR(state_.positions.MoonLon, 275.456, 0.01);
    EXPECT_EQ(form_.Lab_DasaBalanceV, "Dasa Balance at Birth :Dasa  Sun 2-0- 17");
    EXPECT_EQ(state_.DasaBalanceText, "Sun Dasa  2 Years 0 Months 17 Days ");
}

TEST_F(DasaFormsTest, DasasFromBirthOn) {
    Fill();
    const TextGrid &grid = form_.mshDasa;
    EXPECT_EQ(grid.header, "Dasa       | From              | To                 |  Age ");
    // 747.85 days from 14 July 14:15; ages count New Years, so two come before the second birthday.
    const Rows expected{
        {"Sun", "14/Jul/1965", "01/Aug/1967", "0 - 2"},
        {"Moon", "01/Aug/1967", "31/Jul/1977", "2 - 12"},
        {"Mars", "31/Jul/1977", "31/Jul/1984", "12 - 19"},
        {"Rahu", "31/Jul/1984", "01/Aug/2002", "19 - 37"},
        {"Jupiter", "01/Aug/2002", "01/Aug/2018", "37 - 53"},
        {"Saturn", "01/Aug/2018", "31/Jul/2037", "53 - 72"},
        {"Mercury", "31/Jul/2037", "01/Aug/2054", "72 - 89"},
        {"Ketu", "01/Aug/2054", "31/Jul/2061", "89 - 96"},
        {"Venus", "31/Jul/2061", "31/Jul/2081", "96 - 116"},
    };
    EXPECT_EQ(grid.rows, expected);
}

TEST_F(DasaFormsTest, BhuktisThatEndedBeforeBirthAreNotListed) {
    Fill(17);
    const TextGrid &grid = form_.mshBukti;
    EXPECT_EQ(grid.header, "Bhukthi  | From            | To                |  Age ");
    // The Sun's dasa starts on 1 August 1961; its first six bhuktis take four years less 45 days.
    ASSERT_EQ(grid.rows.size(), 75U);
    EXPECT_EQ(grid.rows.front(),
              (std::vector<std::string>{"Mercury Dasa", "14/Jul/1965", "24/Mar/1966", "0 - 1"}));
    ExpectContiguous(grid, "14/Jul/1965");
    ASSERT_EQ(grid.sections.size(), 9U);
    for (std::size_t dasa = 0; dasa < 9; ++dasa) {
        EXPECT_EQ(grid.sections[dasa].title, form_.mshDasa.rows[dasa][0] + " Dasa");
        EXPECT_EQ(grid.sections[dasa].firstRow, dasa == 0 ? 0 : dasa * 9 - 6);
    }
    const Rows stored = Stored();
    ASSERT_EQ(stored.size(), 75U);
    EXPECT_EQ(stored.front(),
              (std::vector<std::string>{"17", "Sun", "Mercury", "14/Jul/1965", "24/Mar/1966", "0 - 1"}));
    EXPECT_EQ(stored.back()[1] + stored.back()[2], "VenusKetu");
    EXPECT_EQ(stored.back()[4], grid.rows.back()[2]);
}

TEST_F(DasaFormsTest, AntrasStartAtBirthAtFullLength) {
    Fill();
    const TextGrid &grid = form_.mshAntra;
    EXPECT_EQ(grid.header, "Antra     | From            | To                |  Age ");
    ASSERT_EQ(grid.rows.size(), 729U);
    // 6 x 6 x 6 / 40 are 5.4 days, 6 x 6 x 10 / 40 are nine.
    EXPECT_EQ(grid.rows[0], (std::vector<std::string>{"Sun", "14/Jul/1965", "19/Jul/1965", "0 - 0"}));
    EXPECT_EQ(grid.rows[1], (std::vector<std::string>{"Moon", "19/Jul/1965", "28/Jul/1965", "0 - 0"}));
    EXPECT_EQ(grid.rows[728][2], "23/Oct/2083") << "43200 days after birth";
    ExpectContiguous(grid, "14/Jul/1965");
    ASSERT_EQ(grid.sections.size(), 81U);
    EXPECT_EQ(grid.sections[10].title, "Moon Dasa, Mars Bhukthi");
    EXPECT_EQ(grid.sections[10].firstRow, 90U);
    EXPECT_EQ(grid.rows[90][0], "Mars");
    std::set<std::string> titles;
    for (const TextGrid::Section &section : grid.sections) {
        titles.insert(section.title);
    }
    EXPECT_EQ(titles.size(), 81U);
}

TEST_F(DasaFormsTest, LordsInSanskrit) {
    state_.preferences.Language = "Sanskrit";
    LoadNamesForLanguage(state_);
    Fill();
    EXPECT_EQ(form_.Lab_DasaBalanceV, "Dasa Balance at Birth :Dasa  Surya 2-0- 17");
    EXPECT_EQ(state_.DasaBalanceText, "Surya Dasa  2 Years 0 Months 17 Days ");
    EXPECT_EQ(form_.mshBukti.rows.front()[0], "Budha Dasa");
    EXPECT_EQ(form_.mshAntra.sections.back().title, "Sukra Dasa, Ketu Bhukthi");
    EXPECT_EQ(Stored().front()[2], "Budha");
}

TEST_F(DasaFormsTest, AFailingInsertAddsNothing) {
    connection_.Execute(
        "create trigger full before insert on tempBhukthi "
        "when (select count(*) from tempBhukthi) >= 5 begin select raise(abort, 'full'); end");
    EXPECT_THROW(Fill(), store::StoreError);
    EXPECT_TRUE(Stored().empty());
    EXPECT_TRUE(form_.mshAntra.rows.empty());
}

TEST_F(DasaFormsTest, ABirthBeforeTheOriginOfTheDayCount) {
    state_.positions.BirthMomentDate = MomentOf({1869, 10, 2}, {7, 12, 0});
    Fill();
    EXPECT_EQ(form_.mshDasa.rows.front()[1], "02/Oct/1869");
    ExpectContiguous(form_.mshDasa, "02/Oct/1869");
    ExpectContiguous(form_.mshBukti, "02/Oct/1869");
    ExpectContiguous(form_.mshAntra, "02/Oct/1869");
    EXPECT_EQ(form_.mshAntra.rows.back()[2], "12/Jan/1988") << "43200 days after birth";
}

} // namespace
} // namespace kelvaro
