#pragma once

#include "astronomy/Ayanamsa.h"
#include "astronomy/Site.h"
#include "horoscope/record/Houses.h"
#include "horoscope/record/Names.h"
#include "horoscope/record/Positions.h"
#include "runtime/Moment.h"

#include <cstdint>
#include <string>

namespace kelvaro {

/// The preferences in force, as their stored words.
struct Preferences {
    double DaysInYear = 365.25; ///< year length of the dasa arithmetic, days
    std::string ChartStyle = "South";
    std::string Language = "English";
    double PrefYear = 0;     ///< zero year of the custom ayanamsa
    double PrefProgress = 0; ///< yearly progress of the custom ayanamsa, seconds of arc
    std::string AyanamsaName = "Lahiri";
    std::string BhavaSystem = "Equal";

    // The copies that the astronomy receives.
    std::string AyanamsaInForce = "Lahiri";
    double YearInForce = 0;
    double ProgressInForce = 0;

    AyanamsaSettings InForce() const { return {AyanamsaInForce, YearInForce, ProgressInForce}; }
};

/// A birth as entered: texts where they are copied straight from the entry fields. At first it is that of the
/// sample chart.
struct BirthDetails {
    std::string ChartName = "Velnesh";
    std::string BirthDay = "14";
    std::string BirthMonth = "Jul"; ///< name or number
    std::string BirthYear = "1965";
    std::string BirthHour = "14"; ///< on a 24-hour clock
    std::string BirthMinute = "15";
    std::string BirthTimeZoneName;
    Moment BirthMoment;
    std::string BirthGender = "Male";
    std::string BirthCity = "Hyderabad (A.P)";
    std::string BirthCountry = "India";
};

/// Where the sample chart was born.
inline const Site sampleSite{17, 20, "N", 78, 30, "E", 5.5, "E"};

/// The birth in ghatis since sunrise.
struct GhatiTimes {
    Moment SummaryMoment;
    Moment LocalMeanTimeMoment;
    Moment SunriseForGhati;       ///< of the day that holds the birth
    double IshtaGhatiMinutes = 0; ///< whole minutes from that sunrise
    double IshtaGhati = 0;        ///< the same in ghatis of 24 minutes
};

/// Of the Moon, from the Ashtakavarga: star, quarter 1 to 4, and Navamsa sign as clsStar left it.
struct MoonStar {
    std::string MoonStarName;
    std::int16_t MoonStarPada = 0;
    std::int16_t MoonHouseNo = 0;
};

/// The horoscope in force: preferences, birth details as entered, and the results of the last run.
///
/// A plain record, which the steps of the driver fill. Results are overwritten by each run and never cleared.
struct HoroscopeState {
    Preferences preferences;
    BirthDetails birth;
    Site site = sampleSite;

    Positions positions;
    DayOfBirth day;
    GhatiTimes ghati;
    Houses houses;
    MoonStar moonStar;
    std::string DasaBalanceText; ///< dasa balance at birth, as the report words it
    Names names;
};

} // namespace kelvaro
