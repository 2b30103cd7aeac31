#pragma once

#include "astronomy/Site.h"
#include "runtime/Moment.h"
#include "runtime/Rule.h"
#include "store/masters/PlaceLists.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

struct Horoscope;
struct HoroscopeState;

inline constexpr std::array<std::string_view, 2> genderChoices{"Male", "Female"};
inline constexpr std::array<std::string_view, 12> monthChoices{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
inline constexpr int firstListedYear = 1900; ///< the years that the list offers; others can be typed
inline constexpr int lastListedYear = 2050;

/// The form of birth details: its texts under the names of its controls, and what it remembers beside them.
struct BirthFields {
    std::string Txt_VC_ChartName, cbGender;
    std::string txt_Date, txt_Month, txt_Year;
    std::string cbHour, cbMins;
    bool Opt_PM = false; ///< `Opt_AM` otherwise
    std::string txt_VC_Country, txt_VC_City, cbTimeZone;
    std::string txtLatDetails, txtLonDetails; ///< "17 N 20", "78 E 30"

    std::int32_t txt_VC_UserId = 0; ///< number of the saved chart on the form; 0 for one not yet stored
    std::string savedAs; ///< name with date under which that chart is stored; empty where it has gone
    std::int32_t txt_VC_TimeDiffId = 0; ///< number of the zone of an opened chart
    double txt_VC_LatDeg = 0, txt_VC_LatMin = 0, txt_VC_LonDeg = 0, txt_VC_LonMin = 0;
    std::string txt_VC_LatNS, txt_VC_LonEW;
    double txt_VC_TimeDiff = 0; ///< hours from Greenwich, its direction in txt_VC_TimeDiffEW
    std::string txt_VC_TimeDiffEW;
    std::string txt_VC_Ayanamsa; ///< the ayanamsa in force when a zone was chosen

    /// A combo box takes any text. These are the texts for which the rows of the lists, the place and the
    /// offset above were found; another text in the box has not been chosen yet.
    struct Chosen {
        std::string country, city, zone;
        std::int32_t countryId = 0;  ///< of the row of txt_VC_Country; 0 where none is chosen
        std::int32_t zoneNumber = 0; ///< of the row of cbTimeZone; 0 where none is chosen

        friend bool operator==(const Chosen &, const Chosen &) = default;
    } chosen;
    bool isOpenedFromNoon = false; ///< the stored hour was 12, which the form shows as 12 AM

    friend bool operator==(const BirthFields &, const BirthFields &) = default;
};

/// What the lists of cities and zones show once a country is chosen.
struct PlaceChoices {
    std::vector<store::ListItem> cities;
    std::vector<store::Zone> zones;
};

/// The fields at load: the first gender, date and time of the present moment, no place.
BirthFields FieldsAtLoad(Moment present);

/// Whether a user would see the same in both: the texts that can be typed, and AM or PM.
bool HaveSameTexts(const BirthFields &one, const BirthFields &other);

/// "New": empties the texts. The chart number stays, so a save that follows changes the chart that stood on
/// the form.
void ClearFields(BirthFields &fields);

/// The hour on a 24-hour clock as text: "12" with AM is "0", other AM hours stay as typed. Raises
/// ConversionError for a PM hour that is no number.
std::string HourText(const BirthFields &fields);

/// The clock time of the fields with seconds, to stand behind a date. Raises like `HourText`.
std::string TimeTextOf(const BirthFields &fields);

/// Date and clock of the fields. Raises ConversionError where they do not exist.
Moment MomentOfBirth(const BirthFields &fields);

/// The country's row has been chosen: empties city, place and zone, gives their new lists, and chooses the
/// zone of a country that has only one. Does nothing, and gives no lists, for an empty country.
PlaceChoices ChooseCountry(BirthFields &fields, const store::ListItem &country,
                           const store::PlaceLists &lists, const HoroscopeState &state);

/// The city that the text names has been chosen: takes its place over. A name without a city leaves the
/// place as it was and the city not chosen. Raises StoreError for a name with a quote.
void ChooseCity(BirthFields &fields, const store::PlaceLists &lists);

/// The zone's row has been chosen: takes its text, offset and direction over.
void ChooseZone(BirthFields &fields, std::int32_t zoneNumber, const store::PlaceLists &lists,
                const HoroscopeState &state);

/// Takes a place over, for the city that stands in the fields.
void TakePlace(const store::Place &place, BirthFields &fields);

/// Takes text, offset and direction of a zone over.
void TakeZone(const store::Zone &zone, BirthFields &fields);

/// The place that the fields stand for.
store::Place PlaceOf(const BirthFields &fields);

/// The place of the fields and the offset of its zone.
Site SiteOf(const BirthFields &fields);

/// The rules of the fields, in their order. They raise ConversionError, which names the field, for a year, an
/// hour or a minute that is no number.
extern const std::array<Rule<BirthFields>, 17> birthRules;
extern const std::span<const Rule<BirthFields>> dateRules; ///< those of them that the date must keep
extern const std::span<const Rule<BirthFields>> timeRules; ///< those of them that the clock time must keep

/// Puts the birth in force, without computing. Raises ConversionError, with the record as it was, for a time
/// that does not exist.
void HandOver(const BirthFields &fields, HoroscopeState &state);

/// "&OK": checks the fields, puts the birth in force and computes its horoscope; the run hides the form.
/// Returns what is to be told when a rule is broken, with nothing changed. Does nothing while another
/// horoscope is being computed. Raises like the rules and `HandOver`.
std::optional<Notice> AcceptBirth(const BirthFields &fields, Horoscope &horoscope);

} // namespace kelvaro
