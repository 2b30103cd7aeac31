#include "clock/ZoneRecords.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <sstream>

namespace kelvaro {

namespace {

using std::chrono::seconds;
using std::chrono::sys_seconds;

constexpr std::string_view fileMark = "TZif";
constexpr std::size_t widthOfTime = 8;
constexpr std::size_t widthOfOldTime = 4;
/// Far enough that no date with an offset is beyond, and no sum of both overflows.
constexpr sys_seconds latest{seconds{std::int64_t{1} << 56}};
constexpr sys_seconds earliest{-latest.time_since_epoch()};

/// Takes one thing after another from the bytes of a file; behind its end there are zeros.
class Reader {
public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}

    std::string_view Take(std::size_t count) {
        isComplete_ = isComplete_ && count <= bytes_.size();
        const std::string_view taken = bytes_.substr(0, count);
        bytes_.remove_prefix(taken.size());
        return taken;
    }

    std::uint8_t Byte() {
        const std::string_view byte = Take(1);
        return byte.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(byte.front());
    }

    /// The most significant byte comes first.
    std::int64_t Number(std::size_t width) {
        std::uint64_t number = 0;
        for (std::size_t i = 0; i < width; ++i) {
            number = number << 8U | Byte();
        }
        return width == widthOfTime ? static_cast<std::int64_t>(number)
                                    : static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
    }

    std::size_t Count() {
        constexpr std::size_t width = 4;
        const std::int64_t count = Number(width);
        isComplete_ = isComplete_ && count >= 0 && static_cast<std::uint64_t>(count) <= bytes_.size();
        return isComplete_ ? static_cast<std::size_t>(count) : 0;
    }

    bool IsComplete() const { return isComplete_; }
    std::string_view Rest() const { return bytes_; }

private:
    std::string_view bytes_;
    bool isComplete_ = true;
};

struct Header {
    char version = '\0';
    std::size_t greenwichMarks = 0, standardMarks = 0, leapSeconds = 0, changes = 0, kinds = 0, letters = 0;
};

std::optional<Header> ReadHeader(Reader &reader) {
    constexpr std::size_t reserved = 15;
    if (reader.Take(fileMark.size()) != fileMark) {
        return std::nullopt;
    }
    Header header;
    header.version = static_cast<char>(reader.Byte());
    reader.Take(reserved);
    for (std::size_t *count : {&header.greenwichMarks, &header.standardMarks, &header.leapSeconds,
                               &header.changes, &header.kinds, &header.letters}) {
        *count = reader.Count();
    }
    return reader.IsComplete() ? std::optional(header) : std::nullopt;
}

/// How clocks stand in some of the periods.
struct Kind {
    seconds fromGreenwich{0};
    bool isMarked = false;
    std::size_t abbreviation = 0; ///< where it begins among the letters

    ZonePeriod From(sys_seconds begin, std::string_view letters) const {
        const std::string_view rest = letters.substr(abbreviation);
        return {begin, latest, fromGreenwich, isMarked, std::string(rest.substr(0, rest.find('\0')))};
    }
};

struct Content {
    std::vector<sys_seconds> changes;
    std::vector<std::size_t> kindsOfChanges;
    std::vector<Kind> kinds;
    std::string_view letters;

    bool IsSound() const {
        const auto kindExists = [this](std::size_t kind) { return kind < kinds.size(); };
        const auto hasLetters = [this](const Kind &kind) { return kind.abbreviation < letters.size(); };
        return !kinds.empty() && std::ranges::is_sorted(changes) &&
               std::ranges::all_of(kindsOfChanges, kindExists) && std::ranges::all_of(kinds, hasLetters);
    }
};

Content ReadContent(const Header &header, Reader &reader) {
    constexpr std::size_t widthOfOffset = 4;
    Content content;
    for (std::size_t i = 0; i < header.changes; ++i) {
        const sys_seconds change{seconds{reader.Number(widthOfTime)}};
        content.changes.push_back(std::clamp(change, earliest, latest));
    }
    for (std::size_t i = 0; i < header.changes; ++i) {
        content.kindsOfChanges.push_back(reader.Byte());
    }
    for (std::size_t i = 0; i < header.kinds; ++i) {
        const seconds fromGreenwich{reader.Number(widthOfOffset)};
        const bool isMarked = reader.Byte() != 0;
        content.kinds.push_back({fromGreenwich, isMarked, reader.Byte()});
    }
    content.letters = reader.Take(header.letters);
    return content;
}

/// A change to what was before, in a list that was meant for other years, is none.
void Add(ZonePeriod period, ZonePeriods &periods) {
    if (!periods.empty()) {
        ZonePeriod &before = periods.back();
        if (before.fromGreenwich == period.fromGreenwich && before.isMarked == period.isMarked &&
            before.abbreviation == period.abbreviation) {
            return;
        }
        before.end = period.begin;
    }
    periods.push_back(std::move(period));
}

ZonePeriods PeriodsIn(const Content &content) {
    ZonePeriods periods;
    if (content.changes.empty() || content.changes.front() > earliest) {
        const auto standard = std::ranges::find(content.kinds, false, &Kind::isMarked);
        const Kind &first = standard == content.kinds.end() ? content.kinds.front() : *standard;
        Add(first.From(earliest, content.letters), periods);
    }
    for (std::size_t i = 0; i < content.changes.size(); ++i) {
        const Kind &kind = content.kinds[content.kindsOfChanges[i]];
        Add(kind.From(content.changes[i], content.letters), periods);
    }
    return periods;
}

/// Whether a file lists all changes of the years that clocks are told of. One of the slim form leaves them to
/// the rule in its last line, which has commas and is not read.
bool ListsAllChanges(const Content &content, std::string_view lastLine) {
    constexpr sys_seconds lastYear = std::chrono::sys_days{std::chrono::year{lastYearOfClocks} / 1 / 1};
    return lastLine.find(',') == std::string_view::npos ||
           (!content.changes.empty() && content.changes.back() >= lastYear);
}

} // namespace

std::optional<ZonePeriods> ZonePeriodsIn(std::string_view content) {
    constexpr std::size_t widthOfKind = 6;
    constexpr std::size_t widthOfCorrection = 4;
    const auto marksOf = [](const Header &header, std::size_t width) {
        return header.leapSeconds * (width + widthOfCorrection) + header.standardMarks +
               header.greenwichMarks;
    };
    Reader reader(content);
    // The times of 32 bits come first, for programs that know no others.
    const auto old = ReadHeader(reader);
    if (!old || old->version < '2') {
        return std::nullopt;
    }
    reader.Take(old->changes * (widthOfOldTime + 1) + old->kinds * widthOfKind + old->letters +
                marksOf(*old, widthOfOldTime));
    const auto header = ReadHeader(reader);
    if (!header) {
        return std::nullopt;
    }
    const Content found = ReadContent(*header, reader);
    const bool isSound = reader.IsComplete() && found.IsSound();
    reader.Take(marksOf(*header, widthOfTime));
    return isSound && ListsAllChanges(found, reader.Rest()) ? std::optional(PeriodsIn(found)) : std::nullopt;
}

std::optional<ZonePeriods> ReadZonePeriods(const std::filesystem::path &folder, std::string_view zone) {
    std::ifstream file(folder / zone, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return ZonePeriodsIn(content.view());
}

PeriodsOfTime FindPeriods(const ZonePeriods &periods, std::chrono::local_seconds shown) {
    const auto momentIn = [shown](const ZonePeriod &period) {
        return sys_seconds{shown.time_since_epoch() - period.fromGreenwich};
    };
    std::size_t at = 0;
    while (at + 1 < periods.size() && momentIn(periods[at]) >= periods[at].end) {
        ++at;
    }
    if (momentIn(periods[at]) < periods[at].begin) {
        return {at - 1, at, false};
    }
    const bool isShownAgain = at + 1 < periods.size() && momentIn(periods[at + 1]) >= periods[at + 1].begin;
    return {at, isShownAgain ? at + 1 : at, true};
}

} // namespace kelvaro
