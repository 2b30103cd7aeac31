#pragma once

#include "astronomy/Ayanamsa.h"
#include "astronomy/Site.h"
#include "runtime/Moment.h"

#include <array>
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

/// What a position pass finds in the sky, for one division size. Longitudes are degrees of the sidereal
/// zodiac (tropical when the ayanamsa is "Sayana").
struct Positions {
    Moment BirthMomentDate;
    double Ayanamsa = 0; ///< degrees added to tropical longitudes, normally negative
    double MidHeaven = 0;
    double LagnaLon = 0, SunLon = 0, MoonLon = 0, MarsLon = 0, MercuryLon = 0, JupiterLon = 0, VenusLon = 0,
           SaturnLon = 0, RahuLon = 0, KetuLon = 0, GulikaLon = 0, MaandiLon = 0;
    /// 1 (Aries, Mesha) to 12 (Pisces, Meena): of the Rasi or of the Navamsa, by the division size.
    std::int16_t LagnaRasi = 0, SunRasi = 0, MoonRasi = 0, MarsRasi = 0, MercuryRasi = 0, JupiterRasi = 0,
                 VenusRasi = 0, SaturnRasi = 0, RahuRasi = 0, KetuRasi = 0, GulikaRasi = 0, MaandiRasi = 0;
};

/// The limits of the day of birth, and Gulika and Maandi in it.
struct DayOfBirth {
    /// Of the civil date of birth and of the date after it.
    Moment SunriseOfBirthDay, SunsetOfBirthDay, SunriseNextDay;
    /// Of the astrological day, sunrise to sunrise, that holds the birth.
    Moment DayCurrentDate, DaySunrise, DaySunset, DayNextSunrise;
    std::string DayOrNight;
    Moment GulikaDay, GulikaNight, MandiDay, MandiNight;
    Moment GulikaMoment, MandiMoment;
};

/// The birth in the reckoning of ghatis since sunrise.
struct GhatiTimes {
    Moment SummaryMoment;
    Moment LocalMeanTimeMoment;
    Moment SunriseForGhati;       ///< of the day that holds the birth
    double IshtaGhatiMinutes = 0; ///< whole minutes from that sunrise
    double IshtaGhati = 0;        ///< the same in ghatis of 24 minutes
};

/// Houses 1 to 12, at index 0 to 11: start, mid point and end (sandhi) in degrees, rasi number, bodies
/// within.
struct Houses {
    std::array<double, 12> BhavaStart{}, BhavaMid{}, BhavaSandhi{};
    std::array<std::int16_t, 12> BhavaRasi{};
    std::array<std::string, 12> BhavaPlanets;
};

/// Of the Moon, from the Ashtakavarga: star, quarter 1 to 4, and Navamsa sign as clsStar left it.
struct MoonStar {
    std::string MoonStarName;
    std::int16_t MoonStarPada = 0;
    std::int16_t MoonHouseNo = 0;
};

/// Name tables of the language in force. The two planet tables differ in order: address them by Body only.
struct Names {
    std::array<std::string, 12> ShortNames; ///< Lagna to Ketu, Jupiter before Venus, then Gulika, Maandi
    std::array<std::string, 10> LongNames;  ///< Lagna to Ketu, Venus before Jupiter
    std::array<std::string, 12> RasiNames;  ///< rasi 1 at index 0
    std::array<std::string, 12> RasiShortNames;
    std::string GulikaLongName = "Gulika";
    std::string MaandiLongName = "Maandi";
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
