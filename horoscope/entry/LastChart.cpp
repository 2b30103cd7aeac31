#include "horoscope/entry/LastChart.h"

#include "horoscope/entry/BirthEntry.h"
#include "horoscope/record/HoroscopeState.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "runtime/Texts.h"

#include <algorithm>
#include <cstddef>

namespace kelvaro {

namespace {

/// A key with its part of the sample chart.
struct Key {
    std::string_view name, sample;
};

constexpr std::array<Key, 18> keys{{
    {"Name", "Velnesh"},
    {"Day", "14"},
    {"Month", "Jul"},
    {"Year", "1965"},
    {"Hour", "14"},
    {"Min", "15"},
    {"TimeZone", ""},
    {"Sex", "Male"},
    {"City", "Hyderabad (A.P)"},
    {"Country", "India"},
    {"LatNS", "N"},
    {"LatMin", "20"},
    {"LatDeg", "17"},
    {"LonEW", "E"},
    {"LonMin", "30"},
    {"LonDeg", "78"},
    {"TimeDiff", "5.5"},
    {"TimeDiffEW", "E"},
}};

// What a place and its offset from Greenwich go up to.
constexpr double pole = 90;
constexpr double antimeridian = 180;
constexpr double mostMinutes = 60;
constexpr double furthestZone = 14;

LastChart SampleChart() {
    LastChart chart;
    std::ranges::transform(keys, chart.begin(), [](const Key &key) { return std::string(key.sample); });
    return chart;
}

std::string LetterOf(const std::string &text, std::string_view choices) {
    if (text.size() != 1 || choices.find(text) == std::string_view::npos) {
        throw ConversionError("Type mismatch: \"" + text + "\" is no direction");
    }
    return text;
}

/// A number that the masters of cities and of time zones take.
double NumberWithin(const std::string &text, double highest) {
    const double number = NumberFromText(text);
    if (number < 0 || number > highest) {
        throw ConversionError("A number of its place, " + OneLine(text) + ", is not within 0 and " +
                              NumberText(highest) + ".");
    }
    return number;
}

/// Degrees with their minutes, which stay below a whole degree.
void RequireAngle(double degrees, double minutes, double highest) {
    constexpr double minutesOfDegree = 60;
    if (minutes >= minutesOfDegree || degrees + minutes / minutesOfDegree > highest) {
        throw ConversionError("There is no place at " + NumberText(degrees) + " degrees " +
                              NumberText(minutes) + " minutes.");
    }
}

/// Raises ConversionError, with the record as it was, for a text that cannot be read.
void PutInForce(const LastChart &chart, HoroscopeState &state) {
    // The text of the zone is kept and never read back.
    const auto &[name, day, month, year, hour, minute, unreadZone, sex, city, country, latNS, latMin, latDeg,
                 lonEW, lonMin, lonDeg, timeDiff, timeDiffEW] = chart;
    BirthDetails birth;
    birth.ChartName = name;
    birth.BirthDay = day;
    birth.BirthMonth = month;
    birth.BirthYear = year;
    birth.BirthHour = hour;
    birth.BirthMinute = minute;
    birth.BirthMoment = ReadMoment(day + "/" + month + "/" + year + " " + hour + ":" + minute + ": 00");
    birth.BirthGender = sex;
    birth.BirthCity = city;
    birth.BirthCountry = country;
    Site site;
    site.LatNS = LetterOf(latNS, "NS");
    site.LatMin = NumberWithin(latMin, mostMinutes);
    site.LatDeg = NumberWithin(latDeg, pole);
    RequireAngle(site.LatDeg, site.LatMin, pole);
    site.LonEW = LetterOf(lonEW, "EW");
    site.LonMin = NumberWithin(lonMin, mostMinutes);
    site.LonDeg = NumberWithin(lonDeg, antimeridian);
    RequireAngle(site.LonDeg, site.LonMin, antimeridian);
    site.TimeDiff = NumberWithin(timeDiff, furthestZone);
    site.TimeDiffEW = LetterOf(timeDiffEW, "EW");
    state.birth = birth;
    state.site = site;
    state.preferences.AyanamsaInForce = state.preferences.AyanamsaName;
}

} // namespace

std::string RestoreLastChart(SettingsStore &settings, HoroscopeState &state) {
    try {
        settings.RequireReadable();
        LastChart chart = LastChartIn(settings);
        std::ranges::transform(chart, chart.begin(), [](const std::string &text) { return OneLine(text); });
        PutInForce(chart, state);
        return {};
    } catch (const RuntimeError &error) {
        PutInForce(SampleChart(), state);
        return "The last chart cannot be read from the settings, this is the sample chart. " +
               std::string(error.what());
    }
}

LastChart LastChartOf(const BirthFields &fields) {
    const Site site = SiteOf(fields);
    return {fields.Txt_VC_ChartName,
            fields.txt_Date,
            fields.txt_Month,
            fields.txt_Year,
            HourText(fields),
            fields.cbMins,
            fields.cbTimeZone,
            fields.cbGender,
            fields.txt_VC_City,
            fields.txt_VC_Country,
            site.LatNS,
            NumberText(site.LatMin),
            NumberText(site.LatDeg),
            site.LonEW,
            NumberText(site.LonMin),
            NumberText(site.LonDeg),
            NumberText(site.TimeDiff),
            site.TimeDiffEW};
}

LastChart LastChartIn(SettingsStore &settings) {
    LastChart chart = SampleChart();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        chart[i] = settings.Read(keys[i].name).value_or(chart[i]);
    }
    return chart;
}

void KeepLastChart(const LastChart &chart, SettingsStore &settings) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        settings.Write(keys[i].name, chart[i]);
    }
    settings.Flush();
}

} // namespace kelvaro
