#include "horoscope/entry/BirthEntry.h"

#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Horoscope.h"
#include "horoscope/entry/DateAndTimeRules.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"

#include <tuple>

namespace kelvaro {

namespace {

/// "11 N 32"
std::string AngleText(double degrees, const std::string &letter, double minutes) {
    return NumberText(degrees) + " " + letter + " " + NumberText(minutes);
}

/// The place of a city must not stay behind when the city has gone.
void EmptyPlace(BirthFields &fields) {
    TakePlace({}, fields);
    fields.txtLatDetails.clear();
    fields.txtLonDetails.clear();
}

} // namespace

/// Country, city and zone have two rules each. The second keeps a typed text that names no row from going
/// with the place or the offset of another one, and is told before what depends on the field.
constexpr std::array<Rule<BirthFields>, 17> birthRules{{
    {LacksText<&BirthFields::Txt_VC_ChartName>, "Enter Name", "Txt_VC_ChartName"},
    {LacksText<&BirthFields::txt_Date>, "Enter Date of Birth", "txt_Date"},
    {LacksText<&BirthFields::txt_Month>, "Enter Month", "txt_Month"},
    {LacksText<&BirthFields::txt_Year>, "Enter Year", "txt_Year"},
    {IsNoYear, "Enter Year Between 1800 and 3000", "txt_Year"},
    {IsNoDate, "Enter Correct Date", ""},
    {LacksText<&BirthFields::cbHour>, "Enter Correct Time", "cbHour"},
    {LacksText<&BirthFields::cbMins>, "Enter Correct Time", "cbMins"},
    // Hours of a 24-hour clock pass, though the hour is one of twelve.
    {[](const BirthFields &f) { return IsOutside("Hour", f.cbHour, 24); }, "Enter Correct Time", "cbHour"},
    {[](const BirthFields &f) { return IsOutside("Minute", f.cbMins, 59); }, "Enter Correct Time", "cbMins"},
    {LacksText<&BirthFields::txt_VC_Country>, "Select Country", "txt_VC_Country"},
    {[](const BirthFields &f) { return f.txt_VC_Country != f.chosen.country; }, "Select Country",
     "txt_VC_Country"},
    {LacksText<&BirthFields::txt_VC_City>, "Select City", "txt_VC_City"},
    {[](const BirthFields &f) { return f.txt_VC_City != f.chosen.city; }, "Select City", "txt_VC_City"},
    {LacksText<&BirthFields::cbTimeZone>, "Select Timezone", "cbTimeZone"},
    {[](const BirthFields &f) { return f.cbTimeZone != f.chosen.zone; }, "Select Timezone", "cbTimeZone"},
    {IsTooLong<&BirthFields::Txt_VC_ChartName>, nameTooLong, "Txt_VC_ChartName"},
}};

constexpr std::span<const Rule<BirthFields>> dateRules = std::span(birthRules).subspan(1, 5);
constexpr std::span<const Rule<BirthFields>> timeRules = std::span(birthRules).subspan(6, 4);

void TakePlace(const store::Place &place, BirthFields &fields) {
    fields.txt_VC_LatDeg = place.latDeg;
    fields.txt_VC_LatMin = place.latMin;
    fields.txt_VC_LatNS = place.latNS;
    fields.txt_VC_LonDeg = place.lonDeg;
    fields.txt_VC_LonMin = place.lonMin;
    fields.txt_VC_LonEW = place.lonEW;
    fields.txtLatDetails = AngleText(place.latDeg, place.latNS, place.latMin);
    fields.txtLonDetails = AngleText(place.lonDeg, place.lonEW, place.lonMin);
    fields.chosen.city = fields.txt_VC_City;
}

void TakeZone(const store::Zone &zone, BirthFields &fields) {
    fields.cbTimeZone = zone.text;
    fields.chosen.zone = zone.text;
    fields.txt_VC_TimeDiff = zone.hours;
    fields.txt_VC_TimeDiffEW = zone.direction;
}

BirthFields FieldsAtLoad(Moment present) {
    const CivilDate date = Split(present).date;
    const std::string dateText = MonthNameDateText(present);
    const std::string clock = ClockText(present);
    BirthFields fields;
    fields.cbGender = genderChoices.front();
    fields.txt_Date = dateText.substr(0, 2);
    fields.txt_Month = dateText.substr(3, 3);
    fields.txt_Year = std::to_string(date.year);
    fields.cbHour = clock.substr(0, 2);
    fields.cbMins = clock.substr(3, 2);
    fields.Opt_PM = !IsBeforeNoon(present);
    return fields;
}

bool HaveSameTexts(const BirthFields &one, const BirthFields &other) {
    const auto texts = [](const BirthFields &f) {
        return std::tie(f.Txt_VC_ChartName, f.cbGender, f.txt_Date, f.txt_Month, f.txt_Year, f.cbHour,
                        f.cbMins, f.Opt_PM, f.txt_VC_Country, f.txt_VC_City, f.cbTimeZone);
    };
    return texts(one) == texts(other);
}

void ClearFields(BirthFields &fields) {
    for (std::string *text :
         {&fields.Txt_VC_ChartName, &fields.cbGender, &fields.txt_Date, &fields.txt_Month, &fields.txt_Year,
          &fields.cbHour, &fields.cbMins, &fields.txt_VC_Country, &fields.txt_VC_City, &fields.cbTimeZone,
          &fields.txtLatDetails, &fields.txtLonDetails}) {
        text->clear();
    }
    fields.chosen = {};
    fields.isOpenedFromNoon = false;
}

std::string HourText(const BirthFields &fields) {
    if (fields.cbHour == "12") {
        return fields.Opt_PM ? "12" : "0";
    }
    return fields.Opt_PM ? NumberText(NumberIn("Hour", fields.cbHour) + 12) : fields.cbHour;
}

std::string TimeTextOf(const BirthFields &fields) {
    return HourText(fields) + ":" + fields.cbMins + ": 00";
}

Moment MomentOfBirth(const BirthFields &fields) {
    return ReadMoment(DateTextOf(fields) + " " + TimeTextOf(fields));
}

PlaceChoices ChooseCountry(BirthFields &fields, const store::ListItem &country,
                           const store::PlaceLists &lists, const HoroscopeState &state) {
    if (country.text.empty()) {
        return {};
    }
    PlaceChoices choices{lists.CitiesOf(country.key), lists.ZonesOf(country.key)};
    fields.txt_VC_Country = country.text;
    fields.txt_VC_City.clear();
    EmptyPlace(fields);
    fields.cbTimeZone.clear();
    fields.chosen = {country.text, {}, {}, country.key, 0};
    if (choices.zones.size() == 1) {
        ChooseZone(fields, choices.zones.front().number, lists, state);
    }
    return choices;
}

void ChooseCity(BirthFields &fields, const store::PlaceLists &lists) {
    if (fields.txt_VC_City.empty()) {
        return;
    }
    if (const auto place = lists.PlaceOfCity(fields.txt_VC_City)) {
        TakePlace(*place, fields);
    }
}

void ChooseZone(BirthFields &fields, std::int32_t zoneNumber, const store::PlaceLists &lists,
                const HoroscopeState &state) {
    TakeZone(lists.ZoneNumbered(zoneNumber), fields);
    fields.chosen.zoneNumber = zoneNumber;
    fields.txt_VC_Ayanamsa = state.preferences.AyanamsaName;
}

store::Place PlaceOf(const BirthFields &fields) {
    return {fields.txt_VC_LatDeg, fields.txt_VC_LatMin, fields.txt_VC_LatNS,
            fields.txt_VC_LonDeg, fields.txt_VC_LonMin, fields.txt_VC_LonEW};
}

Site SiteOf(const BirthFields &fields) {
    return {fields.txt_VC_LatDeg, fields.txt_VC_LatMin, fields.txt_VC_LatNS,    fields.txt_VC_LonDeg,
            fields.txt_VC_LonMin, fields.txt_VC_LonEW,  fields.txt_VC_TimeDiff, fields.txt_VC_TimeDiffEW};
}

void HandOver(const BirthFields &fields, HoroscopeState &state) {
    const std::string hour = HourText(fields);
    const Moment birth = MomentOfBirth(fields);
    state.birth.ChartName = fields.Txt_VC_ChartName;
    state.birth.BirthDay = fields.txt_Date;
    state.birth.BirthMonth = fields.txt_Month;
    state.birth.BirthYear = fields.txt_Year;
    state.birth.BirthHour = hour;
    state.birth.BirthMinute = fields.cbMins;
    state.birth.BirthTimeZoneName = fields.cbTimeZone;
    state.birth.BirthMoment = birth;
    state.birth.BirthGender = fields.cbGender;
    state.birth.BirthCity = fields.txt_VC_City;
    state.birth.BirthCountry = fields.txt_VC_Country;
    state.preferences.AyanamsaInForce = state.preferences.AyanamsaName;
    state.site = SiteOf(fields);
}

std::optional<Notice> AcceptBirth(const BirthFields &fields, Horoscope &horoscope) {
    if (horoscope.isCalculating) {
        return std::nullopt;
    }
    if (auto notice = FirstBroken(birthRules, fields)) {
        return notice;
    }
    HandOver(fields, horoscope.state);
    horoscope.chartNumber = fields.txt_VC_UserId;
    CalculateHoroscope(horoscope);
    return std::nullopt;
}

} // namespace kelvaro
