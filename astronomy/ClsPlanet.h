#pragma once

#include "astronomy/theory/MoonPlace.h"
#include "astronomy/theory/SunPlace.h"
#include "runtime/Moment.h"

#include <string>

namespace kelvaro {

/// Turns one civil moment and one place into the sidereal longitudes of Sun, Moon, planets, nodes, Lagna and
/// Midheaven.
///
/// A mean-elements theory: polynomials counted from 1900 January 0.5 (Newcomb's Sun, Brown's Moon in fifty
/// terms, Le Verrier's planets), then periodic terms. Universal and dynamical time are taken as one scale;
/// places are not topocentric. The literal constants are part of the results.
///
/// Set the inputs, call `FnCalculate`, read the outputs: sidereal degrees from 0 to 360, both ends possible.
/// One instance is neither re-entrant nor shareable.
class ClsPlanet {
public:
    Moment BirthDateTime;       ///< civil date and clock at the place; seconds do not count
    double CL_LongitudeDeg = 0; ///< East negative
    double CL_LongitudeMin = 0; ///< never negative
    double CL_LatitudeDeg = 0;  ///< South negative
    double CL_LatitideMin = 0;  ///< never negative
    double TZone = 0;           ///< hours East of Greenwich, West negative
    double strProgressVal = 0;  ///< rate of the custom ayanamsa, seconds of arc a year
    double strZeroYearVal = 0;  ///< zero year of the custom ayanamsa
    double DSAVE = 0;           ///< daylight saving, hours
    double LagnaValue = 0;
    double SuryaValue = 0;   ///< Sun
    double ChandraValue = 0; ///< Moon
    double KujaValue = 0;    ///< Mars
    double BudhaValue = 0;   ///< Mercury
    double GuruValue = 0;    ///< Jupiter
    double SukraValue = 0;   ///< Venus
    double SaniValue = 0;    ///< Saturn
    double RahuValue = 0;    ///< ascending mean node
    double KethuValue = 0;   ///< descending mean node
    double MidHeaven = 0;
    double Ayanamsa = 0; ///< degrees added to tropical longitudes, negative but for "Sayana"
    std::string AyType;  ///< "Lahiri", "Raman", "KP", "Sayana" or "Custom"; for any other word Ayanamsa stays
                         ///< as it was

    /// Raises ArithmeticError for an invalid floating-point step, OverflowError for a moment outside the
    /// calendar. Outputs already written stay written.
    void FnCalculate();

    /// The part of `FnCalculate` that an hourly search needs: SuryaValue, ChandraValue and Ayanamsa come out
    /// the same, the other outputs stay as they were.
    void FnCalculateSunAndMoon();

private:
    /// Tropical degrees; the Moon and the nodes are not brought to the circle.
    struct TropicalLongitudes {
        double sun = 0, moon = 0, mars = 0, mercury = 0, jupiter = 0, venus = 0, saturn = 0, rahu = 0,
               kethu = 0;
    };

    void SplitBirthMoment();
    void FnFindSiderealTime();
    void FnFindDayNumber();
    double ClockHours() const;
    double ClockCenturies() const;
    void FindSunAndMoon();
    void FindPlanets();
    void FindNodes();
    void FindAyanamsa();
    void FindLagnaAndMidHeaven();
    void ApplyToSunAndMoon();
    void FnApplyAyanamsa();

    CivilMoment civil_;
    double UniversalHours = 0;  ///< may lie below 0 or above 24
    double DayNumber = 0;       ///< days from 1900 January 0.5 to 0 hours of the civil date
    double JulianDay = 0;       ///< DayNumber + 2415020.0
    double JulianDayNumber = 0; ///< JulianDay + 0.5
    double Centuries = 0;       ///< T, Julian centuries from the epoch
    double CenturiesCubed = 0;  ///< never assigned: the cubic terms of the Moon drop out
    SunPlace sun_;
    MoonPlace moon_;
    TropicalLongitudes tropical_;
};

} // namespace kelvaro
