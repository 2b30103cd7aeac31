#include "horoscope/ChartPositions.h"

#include "horoscope/Horoscope.h"
#include "horoscope/record/Bodies.h"
#include "panchanga/Sign.h"
#include "runtime/MomentText.h"

#include <span>
#include <string>

namespace kelvaro {

namespace {

/// The ten bodies whose longitudes the facade gives; Gulika and Maandi are rising degrees.
constexpr std::span<const BodyFields> bodiesOfTheFacade{bodyFields.data(), 10};

Moment BirthMomentOf(const HoroscopeState &state) {
    return ReadMoment(state.birth.BirthDay + "/" + state.birth.BirthMonth + "/" + state.birth.BirthYear +
                      " " + state.birth.BirthHour + ":" + state.birth.BirthMinute + ": 00");
}

void ReadLongitudes(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    ClsFindPlanetPosition &position = horoscope.calculators.position;
    state.positions.LagnaLon = position.FnFindLagnaPosition();
    state.positions.SunLon = position.FnFindSunPosition();
    state.positions.MoonLon = position.FnFindMoonPosition();
    state.positions.MarsLon = position.FnFindMarsPosition();
    state.positions.MercuryLon = position.FnFindMercuryPosition();
    state.positions.JupiterLon = position.FnFindJupiterPosition();
    state.positions.VenusLon = position.FnFindVenusPosition();
    state.positions.SaturnLon = position.FnFindSaturnPosition();
    state.positions.RahuLon = position.FnFindRahuPosition();
    state.positions.KetuLon = position.FnFindKethuPosition();
    state.positions.MidHeaven = position.FnFindMidHeaven();
    state.positions.Ayanamsa = position.FnFindAyanamsa();
}

/// The astrological day that holds the birth runs from sunrise to sunrise.
void FindDayOfBirth(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    const Moment birth = state.positions.BirthMomentDate;
    SunTimes &sunTimes = horoscope.calculators.sunTimes;
    SunTimes::Day limits = sunTimes.SunTimesOf(birth, state.site);
    state.day.SunriseOfBirthDay = limits.sunrise;
    state.day.SunsetOfBirthDay = limits.sunset;
    state.day.SunriseNextDay = limits.nextSunrise;
    state.day.DayCurrentDate = birth;
    const bool isDay = birth > limits.sunrise && birth < limits.sunset;
    state.day.DayOrNight = isDay ? "Day" : "Night";
    if (!isDay) {
        if (IsBeforeNoon(birth)) {
            state.day.DayCurrentDate = DateAdd(Interval::Day, -1, birth);
        }
        limits = sunTimes.SunTimesOf(state.day.DayCurrentDate, state.site);
    }
    state.day.DaySunrise = limits.sunrise;
    state.day.DaySunset = limits.sunset;
    state.day.DayNextSunrise = limits.nextSunrise;
}

void FindRiseTimes(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    clsTimes &times = horoscope.calculators.times;
    times.currentdate = state.day.DayCurrentDate;
    times.Sunrisetime = state.day.DaySunrise;
    times.Sunsettime = state.day.DaySunset;
    times.SunRiseNexttime = state.day.DayNextSunrise;
    times.findtimes();
    state.day.GulikaDay = times.GulikaRise_Day;
    state.day.GulikaNight = times.GulikaRise_Night;
    state.day.MandiDay = times.MandiRise_Day;
    state.day.MandiNight = times.MandiRise_Night;
}

/// A night rise that reads "AM" belongs to the date after that of the sunrise. The date found becomes the
/// current one.
Moment NightMoment(HoroscopeState &state, Moment rise) {
    state.day.DayCurrentDate =
        IsBeforeNoon(rise) ? DateAdd(Interval::Day, 1, state.day.DaySunrise) : state.day.DaySunrise;
    return Join(state.day.DayCurrentDate, ToTheMinute(rise));
}

void JoinRiseMoments(HoroscopeState &state) {
    if (state.day.DayOrNight == "Day") {
        state.day.GulikaMoment = Join(state.day.DaySunrise, ToTheMinute(state.day.GulikaDay));
        state.day.MandiMoment = Join(state.day.DaySunrise, ToTheMinute(state.day.MandiDay));
    } else {
        state.day.GulikaMoment = NightMoment(state, state.day.GulikaNight);
        state.day.MandiMoment = NightMoment(state, state.day.MandiNight);
    }
}

double LagnaAt(Horoscope &horoscope, Moment moment) {
    ClsFindPlanetPosition &position = horoscope.calculators.position;
    position.FindFixValuesAt(moment, horoscope.state.site, horoscope.state.preferences.InForce());
    return position.FnFindLagnaPosition();
}

} // namespace

void ComputeChartPositions(Horoscope &horoscope, double division) {
    HoroscopeState &state = horoscope.state;
    state.positions.BirthMomentDate = BirthMomentOf(state);
    const Preferences &preferences = state.preferences;
    horoscope.calculators.position.FindFixValuesAt(
        state.positions.BirthMomentDate, state.site,
        {preferences.AyanamsaName, preferences.YearInForce, preferences.ProgressInForce});
    ReadLongitudes(horoscope);
    for (const BodyFields &body : bodiesOfTheFacade) {
        state.positions.*body.rasi = RasiOfLongitude(state.positions.*body.longitude, division);
    }
    FindDayOfBirth(horoscope);
    FindRiseTimes(horoscope);
    JoinRiseMoments(state);
    state.positions.GulikaLon = LagnaAt(horoscope, state.day.GulikaMoment);
    state.positions.GulikaRasi = RasiOfLongitude(state.positions.GulikaLon, division);
    state.positions.MaandiLon = LagnaAt(horoscope, state.day.MandiMoment);
    state.positions.MaandiRasi = RasiOfLongitude(state.positions.MaandiLon, division);
}

} // namespace kelvaro
