// Feeds the tool HOROSCOPE_JSON with mutated births: each line gets one answer, whatever stands in it.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace {

using nlohmann::json;

constexpr int lineCount = 30'000;

constexpr std::array<std::string_view, 20> keys{
    "ChartName",  "BirthGender", "BirthDay",  "BirthMonth", "BirthYear",      "BirthHour",     "BirthMinute",
    "LatDeg",     "LatMin",      "LatNS",     "LonDeg",     "LonMin",         "LonEW",         "TimeDiff",
    "TimeDiffEW", "Ayanamsa",    "DayInYear", "CustomYear", "CustomProgress", "PreferLanguage"};

constexpr std::array<std::string_view, 20> values{
    "\"Velnesh\"", "\"Male\"",   "14",     "\"Jul\"", "1965", "\"14\"",      "15",
    "17",          "20.5",       "\"N\"",  "78",      "30",   "\"E\"",       "5.5",
    "\"E\"",       "\"Custom\"", "365.25", "400",     "50.3", "\"Sanskrit\""};

/// Values that are out of place at most keys, and those that are in place at some and reach far.
constexpr std::array<std::string_view, 27> strangers{"null",
                                                     "true",
                                                     "[]",
                                                     "{}",
                                                     "[[[[[[]]]]]]",
                                                     "{\"BirthDay\": 14}",
                                                     "\"\"",
                                                     "\" \"",
                                                     "-1",
                                                     "-0",
                                                     "0",
                                                     "1e308",
                                                     "-1.7976931348623157e308",
                                                     "4.9e-324",
                                                     "1e999",
                                                     "9999",
                                                     "100",
                                                     "89.99999999999999",
                                                     "179.5",
                                                     "0.1e1",
                                                     "18446744073709551616",
                                                     "\"1e308\"",
                                                     "\"\\u0000\"",
                                                     "\"\\ud800\"",
                                                     "\"\xff\"",
                                                     "\"29\"",
                                                     "\"Feb\""};

class Mutator {
public:
    /// Nearly all lines are refused: a horoscope takes far longer than a refusal.
    std::string Line() {
        std::string line = Birth(1 + Below(3));
        if (Below(25) == 0) {
            return line;
        }
        for (std::size_t count = 1 + Below(4); count > 0; --count) {
            Scratch(line);
        }
        return line;
    }

private:
    std::size_t Below(std::size_t limit) { return random_() % limit; }

    template <typename Table> std::string_view AnyOf(const Table &table) {
        return table[Below(table.size())];
    }

    /// A birth with some strange values.
    std::string Birth(std::size_t strange) {
        auto changed = values;
        for (; strange > 0; --strange) {
            changed[Below(changed.size())] = AnyOf(strangers);
        }
        std::string line = "{";
        for (std::size_t i = 0; i < keys.size(); ++i) {
            line.append(i == 0 ? "\"" : ", \"").append(keys[i]).append("\": ").append(changed[i]);
        }
        return line + "}";
    }

    /// Changes some bytes at one place. No line feed comes in, which would make two lines of one.
    void Scratch(std::string &line) {
        const std::size_t at = Below(line.size() + 1);
        const std::size_t length = std::min(Below(8) + 1, line.size() - at);
        switch (Below(7)) {
        case 0:
            line.erase(at, length);
            break;
        case 1:
            line.resize(at);
            break;
        case 2:
            line.insert(at, line.substr(Below(line.size() + 1)));
            break;
        case 3:
            line.insert(at, AnyOf(strangers));
            break;
        case 4:
            line.insert(at, Below(200) == 0 ? 100'000 : 1, "{[\"\\:,\0\r 9"[Below(10)]);
            break;
        default:
            for (std::size_t i = at; i < at + length; ++i) {
                const auto byte = static_cast<char>(Below(256));
                line[i] = byte == '\n' ? ' ' : byte;
            }
        }
    }

    std::mt19937 random_{11}; // NOLINT(cert-msc51-cpp): a failure can be repeated
};

/// What a file or a pipe gives line by line.
class Answers {
public:
    explicit Answers(const std::string &command) : pipe_(popen(command.c_str(), "r")) {}
    Answers(const Answers &) = delete;
    Answers &operator=(const Answers &) = delete;
    ~Answers() { std::free(line_); }

    /// False at the end.
    bool Next(std::string &line) {
        const auto length = getline(&line_, &capacity_, pipe_);
        if (length < 0) {
            return false;
        }
        line.assign(line_, static_cast<std::size_t>(length));
        return true;
    }

    int Status() { return pclose(pipe_); }

private:
    FILE *pipe_;
    char *line_ = nullptr;
    std::size_t capacity_ = 0;
};

/// Either one error in words or a horoscope in which every number is one.
bool IsAnAnswer(const json &answer) {
    if (answer.contains("error")) {
        return answer.size() == 1 && !answer.at("error").get_ref<const std::string &>().empty();
    }
    const json results = answer.at("HoroscopeState").flatten();
    return std::none_of(results.begin(), results.end(), [](const json &result) { return result.is_null(); });
}

TEST(MutatedBirths, EachGetsOneAnswer) {
    const std::string births =
        std::filesystem::temp_directory_path() / ("mutated-" + std::to_string(getpid()));
    {
        std::ofstream stream(births, std::ios::binary);
        Mutator mutator;
        for (int i = 0; i < lineCount; ++i) {
            stream << mutator.Line() << '\n';
        }
    }
    // A line without an end must not hold up the tests.
    Answers answers("timeout 300 '" HOROSCOPE_JSON "' < '" + births + "'");
    int answered = 0;
    int horoscopes = 0;
    for (std::string line; answers.Next(line); ++answered) {
        const json answer = json::parse(line, nullptr, false);
        ASSERT_FALSE(answer.is_discarded()) << answered << ": " << line;
        ASSERT_TRUE(IsAnAnswer(answer)) << answered << ": " << line;
        horoscopes += answer.contains("error") ? 0 : 1;
    }
    EXPECT_EQ(answers.Status(), 0);
    std::filesystem::remove(births);
    EXPECT_EQ(answered, lineCount);
    EXPECT_GT(horoscopes, lineCount / 1000) << "hardly a line got past the reader";
}

} // namespace
