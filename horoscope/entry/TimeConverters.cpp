#include "horoscope/entry/TimeConverters.h"

#include "horoscope/entry/DateAndTimeRules.h"
#include "panchanga/day/IshtaGhati.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

namespace kelvaro {

namespace {

using ConverterRules = std::array<Rule<BirthFields>, 12>;
using IsBroken = bool (*)(const BirthFields &);

bool IsNoNumberUpTo(const std::string &text, double highest) {
    return !IsNumber(text) || IsOutside("Time", text, highest);
}

bool IsNoTime(const std::string &text) {
    try {
        ReadMoment("1/Jan/2000 " + text + ": 00");
        return false;
    } catch (const ConversionError &) {
        return true;
    }
}

/// Unlike the form of birth details, which tells 13 PM as an error of the conversion.
bool IsNoHourOfClock(const BirthFields &fields) {
    return IsNoNumberUpTo(fields.cbHour, 24) || IsNoTime(HourText(fields) + ":00");
}

bool IsNoMinuteOfClock(const BirthFields &fields) {
    return IsNoNumberUpTo(fields.cbMins, 59) || IsNoTime("0:" + fields.cbMins);
}

/// The converters differ in the rules for the date and for what the lists of hours and minutes take.
constexpr ConverterRules RulesWith(IsBroken isNoDate, IsBroken isNoHour, IsBroken isNoMinute) {
    // A place or a zone that was typed and names no row of its list has not been chosen.
    return {{
        {LacksText<&BirthFields::txt_Date>, "Enter Date", "txt_Date"},
        {LacksText<&BirthFields::txt_Month>, "Enter Month", "txt_Month"},
        {LacksText<&BirthFields::txt_Year>, "Enter Year", "txt_Year"},
        {[](const BirthFields &f) { return !IsNumber(f.txt_Year) || IsNoYear(f); },
         "Enter Year Between 1800 and 3000", "txt_Year"},
        {isNoDate, "Enter Correct Date", ""},
        {LacksText<&BirthFields::cbHour>, "Enter Correct Time", "cbHour"},
        {LacksText<&BirthFields::cbMins>, "Enter Correct Time", "cbMins"},
        {isNoHour, "Enter Correct Time", "cbHour"},
        {isNoMinute, "Enter Correct Time", "cbMins"},
        {[](const BirthFields &f) {
             return IsBlank(f.txt_VC_Country) || f.txt_VC_Country != f.chosen.country;
         },
         "Select Country", "Cmb_VP_Country"},
        {[](const BirthFields &f) { return IsBlank(f.txt_VC_City) || f.txt_VC_City != f.chosen.city; },
         "Select City", "Cmb_VP_City"},
        {[](const BirthFields &f) { return IsBlank(f.cbTimeZone) || f.cbTimeZone != f.chosen.zone; },
         "Select Timezone", "cbTimeZone"},
    }};
}

} // namespace

constexpr ConverterRules clockTimeRules = RulesWith(IsNoDate, IsNoHourOfClock, IsNoMinuteOfClock);

// With ghatis the date has no rule: one that does not exist is told when it is read.
constexpr ConverterRules ghatiRules =
    RulesWith([](const BirthFields &) { return false; },
              [](const BirthFields &f) { return IsNoNumberUpTo(f.cbHour, 60); },
              [](const BirthFields &f) { return IsNoNumberUpTo(f.cbMins, 59); });

TimeConverters::Result TimeConverters::IshtaGhatiOfBirthTime(const BirthFields &fields) {
    if (auto notice = FirstBroken(clockTimeRules, fields)) {
        return *std::move(notice);
    }
    const Moment birth = MomentOfBirth(fields);
    const Site site = SiteOf(fields);
    Moment sunrise = sunrise_.FnFindSunrise(birth, site);
    if (birth < sunrise) {
        sunrise = sunrise_.FnFindSunrise(DateAdd(Interval::Day, -1, birth), site);
    }
    const IshtaGhati time = IshtaGhatiOf(DateDiff(Interval::Minute, sunrise, birth));
    return "Ishta Ghati : " + std::to_string(time.ghati) + ":" + std::to_string(time.vighati) + ":" +
           std::to_string(time.part);
}

TimeConverters::Result TimeConverters::BirthTimeOfIshtaGhati(const BirthFields &fields) {
    if (auto notice = FirstBroken(ghatiRules, fields)) {
        return *std::move(notice);
    }
    const Moment sunrise = sunrise_.FnFindSunrise(ReadMoment(DateTextOf(fields)), SiteOf(fields));
    const Moment birth =
        MomentAfterSunrise(sunrise, NumberFromText(fields.cbHour), NumberFromText(fields.cbMins));
    return "Birth Time : " + ClockText(birth);
}

} // namespace kelvaro
