#include "panchanga/almanac/clsKarnam.h"

#include "panchanga/clsTithi.h"
#include "runtime/Numbers.h"

namespace kelvaro {

void clsKarnam::FindKarnam() {
    const std::int16_t number = ToInt16(NumberFromText(TithiNo));
    const LunarDay &day = LunarDayOfNumber(number);
    TithiNumber = number;
    KarnamName1 = day.firstKarana;
    KarnamName2 = day.secondKarana;
    KarnamStart1 = TithiStart;
    KarnamEnd1 = Moment::AtTimeline((TithiStart.Timeline() + TithiEnd.Timeline()) / 2);
    KarnamStart2 = KarnamEnd1;
    KarnamEnd2 = TithiEnd;
}

} // namespace kelvaro
