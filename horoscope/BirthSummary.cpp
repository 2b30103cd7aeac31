#include "horoscope/BirthSummary.h"

#include "horoscope/BirthTimes.h"
#include "horoscope/Calculators.h"
#include "horoscope/Horoscope.h"
#include "presentation/AngleText.h"
#include "runtime/MomentText.h"
#include "runtime/Now.h"
#include "runtime/Numbers.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace kelvaro {

namespace {

constexpr std::string_view betweenParts = "  /  ";

/// The lunar months in which the Sun is on its way north.
constexpr std::array<std::string_view, 6> northwardMonths{"Vaisakha", "Chaitra", "Jyeshtha",
                                                          "Pausha",   "Magha",   "Phalguna"};
constexpr std::array<std::string_view, 6> southwardMonths{"Sravana", "Ashadha",  "Bhadrapada",
                                                          "Asvina",  "Karttika", "Margasira"};

std::string AyanaOf(std::string_view lunarMonth) {
    if (std::ranges::find(northwardMonths, lunarMonth) != northwardMonths.end()) {
        return "Uttrayana";
    }
    return std::ranges::find(southwardMonths, lunarMonth) != southwardMonths.end() ? "Dakshinaya" : "";
}

std::string TwelveHourText(const HoroscopeState &state) {
    const std::int32_t hour = ToInt32(NumberFromText(state.birth.BirthHour));
    const std::int32_t shown = hour % 12 == 0 ? 12 : hour % 12;
    return std::to_string(shown) + " : " + state.birth.BirthMinute + "  " + (hour >= 12 ? "PM" : "AM");
}

std::string ArcText(double degrees, double minutes, const std::string &side) {
    return NumberText(degrees) + " " + NumberText(minutes) + " " + side;
}

Moment GreenwichMoment(Moment moment, const Site &site) {
    const double minutes = site.TimeDiff * 60;
    return DateAdd(Interval::Minute, ToInt32(site.TimeDiffEW == "E" ? -minutes : minutes), moment);
}

void FillPerson(const HoroscopeState &state, UserDetailsForm &form) {
    form.txtGName = state.birth.ChartName;
    form.txtSex = state.birth.BirthGender;
    form.Txt_BC_Date = state.birth.BirthDay + " / " + state.birth.BirthMonth + " / " + state.birth.BirthYear;
    form.txtTimeOfBirth = TwelveHourText(state);
}

void FillPlace(const HoroscopeState &state, UserDetailsForm &form) {
    form.txtAyanamsa =
        DegreeMinuteSecondText(state.positions.Ayanamsa) + "  (" + state.preferences.AyanamsaName + ")";
    form.txtCity = state.birth.BirthCity;
    form.txtCountry = state.birth.BirthCountry;
    form.txtLatutude = ArcText(state.site.LatDeg, state.site.LatMin, state.site.LatNS);
    form.txtLongitude = ArcText(state.site.LonDeg, state.site.LonMin, state.site.LonEW);
    form.txtTimeZone = state.birth.BirthTimeZoneName;
}

/// The Vedic day begins at sunrise.
void FillDay(Horoscope &horoscope, UserDetailsForm &form) {
    const Moment moment = horoscope.state.ghati.SummaryMoment;
    const SunTimes::Day day = horoscope.calculators->sunTimes.SunTimesOf(moment, horoscope.state.site);
    form.txtSunRise = ClockText(day.sunrise);
    form.txtSunSet = ClockText(day.sunset);
    form.txtGregorian = WeekdayName(WeekdayOf(moment));
    const Moment vedic = moment < day.sunrise ? DateAdd(Interval::Day, -1, moment) : moment;
    form.txtVedic = WeekdayName(WeekdayOf(vedic));
}

/// Empty for a birth that no solar year holds, or none of the table: what the calendar keeps is then another
/// birth's.
std::string SolarDateText(bool isFound, const SolarDate &date) {
    return isFound && !date.yearName.empty() ? std::to_string(date.day) + std::string(betweenParts) +
                                                   date.month + std::string(betweenParts) + date.yearName
                                             : std::string();
}

std::string LunarDateText(const LunarDate &date) {
    return date.flag + std::string(betweenParts) + date.month + std::string(betweenParts) + date.yearName;
}

void FillCalendars(Horoscope &horoscope, UserDetailsForm &form) {
    Calculators &calculators = *horoscope.calculators;
    const HoroscopeState &state = horoscope.state;
    TithiSearch search(calculators.calendarPosition, state.site, state.preferences.InForce(),
                       state.ghati.SummaryMoment);
    calculators.lunarCalendar.LunarDateKrishnadi(search, "TP");
    calculators.lunarCalendar.LunarDateSukladi(search, "TP");
    const LunarDate &krishnadi = calculators.lunarCalendar.Krishnadi();
    form.txtKLunarDate = LunarDateText(krishnadi);
    form.txtSLunarDate = LunarDateText(calculators.lunarCalendar.Sukladi());
    const bool hasSolarDate =
        calculators.solarCalendar.SolarDateOf(state.ghati.SummaryMoment, state.site, Now());
    const SolarDate &solar = calculators.solarCalendar.Date();
    form.txtKaliyugaYear = std::to_string(solar.kaliyugaYear);
    form.txtSolarDate = SolarDateText(hasSolarDate, solar);
    form.txtAyana = AyanaOf(krishnadi.month);
}

void FillAlmanac(Horoscope &horoscope, UserDetailsForm &form) {
    const HoroscopeState &state = horoscope.state;
    Calculators &calculators = *horoscope.calculators;
    form.txtLagna = state.names.RasiNames.at(static_cast<std::size_t>(state.positions.LagnaRasi - 1));

    calculators.star.PlanetPosition = state.positions.MoonLon;
    calculators.star.findstar();
    form.txtStar = calculators.star.StarName + ", Pada: " + std::to_string(calculators.star.StarQuarter);

    calculators.tithi.moonA = state.positions.MoonLon;
    calculators.tithi.sunC = state.positions.SunLon;
    calculators.tithi.FindTithi();
    form.txtTithi = calculators.tithi.Tithi;
    form.txtPaksha = calculators.tithi.TithiNo <= 15 ? "Sukla Paksha (Bright)" : "Krishna Paksha (Dark)";
    form.txtKarnam = calculators.tithi.Karnam;

    calculators.rasi.nchkLanguage = state.preferences.Language;
    calculators.rasi.PlanetPosition = state.positions.MoonLon;
    calculators.rasi.findRasi();
    form.txtRasi = calculators.rasi.RasiName;

    calculators.yoga.moon_position = state.positions.MoonLon;
    calculators.yoga.sun_position = state.positions.SunLon;
    calculators.yoga.findyoga();
    form.txtYogam = calculators.yoga.YogaName;
}

} // namespace

void FillBirthSummary(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    UserDetailsForm &form = horoscope.forms.frm_UserDetails;
    const Moment moment = state.positions.BirthMomentDate;
    FillPerson(state, form);
    form.txtist = MonthNameMomentText(moment);
    state.ghati = ComputeLocalMeanTime(moment, state.site, horoscope.calculators->sunTimes);
    form.txtlmt = MonthNameMomentText(state.ghati.LocalMeanTimeMoment);
    form.txtgmt = MonthNameMomentText(GreenwichMoment(moment, state.site));
    form.txtIshtaGhati = ComputeIshtaGhati(state.ghati);
    FillPlace(state, form);
    FillDay(horoscope, form);
    FillCalendars(horoscope, form);
    FillAlmanac(horoscope, form);
}

} // namespace kelvaro
