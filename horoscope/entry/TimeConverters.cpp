#include "horoscope/entry/TimeConverters.h"

#include "horoscope/entry/DateAndTimeTests.h"
#include "panchanga/day/IshtaGhati.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "runtime/Texts.h"

#include <algorithm>

namespace kelvaro {

namespace {

enum class Asked { Clock, Ghatis };

constexpr double highestHour = 24; // as the form of birth details has it
constexpr double highestGhati = 60;
constexpr double highestMinute = 59;

bool IsNoYearOrNoNumber(const BirthFields &fields) {
    try {
        return IsNoYear(fields);
    } catch (const ConversionError &) {
        return true;
    }
}

struct Test {
    bool (*fails)(const BirthFields &, Asked);
    std::string_view message, focus;
};

/// A place that was typed and names no row of its list has not been chosen.
constexpr std::array<Test, 12> tests{{
    {[](const BirthFields &f, Asked) { return IsBlank(f.txt_Date); }, "Enter Date", "txt_Date"},
    {[](const BirthFields &f, Asked) { return IsBlank(f.txt_Month); }, "Enter Month", "txt_Month"},
    {[](const BirthFields &f, Asked) { return IsBlank(f.txt_Year); }, "Enter Year", "txt_Year"},
    {[](const BirthFields &f, Asked) { return IsNoYearOrNoNumber(f); }, "Enter Year Between 1800 and 3000",
     "txt_Year"},
    // With ghatis the date is not tested: one that does not exist is told when it is read.
    {[](const BirthFields &f, Asked asked) { return asked == Asked::Clock && IsNoDate(f); },
     "Enter Correct Date", ""},
    {[](const BirthFields &f, Asked) { return IsBlank(f.cbHour); }, "Enter Correct Time", "cbHour"},
    {[](const BirthFields &f, Asked) { return IsBlank(f.cbMins); }, "Enter Correct Time", "cbMins"},
    {[](const BirthFields &f, Asked asked) {
         return IsOutside(f.cbHour, asked == Asked::Clock ? highestHour : highestGhati);
     },
     "Enter Correct Time", "cbHour"},
    {[](const BirthFields &f, Asked) { return IsOutside(f.cbMins, highestMinute); }, "Enter Correct Time",
     "cbMins"},
    {[](const BirthFields &f, Asked) {
         return IsBlank(f.txt_VC_Country) || f.txt_VC_Country != f.countryOfId;
     },
     "Select Country", "Cmb_VP_Country"},
    {[](const BirthFields &f, Asked) { return IsBlank(f.txt_VC_City) || f.txt_VC_City != f.cityOfPlace; },
     "Select City", "Cmb_VP_City"},
    // The result would rest on another zone otherwise.
    {[](const BirthFields &f, Asked) { return IsBlank(f.cbTimeZone) || f.cbTimeZone != f.zoneOfOffset; },
     "Select Timezone", "cbTimeZone"},
}};

std::optional<Notice> FailureOf(const BirthFields &fields, Asked asked) {
    const auto failed =
        std::ranges::find_if(tests, [&](const Test &test) { return test.fails(fields, asked); });
    if (failed == tests.end()) {
        return std::nullopt;
    }
    return Notice{std::string(failed->message), Notice::Icon::Information, std::string(failed->focus)};
}

} // namespace

TimeConverters::Result TimeConverters::IshtaGhatiOfBirthTime(const BirthFields &fields) {
    if (auto notice = FailureOf(fields, Asked::Clock)) {
        return *std::move(notice);
    }
    const Moment birth = MomentOfBirth(fields);
    Moment sunrise = SunriseOf(birth, fields);
    if (birth < sunrise) {
        sunrise = SunriseOf(DateAdd(Interval::Day, -1, birth), fields);
    }
    const IshtaGhati time = IshtaGhatiOf(DateDiff(Interval::Minute, sunrise, birth));
    return "Ishta Ghati : " + std::to_string(time.ghati) + ":" + std::to_string(time.vighati) + ":" +
           std::to_string(time.part);
}

TimeConverters::Result TimeConverters::BirthTimeOfIshtaGhati(const BirthFields &fields) {
    if (auto notice = FailureOf(fields, Asked::Ghatis)) {
        return *std::move(notice);
    }
    const Moment sunrise = SunriseOf(ReadMoment(DateTextOf(fields)), fields);
    const Moment birth =
        MomentAfterSunrise(sunrise, NumberFromText(fields.cbHour), NumberFromText(fields.cbMins));
    return "Birth Time : " + ClockText(birth);
}

Moment TimeConverters::SunriseOf(Moment date, const BirthFields &fields) {
    return sunrise_.FnFindSunrise(date, fields.txt_VC_LatNS, fields.txt_VC_LatDeg, fields.txt_VC_LatMin,
                                  fields.txt_VC_LonEW, fields.txt_VC_LonDeg, fields.txt_VC_LonMin, 0,
                                  fields.txt_VC_TimeDiff, fields.txt_VC_TimeDiffEW);
}

} // namespace kelvaro
