#include "horoscope/entry/BirthRemarks.h"

#include "horoscope/entry/BirthStorage.h"
#include "horoscope/entry/DateAndTimeRules.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "runtime/Texts.h"
#include "store/charts/ChartStore.h"

#include <span>

namespace kelvaro {

namespace {

using BirthRules = std::span<const Rule<BirthFields>>;

/// Whether rules are kept. A number that cannot be read breaks them, too.
bool AreKept(BirthRules rules, const BirthFields &fields) {
    try {
        return !FirstBroken(rules, fields);
    } catch (const ConversionError &) {
        return false;
    }
}

/// The clock time as it would be read; nothing for one that would be refused.
std::string ClockUnderstood(const BirthFields &fields) {
    if (!AreKept(timeRules, fields)) {
        return {};
    }
    try {
        // Whether a time exists does not depend on the date.
        return TimingText(ReadMoment("1/1/2000 " + TimeTextOf(fields))).substr(0, 5);
    } catch (const RuntimeError &) {
        return {};
    }
}

std::string DateUnderstood(const BirthFields &fields) {
    if (IsBlank(fields.txt_Date) || IsBlank(fields.txt_Month) || IsBlank(fields.txt_Year)) {
        return "no date yet";
    }
    return AreKept(dateRules, fields) ? LongDateText(ReadMoment(DateTextOf(fields)))
                                      : "no such date from 1800 to 3000";
}

std::string TimeUnderstood(const BirthFields &fields) {
    if (IsBlank(fields.cbHour) || IsBlank(fields.cbMins)) {
        return "no time yet";
    }
    const std::string clock = ClockUnderstood(fields);
    return clock.empty() ? "no such time" : clock;
}

/// Of a text that the user knows, so that the words around it can be seen.
constexpr std::size_t shownLetters = 48;

std::string PlaceText(std::string_view city, const store::Place &place) {
    return OneLine(city, shownLetters) + " " + NumberText(place.latDeg) + " " + place.latNS + " " +
           NumberText(place.latMin) + " " + NumberText(place.lonDeg) + " " + place.lonEW + " " +
           NumberText(place.lonMin);
}

std::string NotChosen(const std::string &what, bool isUnlisted) {
    return isUnlisted ? "no such " + what + " in the list" : what + " not chosen";
}

/// Country, city and zone. What depends on a choice that is not made yet is left out.
std::string PlaceUnderstood(const BirthFields &fields, const UnlistedPlaces &unlisted) {
    const BirthFields::Chosen &chosen = fields.chosen;
    if (chosen.country.empty() || fields.txt_VC_Country != chosen.country) {
        return NotChosen("country", unlisted.country);
    }
    const bool hasCity = !chosen.city.empty() && fields.txt_VC_City == chosen.city;
    const bool hasZone = !chosen.zone.empty() && fields.cbTimeZone == chosen.zone;
    const Site site = SiteOf(fields);
    return (hasCity ? PlaceText(chosen.city,
                                {site.LatDeg, site.LatMin, site.LatNS, site.LonDeg, site.LonMin, site.LonEW})
                    : NotChosen("city", unlisted.city)) +
           ", " +
           (hasZone ? NumberText(site.TimeDiff) + " hrs " + site.TimeDiffEW
                    : NotChosen("time zone", unlisted.zone));
}

/// Nothing for a gender that stands on the form.
std::string GenderUnderstood(const BirthFields &fields) {
    if (!IsBlank(fields.cbGender)) {
        return {};
    }
    const std::string stored = StoredGender(fields);
    // A saved chart can have one: it goes with the next Save only.
    return stored.empty() ? ", gender not chosen, Save would empty it"
                          : ", gender not chosen, stored as " + stored;
}

/// "Velnesh, 14-Jul-1965"
std::string SavedName(const BirthFields &fields) {
    const std::string person = store::PersonOf(fields.savedAs);
    const std::string_view date = std::string_view(fields.savedAs).substr(person.size());
    return OneLine(person, shownLetters) + (date.empty() ? "" : ", " + OneLine(date.substr(1), shownLetters));
}

} // namespace

Remark RemarkOnTime(const BirthFields &fields) {
    const bool stillReadsMidnight = fields.isOpenedFromNoon && fields.cbHour == "12" && !fields.Opt_PM;
    return stillReadsMidnight ? Remark{"12 AM is midnight. Born at noon? Choose PM.", true} : Remark{};
}

Remark RemarkOnChart(const BirthFields &fields) {
    if (fields.txt_VC_UserId == 0) {
        return {"Not saved yet"};
    }
    if (fields.savedAs.empty()) {
        return {"The saved chart has gone, so Save fails here. Instead: Close, Ctrl+N, Bring Back, Save.",
                true};
    }
    const std::string_view person = Trimmed(fields.Txt_VC_ChartName);
    const std::string saved = SavedName(fields);
    if (SameIgnoringCase(person, Trimmed(store::PersonOf(fields.savedAs)))) {
        return {"Saved as " + saved + ". Save changes that chart."};
    }
    return {"Save replaces the chart of " + saved +
                ". For a chart of its own: Close, Ctrl+N, Bring Back, Save.",
            true};
}

std::string BirthAsUnderstood(const BirthFields &fields, const UnlistedPlaces &unlisted) {
    return DateUnderstood(fields) + ", " + TimeUnderstood(fields) + ", " + PlaceUnderstood(fields, unlisted) +
           GenderUnderstood(fields);
}

std::string NameOfBirth(const BirthFields &fields) {
    const std::string_view person = Trimmed(fields.Txt_VC_ChartName);
    std::string name = person.empty() ? "no name" : OneLine(person, 24);
    const char *between = ", ";
    for (const std::string *part : {&fields.txt_Date, &fields.txt_Month, &fields.txt_Year}) {
        if (!IsBlank(*part)) {
            name.append(between).append(OneLine(*part, 5));
            between = " ";
        }
    }
    return name;
}

std::string ChartAtAGlance(const store::StoredChart &chart) {
    const Moment birth = MomentOf({chart.ChartYear, chart.ChartMonth, chart.ChartDay},
                                  {chart.ChartHour, chart.ChartMinute, chart.ChartSecond});
    return LongDateText(birth) + ", " + TimingText(birth).substr(0, 5) + ", " +
           PlaceText(chart.City, chart.place);
}

} // namespace kelvaro
