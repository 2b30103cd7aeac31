#include "panchanga/almanac/clsTimeDisplay.h"

#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

namespace kelvaro {

namespace {

constexpr std::uint32_t parchment = 0xE6D9BD;
constexpr std::uint32_t brown = 0x54341E;

} // namespace

void clsTimeDisplay::DisplayTime() {
    const double day = Sunsettime.Timeline() - Sunrisetime.Timeline();
    if (!(day > 0)) {
        throw ArithmeticError("A day whose sunset is not after its sunrise has no scale");
    }
    const auto units = [day](double days) { return ToInt32(days / day * scaleWidth); };
    const std::int32_t left = units(TimeStart.Timeline() - Sunrisetime.Timeline());
    const std::int32_t width = units(TimeEnd.Timeline() - TimeStart.Timeline());
    TimeCaption = TimingText(TimeStart) + " to " + TimingText(TimeEnd);
    TimeLeft = left;
    TimeWidth = width;
    const bool isByDay = TimeStart >= Sunrisetime && TimeStart < Sunsettime;
    TimeBackColor = isByDay ? parchment : brown;
    TimeForeColor = isByDay ? brown : parchment;
}

} // namespace kelvaro
