#include "horoscope/entry/LastChart.h"

#include "horoscope/entry/BirthEntry.h"
#include "horoscope/record/HoroscopeState.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <array>
#include <cstddef>

namespace kelvaro {

namespace {

/// A key with its part of the sample chart. The text of the zone is kept and never read back.
struct Key {
    std::string_view name, sample;
    bool isRead = true;
};

constexpr std::array<Key, 18> keys{{
    {"Name", "Velnesh"},
    {"Day", "14"},
    {"Month", "Jul"},
    {"Year", "1965"},
    {"Hour", "14"},
    {"Min", "15"},
    {"TimeZone", "", false},
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

using KeyTexts = std::array<std::string, keys.size()>;

KeyTexts SampleTexts() {
    KeyTexts texts;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        texts[i] = keys[i].sample;
    }
    return texts;
}

KeyTexts TextsIn(SettingsStore &settings) {
    KeyTexts texts = SampleTexts();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[i].isRead) {
            texts[i] = settings.Read(keys[i].name).value_or(texts[i]);
        }
    }
    return texts;
}

void Write(const KeyTexts &texts, SettingsStore &settings) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        settings.Write(keys[i].name, texts[i]);
    }
    settings.Flush();
}

std::string LetterOf(const std::string &text, std::string_view choices) {
    if (text.size() != 1 || choices.find(text) == std::string_view::npos) {
        throw ConversionError("Type mismatch: \"" + text + "\" is no direction");
    }
    return text;
}

/// Raises ConversionError, with the record as it was, for a text that cannot be read.
void PutInForce(const KeyTexts &texts, HoroscopeState &state) {
    const auto &[name, day, month, year, hour, minute, zone, sex, city, country, latNS, latMin, latDeg, lonEW,
                 lonMin, lonDeg, timeDiff, timeDiffEW] = texts;
    HoroscopeState restored = state;
    restored.birth.ChartName = name;
    restored.birth.BirthDay = day;
    restored.birth.BirthMonth = month;
    restored.birth.BirthYear = year;
    restored.birth.BirthHour = hour;
    restored.birth.BirthMinute = minute;
    restored.birth.BirthMoment =
        ReadMoment(day + "/" + month + "/" + year + " " + hour + ":" + minute + ": 00");
    restored.birth.BirthTimeZoneName = zone;
    restored.birth.BirthGender = sex;
    restored.birth.BirthCity = city;
    restored.birth.BirthCountry = country;
    restored.site.LatNS = LetterOf(latNS, "NS");
    restored.site.LatMin = NumberFromText(latMin);
    restored.site.LatDeg = NumberFromText(latDeg);
    restored.site.LonEW = LetterOf(lonEW, "EW");
    restored.site.LonMin = NumberFromText(lonMin);
    restored.site.LonDeg = NumberFromText(lonDeg);
    restored.site.TimeDiff = NumberFromText(timeDiff);
    restored.site.TimeDiffEW = LetterOf(timeDiffEW, "EW");
    restored.preferences.AyanamsaInForce = state.preferences.AyanamsaName;
    state = restored;
}

} // namespace

std::string RestoreLastChart(SettingsStore &settings, HoroscopeState &state) {
    try {
        PutInForce(TextsIn(settings), state);
        return {};
    } catch (const ConversionError &error) {
        PutInForce(SampleTexts(), state);
        return "The last chart cannot be read from the settings, this is the sample chart. " +
               std::string(error.what());
    }
}

void KeepLastChart(const BirthFields &fields, SettingsStore &settings) {
    Write({fields.Txt_VC_ChartName, fields.txt_Date, fields.txt_Month, fields.txt_Year, HourText(fields),
           fields.cbMins, fields.cbTimeZone, fields.cbGender, fields.txt_VC_City, fields.txt_VC_Country,
           fields.txt_VC_LatNS, NumberText(fields.txt_VC_LatMin), NumberText(fields.txt_VC_LatDeg),
           fields.txt_VC_LonEW, NumberText(fields.txt_VC_LonMin), NumberText(fields.txt_VC_LonDeg),
           NumberText(fields.txt_VC_TimeDiff), fields.txt_VC_TimeDiffEW},
          settings);
}

void KeepLastChartAround(const std::function<void()> &work, const BirthFields &fields,
                         SettingsStore &settings) {
    KeyTexts before = SampleTexts();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        before[i] = settings.Read(keys[i].name).value_or(before[i]);
    }
    KeepLastChart(fields, settings);
    try {
        work();
    } catch (...) {
        Write(before, settings);
        throw;
    }
}

} // namespace kelvaro
