// Any text, read as a moment and as a month: it is refused in words, or what was read makes sense.

#include "fuzz/Require.h"
#include "runtime/MomentText.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

using namespace kelvaro;

/// A moment that was read comes back from its own texts.
void TryMoment(std::string_view text) {
    const Moment moment = ReadMoment(text);
    const CivilMoment parts = Split(moment);
    const Moment minute = MomentOf(parts.date, {parts.clock.hour, parts.clock.minute, 0});
    Require(ReadMoment(MomentText(moment)) == minute, "the text with numbers gives the minute back");
    Require(ReadMoment(MonthNameMomentText(moment)) == minute, "the text with a name gives the minute back");
    Require(ReadMoment(DateText(moment) + " " + TimingText(moment)) == moment, "no second is lost");
}

void TryMonth(std::string_view text) {
    const int month = ReadMonth(text);
    Require(month >= 1 && month <= 12, "a month is one of twelve");
}

} // namespace

// NOLINTNEXTLINE(misc-use-internal-linkage): the fuzzer calls it by this name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    MayRefuse([text] { TryMoment(text); });
    MayRefuse([text] { TryMonth(text); });
    return 0;
}
