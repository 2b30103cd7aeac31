#include "astronomy/clsSunrise.h"

#include "astronomy/theory/AngleReduction.h"
#include "runtime/FloatingPointGuard.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "runtime/Trigonometry.h"

#include <array>
#include <cmath>
#include <optional>

namespace kelvaro {

namespace {

// The literal values of this theory; they differ from those of the planets on purpose.
constexpr double degree = 0.0174532925;
constexpr double circle = 6.283185307;
constexpr double epochJ2000 = 51544.5; ///< Modified Julian Date
constexpr double daysInCentury = 36525;
constexpr double hoursInDay = 24;

/// Altitudes of the Sun's centre in radians: upper limb with refraction, civil, nautical, astronomical
/// twilight.
constexpr std::array<double, 4> altitudes{-0.014538592652499998, -0.104719755, -0.20943951,
                                          -0.31415926499999997};
constexpr std::size_t upperLimb = 0;

/// No place is without a sunrise for longer; beyond it the numbers are no place on the Earth.
constexpr double longestSearchHours = 24.0 * 366 * 10;

double FnFindMJD(double day, double month, double year, double hour) {
    if (month <= 2) {
        month += 12;
        year -= 1;
    }
    const double calendarDate = 10000 * year + 100 * month + day;
    // The Julian branch multiplies where a sum is usual; dates before the reform rest on it.
    const double leapDays = calendarDate <= 15821004.1
                                ? -2 * std::trunc((year + 4716) / 4) - 1179
                                : std::trunc(year / 400) - std::trunc(year / 100) + std::trunc(year / 4);
    return 365 * year - 679004 + leapDays + std::trunc(30.6001 * (month + 1)) + day + hour / 24;
}

struct Equatorial {
    double declination;    ///< degrees
    double rightAscension; ///< hours, 0 to 24
};

Equatorial FnFindMiniSun(double T) {
    const double M = circle * FractionOf(0.993133 + 99.997361 * T);
    const double DL = 6893 * Sine(M) + 72 * Sine(2 * M);
    const double longitude = circle * FractionOf(0.7859453 + M / circle + (6191.2 * T + DL) / 1296000);
    const double SL = Sine(longitude);
    const double X = Cosine(longitude);
    const double Y = 0.91748 * SL;
    const double Z = 0.39778 * SL;
    const double rho = std::sqrt(1 - Z * Z);
    Equatorial sun{(360 / circle) * ArcTangent(Z / rho), (48 / circle) * ArcTangent(Y / (X + rho))};
    if (sun.rightAscension < 0) {
        sun.rightAscension += 24;
    }
    return sun;
}

/// Mean sidereal hours of a place; `longitude` in degrees, East positive.
double FnFindLocalSiderealHours(double modifiedJulianDate, double longitude) {
    const double x = modifiedJulianDate - epochJ2000;
    const double T = x / daysInCentury;
    double g = 280.46061837 + 360.98564736629 * x + 0.000387933 * T * T - T * T * T / 38710000;
    g = (g / 360 - std::floor(g / 360)) * 360;
    if (g < 0) {
        g += 360;
    }
    return longitude / 15 + g / 15;
}

/// Three altitudes two hours apart in all, and where the parabola through them meets the horizon.
struct Parabola {
    int roots = 0;         ///< within the two hours
    double x1 = 0, x2 = 0; ///< hours from the middle
    double ye = 0;         ///< height of the extreme
};

/// Roots that are not found keep the values that they had.
void FnFindQuadraticRoots(double before, double middle, double after, Parabola &parabola) {
    const double a = 0.5 * (before + after) - middle;
    const double b = 0.5 * (after - before);
    const double c = middle;
    const double xe = -b / (2 * a);
    parabola.ye = (a * xe + b) * xe + c;
    parabola.roots = 0;
    const double discriminant = b * b - 4 * a * c;
    if (discriminant > 0) {
        const double dx = 0.5 * std::sqrt(discriminant) / std::abs(a);
        parabola.x1 = xe - dx;
        parabola.x2 = xe + dx;
        parabola.roots = (std::abs(parabola.x1) <= 1 ? 1 : 0) + (std::abs(parabola.x2) <= 1 ? 1 : 0);
        if (parabola.x1 < -1) {
            parabola.x1 = parabola.x2;
        }
    }
}

/// The altitude of the Sun over the hours of a date.
class Altitude {
public:
    Altitude(double date, double latitude, double longitude)
        : date_(date), longitude_(longitude), sinLatitude_(Sine(latitude * degree)),
          cosLatitude_(Cosine(latitude * degree)) {}

    double FnFindSinAltitude(double hour) const {
        const double t = date_ + hour / 24;
        const Equatorial sun = FnFindMiniSun((t - epochJ2000) / daysInCentury);
        const double hourAngle = (FnFindLocalSiderealHours(t, longitude_) - sun.rightAscension) * 15;
        return sinLatitude_ * Sine(sun.declination * degree) +
               cosLatitude_ * Cosine(sun.declination * degree) * Cosine(hourAngle * degree);
    }

private:
    double date_;
    double longitude_;
    double sinLatitude_;
    double cosLatitude_;
};

/// Hours of the date; counted on into the following days where the search went on.
struct EventHours {
    double rise = 0;
    std::optional<double> set;
    bool startsUp = false; ///< the Sun, with the date
};

/// The start of the date as a Modified Julian Date; degrees, North and East positive.
EventHours FnFindRiseAndSet(double date, double latitude, double longitude) {
    const FloatingPointGuard guard;
    const Altitude sun(date, latitude, longitude);
    const double horizon = Sine(altitudes[upperLimb]);
    const auto height = [&](double hour) { return sun.FnFindSinAltitude(hour) - horizon; };

    bool rise = false;
    bool set = false;
    double riseTime = 0;
    double setTime = 0;
    Parabola parabola;
    double before = height(0);
    const bool startsUp = before > 0;
    // Without a rise the search goes on through the following days.
    for (double hour = 1; !((hour >= 25 || set) && rise); hour += 2) {
        if (hour > longestSearchHours) {
            throw ArithmeticError("The Sun never rises at this place");
        }
        const double middle = height(hour);
        const double after = height(hour + 1);
        FnFindQuadraticRoots(before, middle, after, parabola);
        guard.Check("the altitude of the Sun");
        if (parabola.roots == 1) {
            (before < 0 ? rise : set) = true;
            (before < 0 ? riseTime : setTime) = hour + parabola.x1;
        } else if (parabola.roots == 2) {
            // Neither flag is raised here: the search goes on, and a later crossing may replace these times.
            riseTime = hour + (parabola.ye < 0 ? parabola.x2 : parabola.x1);
            setTime = hour + (parabola.ye < 0 ? parabola.x1 : parabola.x2);
        }
        before = after;
    }
    return {riseTime, set ? std::optional(setTime) : std::nullopt, startsUp};
}

/// To the whole minute and on the date asked for, whatever the count of hours.
Moment FnHoursToDate(double hours, const CivilDate &date) {
    const double minutes = std::trunc(hours * 60 + 0.5);
    const int minuteOfDay = static_cast<int>(std::fmod(minutes, 24 * 60));
    return MomentOf(date, {minuteOfDay / 60, minuteOfDay % 60, 0});
}

SunEvents::Lack LackOf(bool rises, bool sets, bool startsUp) {
    if (!sets && (rises || startsUp)) {
        return SunEvents::Lack::Sunset;
    }
    return rises ? SunEvents::Lack::Nothing : SunEvents::Lack::Sunrise;
}

} // namespace

SunEvents clsSunrise::FindEvents() const {
    const CivilDate date = Split(BirthDateTime).date;
    const double modifiedJulianDate = FnFindMJD(date.day, date.month, date.year, 0);
    const EventHours hours =
        FnFindRiseAndSet(modifiedJulianDate - STZ / 24, SignedDegrees(CL_LatitudeDeg, CL_LatitideMin),
                         SignedDegrees(CL_LongitudeDeg, CL_LongitudeMin));
    SunEvents events;
    events.sunrise = FnHoursToDate(hours.rise, date);
    if (hours.set) {
        events.sunset = FnHoursToDate(*hours.set, date);
    }
    events.rises = hours.rise <= hoursInDay;
    events.sets = hours.set && *hours.set <= hoursInDay;
    events.lack = LackOf(events.rises, events.sets, hours.startsUp);
    return events;
}

void clsSunrise::Take(const SunEvents &events) {
    m_dateSunrise = events.sunrise;
    if (events.sunset) {
        m_dateSunset = *events.sunset;
    }
}

} // namespace kelvaro
