#include "panchanga/almanac/clsKarnam.h"

#include "panchanga/clsTithi.h"
#include "runtime/Numbers.h"

namespace kelvaro {

void clsKarnam::FindKarnam() {
    const std::int16_t number = ToInt16(NumberFromText(TithiNo));
    const auto [first, second] = KaranasOf(number);
    TithiNumber = number;
    KarnamName1 = first;
    KarnamName2 = second;
    KarnamStart1 = TithiStart;
    KarnamEnd1 = Moment::AtTimeline((TithiStart.Timeline() + TithiEnd.Timeline()) / 2);
    KarnamStart2 = KarnamEnd1;
    KarnamEnd2 = TithiEnd;
}

} // namespace kelvaro
