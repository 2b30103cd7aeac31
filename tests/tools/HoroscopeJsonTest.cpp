// Runs the tool HOROSCOPE_JSON on streams of births.

#include "tests/system/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using nlohmann::json;
using namespace std::string_literals;

/// Two days after the program's own sample, whose Moon stands in a star that leaves one result as the star
/// asked before it had it.
json Sample() {
    return json::parse(
        R"birth({"ChartName": "Velnesh", "BirthGender": "Male", "BirthDay": "16", "BirthMonth": "Jul",
        "BirthYear": "1965", "BirthHour": "14", "BirthMinute": "15", "BirthCity": "Hyderabad (A.P)",
        "BirthCountry": "India", "LatDeg": 17, "LatMin": 20, "LatNS": "N", "LonDeg": 78, "LonMin": 30, "LonEW": "E",
        "TimeDiff": 5.5, "TimeDiffEW": "E"})birth");
}

json SampleWith(const json &changes) {
    json birth = Sample();
    birth.update(changes);
    return birth;
}

/// The answers, line by line, to a stream given byte for byte. A line without an end does not hold up the
/// tests.
std::vector<std::string> AnswerLines(const std::string &births, const std::string &options = "") {
    const kelvaro::TemporaryFolder folder;
    std::ofstream(folder / "births", std::ios::binary) << births;
    const int status = kelvaro::Run(HOROSCOPE_JSON, options, {folder / "births", folder / "answers", {}});
    std::ifstream answers(folder / "answers", std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(answers, line);) {
        lines.push_back(line);
    }
    answers.close();
    if (status != 0) {
        throw std::runtime_error("the tool ended with status " + std::to_string(status));
    }
    return lines;
}

std::vector<json> Answers(const std::vector<json> &births) {
    std::string stream;
    for (const json &birth : births) {
        stream += birth.dump() + '\n';
    }
    std::vector<json> answers;
    for (const std::string &line : AnswerLines(stream)) {
        answers.push_back(json::parse(line));
    }
    return answers;
}

TEST(HoroscopeJson, GivesTheChartOfEachStyle) {
    for (const char *style : {"South", "East", "North"}) {
        SCOPED_TRACE(style);
        const json answer = Answers({SampleWith({{"ChartStyle", style}})}).at(0);
        const json &state = answer.at("HoroscopeState");
        const json &chart = answer.at("frm_rasi");
        EXPECT_EQ(answer.at("frm_Navamsa").at("cells").size(), 12U);
        ASSERT_EQ(chart.at("cells").size(), 12U);
        const bool isNorth = style == "North"s;
        const std::size_t lagna = state.at("LagnaRasi");
        EXPECT_EQ(chart.at("Lab_NHouseNo").at(0), isNorth ? std::to_string(lagna) : "");
        const std::string cell = chart.at("cells").at(isNorth ? 0 : lagna - 1);
        EXPECT_TRUE(cell.starts_with("Asc")) << cell;
    }
}

TEST(HoroscopeJson, RefusesBadLinesAndGoesOn) {
    struct BadLine {
        std::string line;
        const char *cause;
    };
    const auto without = [](const char *key) {
        json birth = Sample();
        birth.erase(key);
        return birth.dump();
    };
    const auto with = [](const char *key, const json &value) { return SampleWith({{key, value}}).dump(); };
    const std::vector<BadLine> badLines{
        {"", "empty"},
        {"born on a Monday", "no JSON"},
        {Sample().dump() + "}", "no JSON"},
        {"{\"ChartName\": \"\xff\xfe\"}", "no JSON"},
        {std::string(100000, '['), "no JSON"},
        {std::string(3000000, 'x'), "The line is longer than 1 MB"},
        {"{\"ChartName\": \"" + std::string(1 << 20, 'x') + "\"}", "The line is longer than 1 MB"},
        {R"({"LatDeg": 1e999})", "no JSON"},
        {R"(["BirthDay", 14])", "no JSON object"},
        {without("BirthDay"), "BirthDay is missing"},
        {without("TimeDiff"), "TimeDiff is missing"},
        {with("ChartName", 5), "ChartName must be a text"},
        {with("Ayanamsa", nullptr), "Ayanamsa must be a text"},
        {with("BirthCity", std::string(256, 'x')), "BirthCity must have at most 255 characters"},
        {SampleWith({{"Ayanamsa", "Custom"}, {"CustomYear", 2004}}).dump(), "a zero year from 0 to 2003"},
        {SampleWith({{"Ayanamsa", "Custom"}, {"CustomProgress", 1e10}}).dump(),
         "a progression from 0 to 1000"},
        {with("BirthDay", 0), "BirthDay must be a whole number from 1 to 31"},
        {with("BirthDay", 14.5), "BirthDay must be"},
        {with("BirthDay", "99999999999"), "BirthDay must be"},
        {with("BirthMonth", "Thermidor"), "BirthMonth must be"},
        {with("BirthYear", 99), "BirthYear must be a whole number from 100 to 9999"},
        {with("BirthYear", 10000), "BirthYear must be"},
        {SampleWith({{"BirthDay", 29}, {"BirthMonth", "Feb"}, {"BirthYear", 1900}}).dump(),
         "no date: 29/Feb/1900"},
        {with("BirthHour", 24), "BirthHour must be"},
        {with("BirthMinute", "60"), "BirthMinute must be"},
        {with("LatDeg", 90.5), "LatDeg must be a number from 0 to 90"},
        {with("LatMin", 60), "LatMin must be a number from 0 to below 60"},
        {with("LatDeg", 90), "LatDeg and LatMin together"},
        {with("LatNS", "n"), R"(LatNS must be "N" or "S")"},
        {with("LonDeg", 181), "LonDeg must be"},
        {with("LonDeg", 180), "LonDeg and LonMin together"},
        {with("LonMin", true), "LonMin must be"},
        {with("TimeDiff", 24.1), "TimeDiff must be a number from 0 to 24"},
        {with("TimeDiffEW", "N"), "TimeDiffEW must be"},
        {with("DayInYear", "long"), "DayInYear must be a number"},
        // A valid birth, but the run takes its next sunrise from a date beyond the calendar.
        {SampleWith({{"BirthDay", 31}, {"BirthMonth", 12}, {"BirthYear", 9999}}).dump(), "Rasi positions: "},
    };
    std::string stream = Sample().dump();
    for (const BadLine &bad : badLines) {
        stream += '\n' + bad.line + '\n' + Sample().dump();
    }
    const auto answers = AnswerLines(stream);
    ASSERT_EQ(answers.size(), 2 * badLines.size() + 1);
    EXPECT_TRUE(json::parse(answers[0]).contains("HoroscopeState"));
    for (std::size_t i = 0; i < badLines.size(); ++i) {
        const json answer = json::parse(answers[2 * i + 1]);
        ASSERT_TRUE(answer.contains("error")) << badLines[i].line.substr(0, 500);
        EXPECT_NE(answer.at("error").get<std::string>().find(badLines[i].cause), std::string::npos)
            << answer.at("error") << " for " << badLines[i].line.substr(0, 500);
        EXPECT_EQ(answers[2 * i + 2], answers[0]);
    }
}

TEST(HoroscopeJson, ReadsOneBirthInManyForms) {
    const std::vector<json> sameBirths{
        Sample(),
        SampleWith({{"BirthDay", 16}, {"BirthMonth", 7}, {"BirthYear", 1965.0}, {"BirthHour", 14}}),
        SampleWith(
            {{"BirthDay", "016"}, {"BirthMonth", "july"}, {"BirthYear", " 1965 "}, {"BirthMonth", "07"}}),
        SampleWith({{"LatDeg", "17"}, {"LatMin", "20.0"}, {"LonDeg", "7.8e1"}, {"TimeDiff", "5.5"}}),
        SampleWith(
            {{"ChartName", ""}, {"Religion", {1, 2}}, {"Ayanamsa", "Lahiri"}, {"DayInYear", "365.25"}}),
    };
    const auto answers = Answers(sameBirths);
    ASSERT_EQ(answers.size(), sameBirths.size());
    for (std::size_t i = 1; i < answers.size(); ++i) {
        // The summary shows some texts as they were entered.
        EXPECT_EQ(answers[i].at("HoroscopeState"), answers[0].at("HoroscopeState")) << sameBirths[i];
    }
}

TEST(HoroscopeJson, TakesMissingPreferencesFromTheDefaults) {
    const json preferences{{"Ayanamsa", "Custom"},
                           {"CustomYear", 400},
                           {"CustomProgress", 50},
                           {"PreferLanguage", "Sanskrit"},
                           {"ChartStyle", "North"}};
    const auto answers = Answers({Sample(), SampleWith(preferences), Sample()});
    ASSERT_EQ(answers.size(), 3U);
    EXPECT_NE(answers[1].at("HoroscopeState").at("Ayanamsa"), answers[0].at("HoroscopeState").at("Ayanamsa"));
    EXPECT_EQ(answers[1].at("HoroscopeState").at("RasiNames").at(0), "Mesha");
    EXPECT_EQ(answers[2], answers[0]);
}

TEST(HoroscopeJson, RunsUnknownPreferenceWordsOnTheStateAsItStands) {
    const auto answers =
        Answers({SampleWith({{"Ayanamsa", "Raman"}, {"PreferLanguage", "Sanskrit"}}),
                 SampleWith({{"Ayanamsa", "Fagan"}, {"PreferLanguage", "Telugu"}, {"ChartStyle", "West"}})});
    ASSERT_EQ(answers.size(), 2U);
    EXPECT_EQ(answers[1].at("HoroscopeState"), answers[0].at("HoroscopeState"));
    EXPECT_EQ(answers[1].at("frm_rasi").at("cells"), json(std::vector<std::string>(12)));
}

TEST(HoroscopeJson, KeepsEveryDigit) {
    const json state = Answers({SampleWith({{"BirthMinute", 59}})}).at(0).at("HoroscopeState");
    EXPECT_EQ(state.at("BirthMomentDate").get<double>(), 23939 + (14 * 60 + 59) / 1440.0);
}

TEST(HoroscopeJson, AnswersNothingToAnEmptyStream) {
    EXPECT_TRUE(AnswerLines("").empty());
    EXPECT_EQ(AnswerLines(Sample().dump() + "\n").size(), 1U);
    EXPECT_EQ(AnswerLines(Sample().dump() + "\r\n\n").size(), 2U);
}

TEST(HoroscopeJson, SaysThatItsInputCannotBeRead) {
    if (!kelvaro::TakesFoldersAsInput()) {
        GTEST_SKIP() << "no folder is handed on as a file here";
    }
    const kelvaro::TemporaryFolder folder;
    EXPECT_NE(kelvaro::Run(HOROSCOPE_JSON, "", {"/", folder / "answers", folder / "words"}), 0);
    std::ifstream file(folder / "words");
    std::string words;
    std::getline(file, words);
    EXPECT_EQ(words, "horoscope-json: the births could not be read: Is a directory");
}

TEST(HoroscopeJson, WritesTheReportWhenAsked) {
    const auto plain = json::parse(AnswerLines(Sample().dump()).at(0));
    auto answer = json::parse(AnswerLines(Sample().dump(), "--report").at(0));
    const std::string report = answer.at("report");
    EXPECT_NE(report.find("     Name                  : Velnesh\r\n"), std::string::npos);
    EXPECT_NE(report.find("\r\nAntra\r\n=====\r\n"), std::string::npos);
    answer.erase("report");
    EXPECT_EQ(answer, plain);
    EXPECT_THROW(AnswerLines("", "--raport"), std::runtime_error);
}

/// Either one error in words or a horoscope in which every number is one.
bool IsAnAnswer(const json &answer) {
    if (answer.contains("error")) {
        return answer.size() == 1 && !answer.at("error").get_ref<const std::string &>().empty();
    }
    const json results = answer.at("HoroscopeState").flatten();
    return std::none_of(results.begin(), results.end(), [](const json &result) { return result.is_null(); });
}

/// A birth with a value out of place and, mostly, some bytes changed. No line feed comes in, which would make
/// two lines of one.
std::string Mutated(std::minstd_rand &random) {
    static const json strangers = json::parse(
        R"([null, true, [], {}, [[[[]]]], "", " ", -1, 1e308, 4.9e-324, 89.99999999999999, 9999, "1e308"])");
    json birth = SampleWith({{"Ayanamsa", "Custom"}, {"CustomYear", 400}, {"CustomProgress", 50.3}});
    auto changed = birth.begin();
    std::advance(changed, random() % birth.size());
    *changed = strangers[random() % strangers.size()];
    std::string line = birth.dump();
    for (std::size_t count = random() % 4; count > 0; --count) {
        const auto byte = static_cast<char>(random());
        line[random() % line.size()] = byte == '\n' ? ' ' : byte;
    }
    return line;
}

// The readers of births are fuzzed besides; here the whole tool must keep to one answer a line.
TEST(HoroscopeJson, ChecksTheClocksOfBirthplaces) {
    const json chicago{{"BirthCity", "Chicago"}, {"BirthCountry", "United States"},
                       {"BirthDay", 4},          {"BirthYear", 1990},
                       {"TimeDiff", 6},          {"TimeDiffEW", "W"}};
    std::string births = SampleWith(chicago).dump() + '\n';
    births += Sample().dump() + "\nno birth\n" + SampleWith({{"BirthCity", "Chicago"}}).dump() + '\n';
    const auto answers = AnswerLines(births, "--check-zones");
    ASSERT_EQ(answers.size(), 4U);
    EXPECT_EQ(answers[0],
              R"({"zone":"America/Chicago","clock":-5.0,"summer":true,"stated":-6.0,"agrees":false,)"
              R"("once":true,"sure":true})");
    EXPECT_EQ(answers[1], R"({"zone":"Asia/Kolkata","clock":5.5,"summer":false,"stated":5.5,"agrees":true,)"
                          R"("once":true,"sure":false})");
    EXPECT_TRUE(answers[2].starts_with(R"({"error":"The line is no JSON)"));
    EXPECT_EQ(answers[3], R"({"error":"There is no city Chicago"})");
}

TEST(HoroscopeJson, GivesEachMutatedBirthOneAnswer) {
    constexpr std::size_t lineCount = 3000;
    std::minstd_rand random(11); // NOLINT(cert-msc51-cpp): a failure can be repeated
    std::string stream;
    for (std::size_t i = 0; i < lineCount; ++i) {
        stream += Mutated(random) + '\n';
    }
    const auto lines = AnswerLines(stream);
    ASSERT_EQ(lines.size(), lineCount);
    std::size_t horoscopes = 0;
    for (const std::string &line : lines) {
        const json answer = json::parse(line, nullptr, false);
        ASSERT_TRUE(!answer.is_discarded() && IsAnAnswer(answer)) << line;
        horoscopes += answer.contains("error") ? 0U : 1U;
    }
    EXPECT_GT(horoscopes, lineCount / 100) << "hardly a line got past the reader";
}

/// Numbers within what two orders of arithmetic may differ by, all else to the letter.
void ExpectSame(const json &found, const json &expected, const std::string &where) {
    if (expected.is_number()) {
        EXPECT_NEAR(found.get<double>(), expected.get<double>(), 1e-9) << where;
    } else if (expected.is_array()) {
        ASSERT_EQ(found.size(), expected.size()) << where;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            ExpectSame(found.at(i), expected.at(i), where + '[' + std::to_string(i) + ']');
        }
    } else if (expected.is_object()) {
        for (const auto &[key, value] : expected.items()) {
            ExpectSame(found.at(key), value, where + '.' + key);
        }
    } else {
        EXPECT_EQ(found, expected) << where;
    }
}

// Every cell of three horoscopes as a second program reckoned them, which was written from the theory alone:
// the sample birth; Buenos Aires in 1987, west of Greenwich and south of the equator, with years of 360 days;
// London in 1894, with unequal houses, before the origin of moments.
TEST(HoroscopeJson, AgreesWithASecondReckoningCellByCell) {
    std::ifstream file(THREE_HOROSCOPES);
    std::vector<json> births;
    std::vector<json> expected;
    for (std::string line; std::getline(file, line);) {
        births.push_back(json::parse(line).at("birth"));
        expected.push_back(json::parse(line).at("expected"));
    }
    ASSERT_EQ(births.size(), 3U);
    const auto answers = Answers(births);
    for (std::size_t i = 0; i < births.size(); ++i) {
        ExpectSame(answers.at(i), expected.at(i), births.at(i).at("ChartName"));
    }
}

} // namespace
