// Runs the tool HOROSCOPE_PDF on streams of births and reads its pages back with pdftotext. What stands on
// them is held against the grids that HOROSCOPE_JSON tells for the same births.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using Words = std::vector<std::string>;

json Birth(const json &changes = json::object()) {
    json birth = json::parse(
        R"birth({"ChartName": "Velnesh", "BirthGender": "Male", "BirthDay": "14", "BirthMonth": "Jul",
        "BirthYear": "1965", "BirthHour": "14", "BirthMinute": "15", "BirthCity": "Hyderabad (A.P)",
        "BirthCountry": "India", "LatDeg": 17, "LatMin": 20, "LatNS": "N", "LonDeg": 78, "LonMin": 30, "LonEW": "E",
        "TimeDiff": 5.5, "TimeDiffEW": "E"})birth");
    birth.update(changes);
    return birth;
}

std::string LinesOf(const std::vector<json> &births) {
    std::string lines;
    for (const json &birth : births) {
        lines += birth.dump() + '\n';
    }
    return lines;
}

std::string ContentOf(const fs::path &file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

Words WordsOf(const std::string &text) {
    std::istringstream in(text);
    return {std::istream_iterator<std::string>(in), {}};
}

/// Whether the words stand in the text one behind the other.
bool HasInOrder(const Words &text, const Words &words) {
    return std::search(text.begin(), text.end(), words.begin(), words.end()) != text.end();
}

class HoroscopePdfTest : public testing::Test {
protected:
    ~HoroscopePdfTest() override { fs::remove_all(folder_); }

    /// The exit status of a tool on births; what it says lies in "out" and "err".
    int Run(const std::string &tool, const std::string &births) const {
        std::ofstream(folder_ / "births", std::ios::binary) << births;
        const std::string in = " < '" + (folder_ / "births").string();
        return std::system(("timeout 300 " + tool + in + "' > '" + Out() + "' 2> '" + Err() + "'").c_str());
    }

    int WritePdf(const std::string &births, const std::string &options = "") const {
        return Run("'" HOROSCOPE_PDF "' " + options + " '" + Pages().string() + "'", births);
    }

    /// The pages of a document, each in its words.
    std::vector<Words> PagesOf(const fs::path &pdf) const {
        const std::string text = folder_ / "text";
        EXPECT_EQ(std::system(("pdftotext -raw '" + pdf.string() + "' '" + text + "'").c_str()), 0);
        std::istringstream in(ContentOf(text));
        std::vector<Words> pages;
        for (std::string page; std::getline(in, page, '\f');) {
            pages.push_back(WordsOf(page));
        }
        return pages;
    }

    std::vector<fs::path> Documents() const {
        std::vector<fs::path> files;
        if (fs::exists(Pages())) {
            std::copy(fs::directory_iterator(Pages()), {}, std::back_inserter(files));
        }
        std::sort(files.begin(), files.end());
        return files;
    }

    fs::path Pages() const { return folder_ / "pages"; }
    std::string Out() const { return folder_ / "out"; }
    std::string Err() const { return folder_ / "err"; }

    fs::path folder_ = [] {
        std::string name = (fs::temp_directory_path() / "kelvaro-pdf-XXXXXX").string();
        return fs::path(mkdtemp(name.data()));
    }();
};

TEST_F(HoroscopePdfTest, TellsABadLineAndGoesOn) {
    const std::string births =
        Birth({{"LatDeg", 84}, {"BirthDay", 22}, {"BirthMonth", "Oct"}, {"BirthYear", 1997}}).dump() +
        "\nno birth\n" + Birth({{"ChartName", "Anna/Maria: \"A\""}}).dump() + "\n" +
        Birth({{"ChartName", ""}}).dump() + "\n";
    EXPECT_NE(WritePdf(births), 0);
    const std::vector<fs::path> files = Documents();
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files.front().filename(), "0003 Anna_Maria_ _A_.pdf");
    EXPECT_EQ(files.back().filename(), "0004 Horoscope.pdf");
    EXPECT_EQ(ContentOf(Out()), files.front().string() + "\n" + files.back().string() + "\n");
    const std::string errors = ContentOf(Err());
    EXPECT_NE(errors.find("line 2: "), std::string::npos) << errors;
    EXPECT_NE(errors.find("line 1: Rasi positions: The Sun does not"), std::string::npos) << errors;
}

TEST_F(HoroscopePdfTest, MakesWhatItsOptionsAskFor) {
    ASSERT_EQ(WritePdf(LinesOf({Birth()}), "--letter --varga-charts"), 0);
    const fs::path pdf = Documents().at(0);
    EXPECT_EQ(PagesOf(pdf).size(), 8U);
    EXPECT_NE(ContentOf(pdf).find("/MediaBox [0 0 612.000000 792.000000]"), std::string::npos);
}

TEST_F(HoroscopePdfTest, SaysWhatItCannotWrite) {
    std::ofstream(Pages()) << "a file where the folder should be";
    EXPECT_NE(WritePdf(LinesOf({Birth()})), 0);
    EXPECT_FALSE(ContentOf(Err()).empty());
    fs::remove(Pages());
    fs::create_directories(Pages() / "0001 Velnesh.pdf");
    EXPECT_NE(WritePdf(LinesOf({Birth()})), 0);
    EXPECT_NE(ContentOf(Err()).find("line 1: "), std::string::npos);
    EXPECT_NE(Run("'" HOROSCOPE_PDF "' --unknown", ""), 0);
    const std::string run = "'" HOROSCOPE_PDF "' '" + (folder_ / "others").string() + "'";
    EXPECT_NE(std::system((run + " < / 2> '" + Err() + "'").c_str()), 0);
    EXPECT_NE(ContentOf(Err()).find("could not be read"), std::string::npos);
    std::ofstream(folder_ / "births") << LinesOf({Birth({{"ChartStyle", "South Indian"}})});
    const std::string births = (folder_ / "births").string();
    EXPECT_NE(std::system((run + " < '" + births + "' > /dev/full 2> '" + Err() + "'").c_str()), 0);
    EXPECT_NE(ContentOf(Err()).find("could not be told"), std::string::npos);
    EXPECT_NE(ContentOf(Err()).find("line 1: there is no chart style \"South Indian\""), std::string::npos);
}

TEST_F(HoroscopePdfTest, SquaresStandForLettersWithoutAFont) {
    // No fonts but those that come with the program.
    std::ofstream(folder_ / "fonts.conf") << "<?xml version='1.0'?><!DOCTYPE fontconfig SYSTEM 'fonts.dtd'>"
                                             "<fontconfig><cachedir>"
                                          << (folder_ / "cache").string() << "</cachedir></fontconfig>";
    const std::string tool =
        "env FONTCONFIG_FILE='" + (folder_ / "fonts.conf").string() + "' '" HOROSCOPE_PDF "' '";
    const std::string births =
        LinesOf({Birth({{"ChartName", "Devi \u0926\u0947\u0935\u0940"}, {"BirthCity", "\u3e3e"}}), Birth()}) +
        "no birth\n";
    EXPECT_NE(Run(tool + Pages().string() + "'", births), 0);
    const std::vector<fs::path> files = Documents();
    ASSERT_EQ(files.size(), 2U);
    const std::vector<Words> pages = PagesOf(files.front());
    for (std::size_t page = 0; page < pages.size(); ++page) {
        EXPECT_TRUE(
            HasInOrder(pages[page], WordsOf("Devi \u25a1\u25a1 \u00b7 page " + std::to_string(page + 1))));
    }
    const std::string errors = ContentOf(Err());
    EXPECT_TRUE(
        errors.starts_with("horoscope-pdf: line 1: no font of this machine has all letters of \"Devi"));
    EXPECT_NE(errors.find("\nhoroscope-pdf: line 1: no font of this machine has all letters of \"\u3e3e\""),
              std::string::npos);
    EXPECT_EQ(std::ranges::count(errors, '\n'), 3) << errors;
}

/// Births of four centuries in every style, language and house system.
std::vector<json> ManyBirths(std::size_t count) {
    std::mt19937 random(50);
    const auto from = [&random](int first, int last) {
        return std::uniform_int_distribution(first, last)(random);
    };
    const std::array styles{"South", "North", "East"};
    const std::array languages{"English", "Sanskrit"};
    const std::array systems{"Equal", "Not Equal"};
    std::vector<json> births;
    for (std::size_t i = 0; i < count; ++i) {
        births.push_back(Birth({{"BirthDay", from(1, 28)},
                                {"BirthMonth", from(1, 12)},
                                {"BirthYear", from(1700, 2090)},
                                {"BirthHour", from(0, 23)},
                                {"BirthMinute", from(0, 59)},
                                {"LatDeg", from(0, 50)},
                                {"ChartStyle", styles.at(i % styles.size())},
                                {"PreferLanguage", languages.at(i % languages.size())},
                                {"Bhava", systems.at(i / 2 % systems.size())}}));
    }
    return births;
}

/// Expects each row of a grid, all its cells in their order, on the page.
void ExpectRows(const json &rows, const Words &page) {
    EXPECT_FALSE(rows.empty());
    for (const json &row : rows) {
        std::string cells;
        for (const json &cell : row) {
            cells += cell.get<std::string>() + ' ';
        }
        EXPECT_TRUE(HasInOrder(page, WordsOf(cells))) << cells;
    }
}

/// What the pages say of bhuktis and antras, as the report does: the lord and the dates, without the ages.
json PeriodsOf(json rows) {
    const std::string dasa = " Dasa";
    for (json &row : rows) {
        auto lord = row.at(0).get<std::string>();
        if (lord.ends_with(dasa)) {
            lord.resize(lord.size() - dasa.size());
        }
        row = {lord, row.at(1), row.at(2)};
    }
    return rows;
}

/// Expects the bodies of each sign of the divisional charts side by side on the page.
void ExpectVargaCells(const json &rows, const json &shortNames, const Words &page) {
    for (const json &row : rows) {
        std::map<std::string, std::string> cells;
        for (std::size_t body = 0; body + 1 < row.size(); ++body) {
            cells[row.at(body + 1)] += shortNames.at(body).get<std::string>() + ' ';
        }
        for (const auto &[sign, bodies] : cells) {
            EXPECT_TRUE(HasInOrder(page, WordsOf(bodies))) << row.front() << ' ' << sign << ": " << bodies;
        }
    }
}

TEST_F(HoroscopePdfTest, SaysWhatTheGridsSay) {
    const std::vector<json> births = ManyBirths(50);
    ASSERT_EQ(Run("'" HOROSCOPE_JSON "'", LinesOf(births)), 0);
    std::ifstream answers(Out());
    std::vector<json> horoscopes;
    for (std::string line; std::getline(answers, line);) {
        horoscopes.push_back(json::parse(line));
    }
    ASSERT_EQ(WritePdf(LinesOf(births), "--antras --varga-charts"), 0);
    const std::vector<fs::path> files = Documents();
    ASSERT_EQ(files.size(), births.size());
    for (std::size_t i = 0; i < files.size(); ++i) {
        SCOPED_TRACE(births[i].dump());
        const json &horoscope = horoscopes.at(i);
        const std::vector<Words> pages = PagesOf(files[i]);
        ASSERT_GE(pages.size(), 8U);
        for (const auto &[field, text] : horoscope.at("frm_UserDetails").items()) {
            // The clock time stands there as the time of birth, without the date.
            const bool isShown = field != "txtist";
            EXPECT_TRUE(!isShown || HasInOrder(pages[0], WordsOf(text.get<std::string>()))) << field;
        }
        EXPECT_TRUE(HasInOrder(pages[0], WordsOf(horoscope.at("DasaBalanceText").get<std::string>())));
        for (const char *chart : {"frm_rasi", "frm_Navamsa", "frm_BhavaChart"}) {
            const Words &page = pages[chart == std::string("frm_BhavaChart") ? 2 : 1];
            for (const json &cell : horoscope.at(chart).at("cells")) {
                EXPECT_TRUE(HasInOrder(page, WordsOf(cell.get<std::string>()))) << chart << cell;
            }
        }
        ExpectRows(horoscope.at("bhava_features"), pages[2]);
        ExpectRows(horoscope.at("mshNirayana"), pages[3]);
        ExpectRows(horoscope.at("mshAshtaVarga"), pages[3]);
        ExpectRows(horoscope.at("mshVargas"), pages[4]);
        ExpectRows(horoscope.at("mshDasa"), pages[4]);
        Words vargas = pages[5];
        vargas.insert(vargas.end(), pages[6].begin(), pages[6].end());
        ExpectVargaCells(horoscope.at("mshVargas"), horoscope.at("HoroscopeState").at("ShortNames"), vargas);
        Words periods;
        for (std::size_t page = 7; page < pages.size(); ++page) {
            periods.insert(periods.end(), pages[page].begin(), pages[page].end());
        }
        ExpectRows(PeriodsOf(horoscope.at("mshBukti")), periods);
        ExpectRows(PeriodsOf(horoscope.at("mshAntra")), periods);
    }
}

} // namespace
