#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

/// Makes lines that are nearly births.
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
    static std::vector<std::string> SplitAtBars(std::string_view text) {
        std::vector<std::string> parts(1);
        for (const char letter : text) {
            letter == '|' ? parts.emplace_back() : parts.back() += letter;
        }
        return parts;
    }

    std::size_t Below(std::size_t limit) { return random_() % limit; }

    const std::string &AnyStranger() { return strangers_[Below(strangers_.size())]; }

    /// A birth with some strange values.
    std::string Birth(std::size_t strange) {
        auto changed = values_;
        for (; strange > 0; --strange) {
            changed[Below(changed.size())] = AnyStranger();
        }
        std::string line = "{";
        for (std::size_t i = 0; i < keys_.size(); ++i) {
            line.append(i == 0 ? "\"" : ", \"").append(keys_[i]).append("\": ").append(changed[i]);
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
            line.insert(at, AnyStranger());
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

    std::vector<std::string> keys_ = SplitAtBars(
        "ChartName|BirthGender|BirthDay|BirthMonth|BirthYear|BirthHour|BirthMinute|LatDeg|LatMin|LatNS|"
        "LonDeg|"
        "LonMin|LonEW|TimeDiff|TimeDiffEW|Ayanamsa|DayInYear|CustomYear|CustomProgress|PreferLanguage");
    std::vector<std::string> values_ =
        SplitAtBars(R"("Velnesh"|"Male"|14|"Jul"|1965|"14"|15|17|20.5|"N"|78|30|"E"|5.5|"E"|"Custom"|365.25|)"
                    R"(400|50.3|"Sanskrit")");
    /// Values that are out of place at most keys, and those that are in place at some and reach far.
    std::vector<std::string> strangers_ =
        SplitAtBars(R"(null|true|[]|{}|[[[[[[]]]]]]|{"BirthDay": 14}|""|" "|-1|-0|0|1e308|)"
                    R"(-1.7976931348623157e308|4.9e-324|1e999|9999|100|89.99999999999999|179.5|0.1e1|)"
                    R"(18446744073709551616|"1e308"|"\u0000"|"\ud800"|"29"|"Feb"|)"
                    "\"\xff\"");
    std::mt19937 random_{11}; // NOLINT(cert-msc51-cpp): a failure can be repeated
};
