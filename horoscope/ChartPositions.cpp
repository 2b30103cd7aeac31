#include "horoscope/ChartPositions.h"

#include "horoscope/Horoscope.h"
#include "horoscope/record/Bodies.h"
#include "panchanga/RasiOfLongitude.h"
#include "runtime/MomentText.h"

#include <span>
#include <string>

namespace kelvaro {

namespace {

/// The ten bodies whose longitudes the facade gives; Gulika and Maandi are rising degrees.
constexpr std::span<const BodyFields> bodiesOfTheFacade{bodyFields.data(), 10};

Moment BirthMomentOf(const HoroscopeState &state) {
    return ReadMoment(state.BirthDay + "/" + state.BirthMonth + "/" + state.BirthYear + " " +
                      state.BirthHour + ":" + state.BirthMinute + ": 00");
}

void ReadLongitudes(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    ClsFindPlanetPosition &position = horoscope.calculators.position;
    state.LagnaLon = position.FnFindLagnaPosition();
    state.SunLon = position.FnFindSunPosition();
    state.MoonLon = position.FnFindMoonPosition();
    state.MarsLon = position.FnFindMarsPosition();
    state.MercuryLon = position.FnFindMercuryPosition();
    state.JupiterLon = position.FnFindJupiterPosition();
    state.VenusLon = position.FnFindVenusPosition();
    state.SaturnLon = position.FnFindSaturnPosition();
    state.RahuLon = position.FnFindRahuPosition();
    state.KetuLon = position.FnFindKethuPosition();
    state.MidHeaven = position.FnFindMidHeaven();
    state.Ayanamsa = position.FnFindAyanamsa();
}

/// The astrological day that holds the birth runs from sunrise to sunrise.
void FindDayOfBirth(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    const Moment birth = state.BirthMomentDate;
    SunTimes &sunTimes = horoscope.calculators.sunTimes;
    SunTimes::Day limits = sunTimes.SunTimesOf(birth);
    state.SunriseOfBirthDay = limits.sunrise;
    state.SunsetOfBirthDay = limits.sunset;
    state.SunriseNextDay = limits.nextSunrise;
    state.DayCurrentDate = birth;
    const bool isDay = birth > limits.sunrise && birth < limits.sunset;
    state.DayOrNight = isDay ? "Day" : "Night";
    if (!isDay) {
        if (IsBeforeNoon(birth)) {
            state.DayCurrentDate = DateAdd(Interval::Day, -1, birth);
        }
        limits = sunTimes.SunTimesOf(state.DayCurrentDate);
    }
    state.DaySunrise = limits.sunrise;
    state.DaySunset = limits.sunset;
    state.DayNextSunrise = limits.nextSunrise;
}

void FindRiseTimes(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    clsTimes &times = horoscope.calculators.times;
    times.currentdate = state.DayCurrentDate;
    times.Sunrisetime = state.DaySunrise;
    times.Sunsettime = state.DaySunset;
    times.SunRiseNexttime = state.DayNextSunrise;
    times.findtimes();
    state.GulikaDay = times.GulikaRise_Day;
    state.GulikaNight = times.GulikaRise_Night;
    state.MandiDay = times.MandiRise_Day;
    state.MandiNight = times.MandiRise_Night;
}

/// A clock time to the minute, as its text carries it.
Moment ToTheMinute(Moment moment) {
    const CivilMoment parts = Split(moment);
    return MomentOf(parts.date, {parts.clock.hour, parts.clock.minute, 0});
}

/// A night rise that reads "AM" belongs to the date after that of the sunrise. The date found becomes the
/// current one.
Moment NightMoment(HoroscopeState &state, Moment rise) {
    state.DayCurrentDate =
        IsBeforeNoon(rise) ? DateAdd(Interval::Day, 1, state.DaySunrise) : state.DaySunrise;
    return Join(state.DayCurrentDate, ToTheMinute(rise));
}

void JoinRiseMoments(HoroscopeState &state) {
    if (state.DayOrNight == "Day") {
        state.GulikaMoment = Join(state.DaySunrise, ToTheMinute(state.GulikaDay));
        state.MandiMoment = Join(state.DaySunrise, ToTheMinute(state.MandiDay));
    } else {
        state.GulikaMoment = NightMoment(state, state.GulikaNight);
        state.MandiMoment = NightMoment(state, state.MandiNight);
    }
}

double LagnaAt(Horoscope &horoscope, Moment moment) {
    ClsFindPlanetPosition &position = horoscope.calculators.position;
    FindFixValuesAt(position, horoscope.state, moment, horoscope.state.AyanamsaInForce);
    return position.FnFindLagnaPosition();
}

} // namespace

void ComputeChartPositions(Horoscope &horoscope, double division) {
    HoroscopeState &state = horoscope.state;
    state.BirthMomentDate = BirthMomentOf(state);
    FindFixValuesAt(horoscope.calculators.position, state, state.BirthMomentDate, state.AyanamsaName);
    ReadLongitudes(horoscope);
    for (const BodyFields &body : bodiesOfTheFacade) {
        state.*body.rasi = RasiOfLongitude(state.*body.longitude, division);
    }
    FindDayOfBirth(horoscope);
    FindRiseTimes(horoscope);
    JoinRiseMoments(state);
    state.GulikaLon = LagnaAt(horoscope, state.GulikaMoment);
    state.GulikaRasi = RasiOfLongitude(state.GulikaLon, division);
    state.MaandiLon = LagnaAt(horoscope, state.MandiMoment);
    state.MaandiRasi = RasiOfLongitude(state.MaandiLon, division);
}

} // namespace kelvaro
