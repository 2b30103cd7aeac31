#include "astronomy/ClsPlanet.h"

#include "astronomy/Ayanamsa.h"
#include "astronomy/theory/AngleReduction.h"
#include "astronomy/theory/Ascendant.h"
#include "astronomy/theory/AyanamsaFormulas.h"
#include "astronomy/theory/DayNumber.h"
#include "astronomy/theory/PlanetPlace.h"
#include "runtime/FloatingPointGuard.h"

#include <cmath>

namespace kelvaro {

namespace {

constexpr double epochJulianDay = 2415020.0;
constexpr double daysInCentury = 36525;

/// The node brought to 0 to 360.
double OnCircle(double degrees) {
    if (std::abs(degrees) > 360) {
        degrees -= std::floor(degrees / 360) * 360;
    } else if (degrees < 0) {
        degrees += 360;
    }
    return FnNormalize360(degrees);
}

std::int32_t DaysFromNewYear(int year, Moment moment) {
    return DateDiff(Interval::Day, MomentOf({year, 1, 1}), moment);
}

} // namespace

void ClsPlanet::FnCalculate() {
    const FloatingPointGuard guard;
    SplitBirthMoment();
    FnFindSiderealTime();
    guard.Check("the day number");
    FindSunAndMoon();
    guard.Check("the places of Sun and Moon");
    FindPlanets();
    guard.Check("the places of the planets");
    FindNodes();
    FindAyanamsa();
    guard.Check("the ayanamsa");
    FindLagnaAndMidHeaven();
    FnApplyAyanamsa();
    guard.Check("the sidereal longitudes");
}

void ClsPlanet::FnCalculateSunAndMoon() {
    const FloatingPointGuard guard;
    SplitBirthMoment();
    FnFindSiderealTime();
    FindSunAndMoon();
    FindAyanamsa();
    guard.Check("the places of Sun and Moon");
    ApplyToSunAndMoon();
    guard.Check("the sidereal longitudes");
}

void ClsPlanet::SplitBirthMoment() {
    civil_ = Split(BirthDateTime);
}

double ClsPlanet::ClockHours() const {
    return civil_.clock.hour + civil_.clock.minute / 60.0 - TZone;
}

void ClsPlanet::FnFindSiderealTime() {
    UniversalHours = civil_.clock.minute / 60.0 + civil_.clock.hour - TZone - DSAVE;
    FnFindDayNumber();
    Centuries = DayNumber / daysInCentury + UniversalHours / 876600;
}

void ClsPlanet::FnFindDayNumber() {
    // No moment lies in a year zero, which has no number.
    DayNumber = DayNumberOf(civil_.date.year, civil_.date.month, civil_.date.day).value_or(DayNumber);
    JulianDay = DayNumber + epochJulianDay;
    JulianDayNumber = JulianDay + 0.5;
}

/// The time of the ayanamsa and the Lagna, which knows no daylight saving.
double ClsPlanet::ClockCenturies() const {
    return ((ClockHours() / 24 + (JulianDayNumber - epochJulianDay)) - 0.5) / daysInCentury;
}

void ClsPlanet::FindSunAndMoon() {
    sun_ = FnFindSun(Centuries);
    moon_ = FnFindMoon({Centuries, Centuries * Centuries, CenturiesCubed});
    tropical_.sun = sun_.apparentLongitude;
    tropical_.moon = moon_.longitude;
}

void ClsPlanet::FindPlanets() {
    const PlanetElements elements(Centuries);
    const auto place = [&](Planet planet) { return FnFindPlanet(planet, Centuries, elements, sun_); };
    tropical_.mercury = place(Planet::Mercury);
    tropical_.venus = place(Planet::Venus);
    tropical_.mars = place(Planet::Mars);
    tropical_.jupiter = place(Planet::Jupiter);
    tropical_.saturn = place(Planet::Saturn);
}

void ClsPlanet::FindNodes() {
    tropical_.rahu = OnCircle(moon_.meanNode);
    tropical_.kethu = OnCircle(tropical_.rahu + 180);
}

void ClsPlanet::FindAyanamsa() {
    const int year = civil_.date.year;
    switch (AyanamsaOf(AyType)) {
    case Ayanamsa::Lahiri:
        Ayanamsa = FnFindLahiri(ClockCenturies());
        break;
    case Ayanamsa::Raman:
        Ayanamsa = -FnFindRaman(year, DaysFromNewYear(year, BirthDateTime));
        break;
    case Ayanamsa::KP:
        Ayanamsa = -FnFindKP(DaysFromNewYear(1900, BirthDateTime));
        break;
    case Ayanamsa::Sayana:
        Ayanamsa = 0;
        break;
    case Ayanamsa::Custom:
        Ayanamsa = -FnFindCustom(strZeroYearVal, strProgressVal, year, DaysFromNewYear(year, BirthDateTime));
        break;
    case Ayanamsa::Unknown:
        break; // that of the calculation before
    }
}

void ClsPlanet::FindLagnaAndMidHeaven() {
    const FloatingPointGuard guard;
    const Ascendant points =
        FnFindLagna(ClockCenturies(), ClockHours(), SignedDegrees(CL_LatitudeDeg, CL_LatitideMin),
                    SignedDegrees(CL_LongitudeDeg, CL_LongitudeMin));
    guard.Check("the Lagna");
    LagnaValue = FnNormalize360(points.lagna + Ayanamsa);
    MidHeaven = FnNormalize360(points.midHeaven + Ayanamsa);
}

void ClsPlanet::ApplyToSunAndMoon() {
    SuryaValue = FnNormalize360(tropical_.sun + Ayanamsa);
    ChandraValue = FnNormalize360(tropical_.moon + Ayanamsa);
}

void ClsPlanet::FnApplyAyanamsa() {
    ApplyToSunAndMoon();
    KujaValue = FnNormalize360(tropical_.mars + Ayanamsa);
    BudhaValue = FnNormalize360(tropical_.mercury + Ayanamsa);
    GuruValue = FnNormalize360(tropical_.jupiter + Ayanamsa);
    SukraValue = FnNormalize360(tropical_.venus + Ayanamsa);
    SaniValue = FnNormalize360(tropical_.saturn + Ayanamsa);
    RahuValue = FnNormalize360(tropical_.rahu + Ayanamsa);
    KethuValue = FnNormalize360(tropical_.kethu + Ayanamsa);
}

} // namespace kelvaro
