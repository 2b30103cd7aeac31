#include "horoscope/ChartPositions.h"

#include "horoscope/Calculators.h"
#include "panchanga/Sign.h"
#include "runtime/MomentText.h"

#include <span>
#include <string>

namespace kelvaro {

namespace {

/// The ten bodies whose longitudes the facade gives; Gulika and Maandi are rising degrees.
constexpr std::span<const BodyFields> bodiesOfTheFacade{bodyFields.data(), 10};

Moment BirthMomentOf(const BirthDetails &birth) {
    return ReadMoment(birth.BirthDay + "/" + birth.BirthMonth + "/" + birth.BirthYear + " " +
                      birth.BirthHour + ":" + birth.BirthMinute + ": 00");
}

/// The longitudes of the moment that the facade has been set to.
Positions ReadLongitudes(Moment moment, double division, ClsFindPlanetPosition &facade) {
    Positions positions;
    positions.BirthMomentDate = moment;
    positions.LagnaLon = facade.FnFindLagnaPosition();
    positions.SunLon = facade.FnFindSunPosition();
    positions.MoonLon = facade.FnFindMoonPosition();
    positions.MarsLon = facade.FnFindMarsPosition();
    positions.MercuryLon = facade.FnFindMercuryPosition();
    positions.JupiterLon = facade.FnFindJupiterPosition();
    positions.VenusLon = facade.FnFindVenusPosition();
    positions.SaturnLon = facade.FnFindSaturnPosition();
    positions.RahuLon = facade.FnFindRahuPosition();
    positions.KetuLon = facade.FnFindKethuPosition();
    positions.MidHeaven = facade.FnFindMidHeaven();
    positions.Ayanamsa = facade.FnFindAyanamsa();
    for (const BodyFields &body : bodiesOfTheFacade) {
        positions.*body.rasi = RasiOfLongitude(positions.*body.longitude, division);
    }
    return positions;
}

/// The limits of the astrological day, sunrise to sunrise, that holds the birth.
DayOfBirth FindDay(Moment birth, const Site &site, SunTimes &sunTimes) {
    SunTimes::Day limits = sunTimes.SunTimesOf(birth, site);
    DayOfBirth day;
    day.SunriseOfBirthDay = limits.sunrise;
    day.SunsetOfBirthDay = limits.sunset;
    day.SunriseNextDay = limits.nextSunrise;
    day.DayCurrentDate = birth;
    const bool isDay = birth > limits.sunrise && birth < limits.sunset;
    day.DayOrNight = isDay ? "Day" : "Night";
    if (!isDay) {
        if (IsBeforeNoon(birth)) {
            day.DayCurrentDate = DateAdd(Interval::Day, -1, birth);
        }
        limits = sunTimes.SunTimesOf(day.DayCurrentDate, site);
    }
    day.DaySunrise = limits.sunrise;
    day.DaySunset = limits.sunset;
    day.DayNextSunrise = limits.nextSunrise;
    return day;
}

void FindRiseTimes(DayOfBirth &day, clsTimes &times) {
    times.currentdate = day.DayCurrentDate;
    times.Sunrisetime = day.DaySunrise;
    times.Sunsettime = day.DaySunset;
    times.SunRiseNexttime = day.DayNextSunrise;
    times.findtimes();
    day.GulikaDay = times.GulikaRise_Day;
    day.GulikaNight = times.GulikaRise_Night;
    day.MandiDay = times.MandiRise_Day;
    day.MandiNight = times.MandiRise_Night;
}

/// A night rise that reads "AM" belongs to the date after that of the sunrise.
Moment DateOfNightRise(const DayOfBirth &day, Moment rise) {
    return IsBeforeNoon(rise) ? DateAdd(Interval::Day, 1, day.DaySunrise) : day.DaySunrise;
}

void JoinRiseMoments(DayOfBirth &day) {
    if (day.DayOrNight == "Day") {
        day.GulikaMoment = Join(day.DaySunrise, ToTheMinute(day.GulikaDay));
        day.MandiMoment = Join(day.DaySunrise, ToTheMinute(day.MandiDay));
        return;
    }
    day.GulikaMoment = Join(DateOfNightRise(day, day.GulikaNight), ToTheMinute(day.GulikaNight));
    // The date found last becomes the current one.
    day.DayCurrentDate = DateOfNightRise(day, day.MandiNight);
    day.MandiMoment = Join(day.DayCurrentDate, ToTheMinute(day.MandiNight));
}

} // namespace

PositionPass FindPositions(const BirthDetails &birth, const Site &site, const Preferences &preferences,
                           double division, Calculators &calculators) {
    ClsFindPlanetPosition &facade = calculators.position;
    const auto lagnaAt = [&](Moment moment) {
        facade.FindFixValuesAt(moment, site, preferences.InForce());
        return facade.FnFindLagnaPosition();
    };
    const Moment moment = BirthMomentOf(birth);
    facade.FindFixValuesAt(moment, site,
                           {preferences.AyanamsaName, preferences.YearInForce, preferences.ProgressInForce});
    PositionPass pass{ReadLongitudes(moment, division, facade), FindDay(moment, site, calculators.sunTimes)};
    FindRiseTimes(pass.day, calculators.times);
    JoinRiseMoments(pass.day);
    pass.positions.GulikaLon = lagnaAt(pass.day.GulikaMoment);
    pass.positions.GulikaRasi = RasiOfLongitude(pass.positions.GulikaLon, division);
    pass.positions.MaandiLon = lagnaAt(pass.day.MandiMoment);
    pass.positions.MaandiRasi = RasiOfLongitude(pass.positions.MaandiLon, division);
    return pass;
}

} // namespace kelvaro
