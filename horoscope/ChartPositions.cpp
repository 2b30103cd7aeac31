#include "horoscope/ChartPositions.h"

#include "horoscope/Calculators.h"
#include "panchanga/Sign.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <span>
#include <string>

namespace kelvaro {

namespace {

/// The ten bodies whose longitudes the facade gives; Gulika and Maandi are rising degrees.
constexpr std::span<const BodyFields> bodiesOfTheFacade{bodyFields.data(), 10};

/// Raises OverflowError for a custom ayanamsa beyond its bounds.
void RequireBounds(const AyanamsaSettings &ayanamsa) {
    if (IsBeyondBounds(ayanamsa)) {
        throw OverflowError("The custom ayanamsa wants a zero year from 0 to " + NumberText(latestZeroYear) +
                            " and a progression from 0 to " + NumberText(greatestProgress) + ", not " +
                            NumberText(ayanamsa.zeroYear) + " and " + NumberText(ayanamsa.progress));
    }
}

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

/// Empty for a date on which the Sun rises and sets.
std::string LackText(Moment date, SunEvents::Lack lack) {
    if (lack == SunEvents::Lack::Nothing) {
        return {};
    }
    return std::string("The Sun does not ").append(lack == SunEvents::Lack::Sunset ? "set" : "rise") +
           " here on " + MonthNameDateText(date) + ", or for under two hours.";
}

/// What stands in the place of a missing sunset.
std::string CarriedSunset(Moment sunset) {
    return sunset == Moment() ? "midnight of " + MonthNameDateText(sunset) + ", no sunset being known"
                              : "the sunset of " + MonthNameMomentText(sunset);
}

/// Of a date whose sunset, its own or another day's, is `sunset`. Empty where it is its own, as the sunrise.
/// As short as can be, for a small window's status bar.
std::string RemarkOn(Moment date, const SunEvents &events, Moment sunset) {
    std::string taken = events.rises ? "" : "a later day's sunrise";
    if (!events.sets) {
        taken.append(taken.empty() ? "" : ", ")
            .append(events.sunset ? "a later day's sunset" : CarriedSunset(sunset));
    }
    return taken.empty() ? taken : LackText(date, events.lack) + " Taken: " + taken + ".";
}

/// The first remark on the dates that the limits of the day were found for.
std::string SunRemarkOn(Moment birth, const DayOfBirth &day, const Site &site, SunTimes &sunTimes) {
    std::string remark = RemarkOn(birth, sunTimes.EventsOf(birth, site), day.SunsetOfBirthDay);
    if (remark.empty()) {
        remark = RemarkOn(day.DayCurrentDate, sunTimes.EventsOf(day.DayCurrentDate, site), day.DaySunset);
    }
    const Moment next = DateAdd(Interval::Day, 1, day.DayCurrentDate);
    const SunEvents &eventsOfNext = sunTimes.EventsOf(next, site);
    if (remark.empty() && !eventsOfNext.rises) {
        remark = LackText(next, eventsOfNext.lack) + " Taken: a later day's sunrise.";
    }
    return remark;
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
    day.SunRemark = SunRemarkOn(birth, day, site, sunTimes);
    return day;
}

void FindRiseTimes(DayOfBirth &day, const Site &site, SunTimes &sunTimes, clsTimes &times) {
    times.currentdate = day.DayCurrentDate;
    times.Sunrisetime = day.DaySunrise;
    times.Sunsettime = day.DaySunset;
    times.SunRiseNexttime = day.DayNextSunrise;
    try {
        times.findtimes();
    } catch (const OverflowError &) {
        // The one span that can be too long is that to a sunset carried over from another age.
        const SunEvents &events = sunTimes.EventsOf(day.DayCurrentDate, site);
        if (events.sets) {
            throw;
        }
        throw OverflowError(LackText(day.DayCurrentDate, events.lack) + " No sunset near it is known.");
    }
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
    const AyanamsaSettings ayanamsa{preferences.AyanamsaName, preferences.YearInForce,
                                    preferences.ProgressInForce};
    RequireBounds(ayanamsa);
    RequireBounds(preferences.InForce());
    const Moment moment = BirthMomentOf(birth);
    facade.FindFixValuesAt(moment, site, ayanamsa);
    PositionPass pass{ReadLongitudes(moment, division, facade), FindDay(moment, site, calculators.sunTimes)};
    FindRiseTimes(pass.day, site, calculators.sunTimes, calculators.times);
    JoinRiseMoments(pass.day);
    pass.positions.GulikaLon = lagnaAt(pass.day.GulikaMoment);
    pass.positions.GulikaRasi = RasiOfLongitude(pass.positions.GulikaLon, division);
    pass.positions.MaandiLon = lagnaAt(pass.day.MandiMoment);
    pass.positions.MaandiRasi = RasiOfLongitude(pass.positions.MaandiLon, division);
    return pass;
}

} // namespace kelvaro
