#include "horoscope/entry/BirthStorage.h"

#include "horoscope/Horoscope.h"
#include "horoscope/entry/LastChart.h"
#include "runtime/MomentText.h"
#include "runtime/RuntimeError.h"
#include "runtime/Texts.h"
#include "store/database/Recordset.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace kelvaro {

namespace {

/// Of the rule that asks for a name.
const std::string_view nameField = birthRules.front().focus;

store::ChartToSave NewChart(const BirthFields &fields, Moment birth) {
    store::ChartToSave chart;
    chart.Txt_SC_ChartName = fields.Txt_VC_ChartName;
    chart.SC_ChartName = fields.Txt_VC_ChartName;
    chart.SC_Gender = StoredGender(fields);
    chart.SC_Country = std::to_string(fields.chosen.countryId);
    chart.SC_City = fields.txt_VC_City;
    chart.SC_Date = birth;
    chart.SC_Time = birth;
    chart.SC_LatDeg = fields.txt_VC_LatDeg;
    chart.SC_LatNS = fields.txt_VC_LatNS;
    chart.SC_LatMin = fields.txt_VC_LatMin;
    chart.SC_LonDeg = fields.txt_VC_LonDeg;
    chart.SC_LonEW = fields.txt_VC_LonEW;
    chart.SC_LonMin = fields.txt_VC_LonMin;
    chart.SC_TimeDiff = fields.chosen.zoneNumber;
    return chart;
}

store::StoredChart ChangedChart(const BirthFields &fields, Moment birth) {
    const CivilMoment parts = Split(birth);
    store::StoredChart chart;
    chart.Sno = fields.txt_VC_UserId;
    // The date as typed, where the name of a new chart has its number: "04-Jul-1965" beside "4-Jul-1965".
    chart.ChartName =
        store::NameWithDate(fields.Txt_VC_ChartName, fields.txt_Date, fields.txt_Month, fields.txt_Year);
    chart.Gender = StoredGender(fields);
    chart.Country = fields.chosen.countryId;
    chart.City = fields.txt_VC_City;
    chart.ChartDay = parts.date.day;
    chart.ChartMonth = parts.date.month;
    chart.ChartYear = parts.date.year;
    chart.ChartHour = parts.clock.hour;
    chart.ChartMinute = parts.clock.minute;
    chart.place = PlaceOf(fields);
    const std::int32_t zone = fields.chosen.zoneNumber;
    chart.TimeDifference = zone == 0 ? fields.txt_VC_TimeDiffId : zone;
    return chart;
}

store::SavedOrNot InsertBirth(BirthFields &fields, Moment birth, store::Connection &connection,
                              SettingsStore &settings) {
    store::ChartStore charts(connection);
    store::Transaction transaction(connection);
    store::SavedOrNot outcome = charts.SC_SaveChart(NewChart(fields, birth));
    if (!outcome.isSaved) {
        outcome.notice.focus = nameField;
        return outcome;
    }
    const std::int32_t number = charts.NewestNumber();
    std::string savedAs = charts.NameOf(number).value_or("");
    transaction.Commit();
    fields.txt_VC_UserId = number;
    fields.savedAs = std::move(savedAs);
    try {
        KeepLastChart(LastChartOf(fields), settings);
    } catch (const RuntimeError &error) {
        throw RuntimeError(std::string("The chart is saved, but it will not come back at the next start. ") +
                           error.what());
    }
    return outcome;
}

store::SavedOrNot UpdateBirth(BirthFields &fields, Moment birth, store::Connection &connection,
                              SettingsStore &settings) {
    store::Transaction transaction(connection);
    store::ChartStore charts(connection);
    if (!charts.NameOf(fields.txt_VC_UserId)) {
        fields.savedAs.clear();
        throw store::StoreError(
            "The chart to be changed is no longer among the saved charts. To store this "
            "birth, close the form, open a new one, bring back what was typed, and save.");
    }
    const store::StoredChart changed = ChangedChart(fields, birth);
    charts.Update(changed);
    // The settings come before the row, which stands only with the commit, but not before the database has
    // taken the row's values: a chart that has gone must not become the last chart.
    const LastChart before = LastChartIn(settings);
    KeepLastChart(LastChartOf(fields), settings);
    try {
        transaction.Commit();
    } catch (...) {
        KeepLastChart(before, settings);
        throw;
    }
    fields.savedAs = changed.ChartName;
    return {true, {"Details are Sucessfully Updated", Notice::Icon::None}};
}

/// A chart whose place cannot be found any more. What the list of charts shows of it is sound all the same.
store::StoreError NotOpened(const std::string &what) {
    store::StoreError error(
        "This chart cannot be opened: " + what +
        ". The other charts can. Date, time and place of this one stand below the list of "
        "charts: enter the birth anew from them.");
    return error;
}

store::Zone ZoneOf(std::int32_t number, const store::PlaceLists &lists) {
    try {
        return lists.ZoneNumbered(number);
    } catch (const store::RowGone &) {
        throw NotOpened("its time zone, number " + std::to_string(number) + ", is not in the database");
    }
}

/// Back to a 12-hour clock. Noon, too, becomes twelve with AM; the form says so beside the time.
void TakeHour(std::int32_t hour, BirthFields &fields) {
    fields.Opt_PM = hour > 12;
    fields.isOpenedFromNoon = hour == 12;
    if (hour == 0) {
        hour = 12;
    } else if (hour > 12) {
        hour -= 12;
    }
    fields.cbHour = std::to_string(hour);
}

} // namespace

std::string StoredGender(const BirthFields &fields) {
    if (fields.txt_VC_UserId != 0) {
        return fields.cbGender;
    }
    return fields.cbGender == "Male" ? "Male" : "Female";
}

store::SavedOrNot SaveBirth(BirthFields &fields, store::Connection &connection, SettingsStore &settings) {
    if (auto notice = FirstBroken(birthRules, fields)) {
        return {false, *std::move(notice)};
    }
    const Moment birth = MomentOfBirth(fields);
    return fields.txt_VC_UserId == 0 ? InsertBirth(fields, birth, connection, settings)
                                     : UpdateBirth(fields, birth, connection, settings);
}

OpenedBirth OpenBirth(const store::ListItem &chart, store::Connection &connection,
                      const HoroscopeState &state) {
    const store::StoredChart stored = store::ChartStore(connection).Read(chart.key);
    const store::PlaceLists lists(connection);
    const std::vector<store::ListItem> countries = lists.Countries();
    if (stored.Country < 1 || static_cast<std::size_t>(stored.Country) > countries.size()) {
        throw NotOpened("there is no country number " + std::to_string(stored.Country) +
                        " in the list of countries");
    }
    OpenedBirth opened;
    BirthFields &fields = opened.fields;
    fields.Txt_VC_ChartName = store::PersonOf(chart.text);
    fields.txt_VC_UserId = stored.Sno;
    fields.savedAs = stored.ChartName;
    fields.txt_Date = std::to_string(stored.ChartDay);
    fields.txt_Month =
        monthChoices.at(static_cast<std::size_t>(ReadMonth(std::to_string(stored.ChartMonth))) - 1);
    fields.txt_Year = std::to_string(stored.ChartYear);
    TakeHour(stored.ChartHour, fields);
    fields.cbMins = std::to_string(stored.ChartMinute);
    fields.cbGender = stored.Gender;
    const auto position = static_cast<std::size_t>(stored.Country) - 1;
    opened.choices = ChooseCountry(fields, countries[position], lists, state);
    fields.txt_VC_City = stored.City;
    TakePlace(stored.place, fields);
    if (stored.TimeDifference) {
        TakeZone(ZoneOf(*stored.TimeDifference, lists), fields);
        fields.chosen.zoneNumber = 0;
        fields.txt_VC_TimeDiffId = *stored.TimeDifference;
    }
    return opened;
}

std::int32_t ChartInForce(const BirthFields &fields, const Horoscope &horoscope,
                          std::span<const store::ListItem> charts) {
    if (fields.txt_VC_UserId != 0) {
        return fields.txt_VC_UserId;
    }
    if (horoscope.chartNumber != 0) {
        return horoscope.chartNumber;
    }
    const BirthDetails &birth = horoscope.state.birth;
    const auto nameWithDay = [&birth](const std::string &day) {
        return store::NameWithDate(birth.ChartName, day, birth.BirthMonth, birth.BirthYear);
    };
    // A changed chart is stored with the day as typed, a new one with its number.
    const std::string asTyped = nameWithDay(birth.BirthDay);
    const std::string asNumber = nameWithDay(std::to_string(Split(birth.BirthMoment).date.day));
    const auto found = std::ranges::find_if(charts, [&](const store::ListItem &chart) {
        return chart.text == asTyped || chart.text == asNumber;
    });
    return found == charts.end() ? 0 : found->key;
}

Notice NoChartChosen() {
    return {"Select Chart Name ", Notice::Icon::Information, "List_VC_ChartName"};
}

bool CanDeleteFromMenu(const BirthFields &fields) {
    return fields.txt_VC_UserId != 0;
}

bool CanDeleteFromToolbar(const BirthFields &fields) {
    return !IsBlank(fields.Txt_VC_ChartName);
}

Notice DeleteBirth(BirthFields &fields, store::Connection &connection) {
    store::ChartStore(connection).Delete(fields.txt_VC_UserId);
    ClearFields(fields);
    fields.savedAs.clear();
    return {"Successfully Deleted", Notice::Icon::Information, std::string(nameField)};
}

} // namespace kelvaro
