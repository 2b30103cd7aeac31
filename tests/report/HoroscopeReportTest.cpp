#include "report/HoroscopeReport.h"

#include "horoscope/CalculateHoroscope.h"
#include "panchanga/Sign.h"
#include "presentation/ChartCells.h"
#include "presentation/ChartStyles.h"
#include "report/DasaPages.h"
#include "report/ReportFile.h"
#include "report/TextLayout.h"
#include "runtime/RuntimeError.h"
#include "tests/horoscope/HoroscopeFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace kelvaro {

namespace {

std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    for (std::size_t end = text.find(lineEnd); end != std::string_view::npos; end = text.find(lineEnd)) {
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end + lineEnd.size());
    }
    EXPECT_TRUE(text.empty()) << "The last line has no end: " << text;
    return lines;
}

/// The pages of a reference, whose lines end as the files of this repository do.
std::vector<std::string> ReferencePages(const std::string &name) {
    std::ifstream file(std::string(REPORT_REFERENCES "/") + name, std::ios::binary);
    std::string text;
    for (std::string line; std::getline(file, line);) {
        text.append(line).append(lineEnd);
    }
    const auto pages = PagesOf(text);
    return {pages.begin(), pages.end()};
}

/// How many periods the columns of a section show.
std::size_t PeriodsIn(std::span<const std::string_view> pages) {
    std::size_t periods = 0;
    for (const std::string_view page : pages) {
        for (std::size_t at = page.find(" => "); at != std::string_view::npos;
             at = page.find(" => ", at + 1)) {
            ++periods;
        }
    }
    return periods;
}

class HoroscopeReport : public HoroscopeTest {
protected:
    std::string Report(AntraSection antra = AntraSection::Without) {
        CalculateHoroscope(horoscope);
        EXPECT_EQ(display.failure, "");
        return ComposeReport(horoscope.state, horoscope.forms, connection, antra);
    }

    std::vector<std::string> LinesOfPage(std::size_t number) {
        const std::string report = Report();
        return LinesOf(PagesOf(report).at(number - 1));
    }

    /// The lines of the letterhead: what stands below the second rule of the title page.
    std::vector<std::string> OwnerBlock() {
        auto lines = LinesOfPage(1);
        const auto rule = std::find(lines.rbegin(), lines.rend(), std::string(70, '_'));
        return {rule.base(), lines.end()};
    }
};

// The references were read line by line; pages 2 and 3 are all that the style changes.
TEST_F(HoroscopeReport, IsTheReferenceInEveryStyleAndLanguage) {
    struct Edition {
        const char *style, *language, *whole, *chartPages;
        AntraSection antra;
    };
    const std::vector<Edition> editions{
        {"South", "English", "English.txt", nullptr, AntraSection::With},
        {"East", "English", "English.txt", "EnglishEast.txt", AntraSection::With},
        {"North", "English", "English.txt", "EnglishNorth.txt", AntraSection::With},
        {"South", "Sanskrit", "Sanskrit.txt", nullptr, AntraSection::Without},
        {"East", "Sanskrit", "Sanskrit.txt", "SanskritEast.txt", AntraSection::Without},
        {"North", "Sanskrit", "Sanskrit.txt", "SanskritNorth.txt", AntraSection::Without},
    };
    for (const Edition &edition : editions) {
        SCOPED_TRACE(std::string(edition.style) + " " + edition.language);
        horoscope.state.preferences.ChartStyle = edition.style;
        horoscope.state.preferences.Language = edition.language;
        const std::string report = Report(edition.antra);
        const auto pages = PagesOf(report);
        auto expected = ReferencePages(edition.whole);
        if (edition.chartPages != nullptr) {
            const auto chartPages = ReferencePages(edition.chartPages);
            ASSERT_EQ(chartPages.size(), 2U);
            std::copy(chartPages.begin(), chartPages.end(), expected.begin() + 1);
        }
        ASSERT_EQ(pages.size(), expected.size());
        for (std::size_t i = 0; i < pages.size(); ++i) {
            EXPECT_EQ(pages[i], expected[i]) << "page " << i + 1;
        }
    }
}

TEST_F(HoroscopeReport, KeepsLinesPagesAndPeriodsWholeForAnyBirth) {
    const std::array<const char *, 3> styles{"South", "East", "North"};
    for (int birth = 0; birth < 30; ++birth) {
        // From 1800 to 2090, the Moon in stars of all lords.
        SetBirth(DateAdd(Interval::Minute, birth * 997 % 1440,
                         DateAdd(Interval::Day, birth * 3653, MomentOf({1800, 2, 1}))));
        horoscope.state.preferences.ChartStyle = styles.at(static_cast<std::size_t>(birth % 3));
        horoscope.state.preferences.Language = birth % 2 == 0 ? "English" : "Sanskrit";
        const std::string report = Report(AntraSection::With);
        const std::string without =
            ComposeReport(horoscope.state, horoscope.forms, connection, AntraSection::Without);
        const auto pages = PagesOf(report);
        ASSERT_EQ(pages.size(), 15U);
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const auto lines = LinesOf(pages[i]);
            EXPECT_LE(lines.size(), 70U);
            for (const std::string &line : lines) {
                EXPECT_LE(CharacterCount(line), pageWidth) << line;
            }
            if (i > 0) {
                EXPECT_EQ(lines.front(), std::string(38, ' ') + "www.kelvaro.example - Horoscope  Page " +
                                             std::to_string(i + 1));
            }
        }
        // The bhuktis of a life stay on page 6: printed without antras, the report ends there.
        EXPECT_EQ(PagesOf(without).size(), 6U);
        EXPECT_TRUE(report.starts_with(without));
        const DasaForm &dasa = horoscope.forms.Frm_Dasa;
        const std::span all(pages);
        EXPECT_EQ(PeriodsIn(all.subspan(5, 1)), dasa.mshBukti.rows.size());
        EXPECT_EQ(PeriodsIn(all.subspan(6)), dasa.mshAntra.rows.size());
    }
}

TEST_F(HoroscopeReport, JoinsTheFieldsOfTheLetterhead) {
    const std::vector<std::tuple<std::string, std::vector<std::string>>> cases{
        {"'A. Rao','12 Temple Road','Fort','Hyderabad','India','500001','040 123','rao@kelvaro.example'",
         {"     A. Rao", "     12 Temple Road, Fort", "     Hyderabad - 500001, India, Phone : 040 123",
          "     E-Mail : rao@kelvaro.example"}},
        {"'  A. Rao ','','Fort','','','','040 123',NULL",
         {"     A. Rao", "     Fort", "     Phone : 040 123"}},
        {"'','','','','','','',''", {}},
    };
    EXPECT_TRUE(OwnerBlock().empty());
    for (const auto &[values, expected] : cases) {
        connection.Execute("delete from PersonalDetails");
        connection.Execute(
            "insert into PersonalDetails(Name,Address,Address2,City,Country,Zipcode,Phone,EMail) "
            "values (" +
            values + ")");
        EXPECT_EQ(OwnerBlock(), expected) << values;
    }
}

TEST_F(HoroscopeReport, ContinuesLongTextsUnderThemselves) {
    std::string name; // 100 characters of two bytes
    for (int i = 0; i < 100; ++i) {
        name += "\xc3\xa9";
    }
    horoscope.state.birth.ChartName = name;
    horoscope.state.birth.BirthCity = "Old\r\nTown\f";
    const auto lines = LinesOfPage(1);
    const auto first =
        std::find(lines.begin(), lines.end(), "     Name                  : " + name.substr(0, 102));
    ASSERT_NE(first, lines.end());
    EXPECT_EQ(*(first + 1), std::string(29, ' ') + name.substr(102));
    EXPECT_EQ(*(first + 2), "     Sex                   : Male");
    EXPECT_NE(std::find(lines.begin(), lines.end(), "     Birth City            : Old  Town"), lines.end());
}

TEST_F(HoroscopeReport, NoTextDrivesAnotherOffTheTitlePage) {
    connection.Execute(
        "insert into PersonalDetails(Name,Address,Address2,City,Country,Zipcode,Phone,EMail) values "
        "('" +
        std::string(300, 'N') + "','','','','','','','rao@kelvaro.example')");
    std::string name;
    while (name.size() < 1000000) {
        name += "Raghavendra ";
    }
    horoscope.state.birth.ChartName = "Sri " + std::string(60, 'x') + " " + name;
    horoscope.state.birth.BirthGender = horoscope.state.birth.BirthCity = name;
    const auto lines = LinesOfPage(1);
    EXPECT_LE(lines.size(), 70U);
    const auto first = std::ranges::find(lines, "     Name                  : Sri");
    ASSERT_NE(first, lines.end());
    EXPECT_EQ(*(first + 1), std::string(29, ' ') + std::string(51, 'x'));
    EXPECT_EQ(*(first + 2), std::string(29, ' ') + "xxxxxxxxx Raghavendra Raghavendra Raghavendra");
    for (const char *line :
         {"     Sex                   : Raghavendra Raghavendra Raghavendra Raghavendra ...",
          "     Birth City            : Raghavendra Raghavendra Raghavendra Raghavendra ...",
          "     Karnam                : Kaulava", "     E-Mail : rao@kelvaro.example"}) {
        EXPECT_NE(std::ranges::find(lines, line), lines.end()) << line;
    }
}

TEST_F(HoroscopeReport, BreaksThePageBeforeABlockThatIsOneLineTooLong) {
    // Behind eight dasas of nine bhuktis seven lines are left, one of them for the blank line.
    for (const std::size_t last : {std::size_t{9}, std::size_t{11}}) {
        DasaForm form;
        for (std::size_t dasa = 0; dasa < 9; ++dasa) {
            form.dasas.push_back({Body::Sun, "Sun", {}, {}, 0, 0, dasa});
            form.bhuktis.insert(form.bhuktis.end(), dasa == 8 ? last : 9, form.dasas.back());
        }
        ReportPages pages;
        AddBhuktiPages(form, pages);
        const std::string text = std::move(pages).Text();
        const auto parts = PagesOf(text);
        ASSERT_EQ(parts.size(), last == 9 ? 2U : 3U);
        EXPECT_EQ(LinesOf(parts[1]).size(), last == 9 ? 70U : 63U);
        EXPECT_EQ(PeriodsIn(std::span(parts).subspan(parts.size() - 1)), last == 9 ? 81U : last);
    }
}

TEST_F(HoroscopeReport, NamesTheBodiesThatADrawingHasNoRoomFor) {
    struct Case {
        const char *style;
        int bodiesOfSign; ///< from Leo on
        std::vector<std::string> notes;
    };
    const std::vector<Case> cases{
        {"South", 12, {"No room for: Ket Gul Maa in Leo"}},
        // The cut that would show Saturn begins a letter late.
        {"North", 12, {"No room for: Sat Ket Gul Maa in Leo (5)"}},
        {"East", 12, {"No room for: Sun Moo Mar Mer Jup Ven Sat Rah Ket Gul Maa in Leo"}},
        {"East",
         2,
         {"No room for: Sun in Leo; Mar in Virgo; Jup in Libra;",
          "Sat in Scorpio; Ket in Sagitarius; Maa in Capricon"}},
        {"South", 2, {}},
        {"East", 1, {}},
    };
    CalculateHoroscope(horoscope);
    HoroscopeState &state = horoscope.state;
    for (const Case &test : cases) {
        SCOPED_TRACE(test.style);
        state.preferences.ChartStyle = test.style;
        for (const BodyFields &body : bodyFields) {
            const int place = static_cast<int>(body.body) / test.bodiesOfSign;
            state.positions.*body.rasi = Sign(5).Plus(place).Number();
        }
        FillRasiChart(state.positions, state.names, ChartStyleOf(test.style), horoscope.forms);
        horoscope.forms.frm_Navamsa = {};
        std::vector<std::string> notes;
        const std::string report = ComposeReport(state, horoscope.forms, connection, AntraSection::Without);
        for (const std::string &line : LinesOf(PagesOf(report).at(1))) {
            if (line.find(" in ") != std::string::npos) {
                notes.push_back(line.substr(line.find_first_not_of(' ')));
            }
        }
        EXPECT_EQ(notes, test.notes);
    }
}

TEST_F(HoroscopeReport, LeavesAbijitOutWhereTheStarHasNoRoom) {
    CalculateHoroscope(horoscope);
    horoscope.forms.Frm_PP.mshNirayana.rows.at(0).at(4) = "Shravana - Abijit";
    horoscope.forms.frm_CBhava.bhava_features.rows.at(0).at(4) = "Uttarashada - Abijit";
    const std::string report =
        ComposeReport(horoscope.state, horoscope.forms, connection, AntraSection::Without);
    EXPECT_NE(report.find("\nAsc 25.14.50     Lib  Shravana    2 Jupiter Mercury --      ----\r"),
              std::string::npos);
    EXPECT_NE(report.find("\n1  205.14.50 Libra      Venus   Uttarashada - Abijit 2 Jupiter Mercury\r"),
              std::string::npos);
}

TEST_F(HoroscopeReport, NamesTheHouseSystem) {
    horoscope.state.preferences.BhavaSystem = "Not Equal"; // the references have the other one
    const auto lines = LinesOfPage(3);
    EXPECT_NE(std::ranges::find(lines, "Bhava Positions  (Placidius Semi-Arc System)"), lines.end());
}

TEST_F(HoroscopeReport, LeavesOutWhatWasNeverFilled) {
    horoscope.state.preferences.ChartStyle = "West";
    EXPECT_EQ(Report().find('*', 0), Report().find("* Rah *")); // no drawing before the Ashtakavarga
    horoscope.forms = {};
    for (const char *style : {"South", "East", "North"}) {
        horoscope.state.preferences.ChartStyle = style;
        const std::string empty =
            ComposeReport(horoscope.state, horoscope.forms, connection, AntraSection::With);
        EXPECT_EQ(PagesOf(empty).size(), 7U) << style;
    }
    connection.Close();
    EXPECT_THROW(ComposeReport(horoscope.state, horoscope.forms, connection, AntraSection::With),
                 store::StoreError);
}

} // namespace

} // namespace kelvaro
