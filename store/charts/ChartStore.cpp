#include "store/charts/ChartStore.h"

#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/Texts.h"
#include "store/database/Dialect.h"
#include "store/database/NameCollation.h"
#include "store/database/Recordset.h"
#include "store/database/RowNumbers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kelvaro::store {

namespace {

struct ListChoice {
    std::string_view dataGen, statement, heading;
};

constexpr std::array<ListChoice, 4> listChoices{{
    {"Female", "Select Sno,ChartName From ChartSave where gender = 'Female' order by ChartName ",
     "Select Female Details"},
    {"Male", "Select Sno,ChartName From ChartSave where gender = 'Male' order by ChartName ",
     "Select Male Details"},
    {"All", "Select Sno,ChartName From ChartSave order by ChartName ", "Select User Details"},
    {"G", "Select Sno,ChartName From GChartSave order by ChartName ", "Select Couple Details"},
}};

std::string MonthAbbreviation(Moment date) {
    return MonthNameDateText(date).substr(3, 3);
}

std::string InsertOf(const ChartToSave &chart) {
    const CivilDate date = Split(chart.SC_Date).date;
    const CivilClock clock = Split(chart.SC_Time).clock;
    const std::string name = NameWithDate(chart.SC_ChartName, std::to_string(date.day),
                                          MonthAbbreviation(chart.SC_Date), std::to_string(date.year));
    std::string values = Quoted(name);
    for (const std::string &value :
         {Quoted(chart.SC_Gender), Quoted(chart.SC_Country), Quoted(chart.SC_City), std::to_string(date.day),
          std::to_string(date.month), std::to_string(date.year), std::to_string(clock.hour),
          std::to_string(clock.minute), std::to_string(clock.second), NumberText(chart.SC_LatDeg),
          Quoted(chart.SC_LatNS), NumberText(chart.SC_LatMin), NumberText(chart.SC_LonDeg),
          Quoted(chart.SC_LonEW), NumberText(chart.SC_LonMin), NumberText(chart.SC_TimeDiff)}) {
        values.append(",").append(value);
    }
    return "insert into ChartSave (ChartName,Gender,Country,City,ChartDay,ChartMonth,ChartYear,ChartHour,"
           "ChartMinute,ChartSecond,LatitudeDegree,Latitude_NS,LatitudeMinute,LongitudeDegree,Longitude_EW,"
           "LongitudeMinute,TimeDifference) values  (" +
           values + ")";
}

void AssignPlace(const Place &place, Recordset &row) {
    row.Assign("LatitudeDegree", place.latDeg);
    row.Assign("Latitude_NS", place.latNS);
    row.Assign("LatitudeMinute", place.latMin);
    row.Assign("LongitudeDegree", place.lonDeg);
    row.Assign("Longitude_EW", place.lonEW);
    row.Assign("LongitudeMinute", place.lonMin);
}

/// Name and date each as one line: the date stays in sight behind a name that is too long.
std::string ShownName(const std::string &nameWithDate) {
    const auto end = std::min(nameWithDate.find('~'), nameWithDate.size());
    return OneLine(nameWithDate.substr(0, end)) + OneLine(nameWithDate.substr(end));
}

Value WholeNumber(std::int32_t number) {
    return std::int64_t{number};
}

} // namespace

std::string NameWithDate(std::string_view person, std::string_view day, std::string_view month,
                         std::string_view year) {
    std::string name(person);
    name.append("~").append(day).append("-").append(month).append("-").append(year);
    return name;
}

std::string PersonOf(std::string_view nameWithDate) {
    return std::string(nameWithDate.substr(0, nameWithDate.find('~')));
}

ChartList ChartStore::fnFillChart(std::string_view DataGen) const {
    const auto choice = std::ranges::find(listChoices, DataGen, &ListChoice::dataGen);
    if (choice == listChoices.end()) {
        return {};
    }
    ChartList list{std::string(choice->heading), {}};
    Recordset rows;
    rows.Open(std::string(choice->statement) + std::string(inAnyCase), connection_);
    rows.ForEach([&list](const Recordset &row) {
        list.List_VC_ChartName.push_back({ShownName(row.Text("ChartName")), row.Integer("SNO")});
    });
    return list;
}

SavedOrNot ChartStore::SC_SaveChart(const ChartToSave &chart) {
    // Stored names end in a date and the box holds none, so two charts of one person do not collide here.
    if (IsNameUsed(Trimmed(chart.Txt_SC_ChartName))) {
        return {
            false,
            {"Chart Name Already Used , Enter Another Name", Notice::Icon::Information, "Txt_SC_ChartName"}};
    }
    BringNumbersBack("ChartSave", "Sno", connection_);
    connection_.Execute(InsertOf(chart));
    return {true, {"Chart Successfully Saved"}};
}

bool ChartStore::IsNameUsed(std::string_view name) const {
    Recordset rows;
    rows.Open("Select ChartName From ChartSave", connection_);
    for (; !rows.IsEndOfFile(); rows.MoveNext()) {
        if (rows.Text(std::size_t{0}) == name) {
            return true;
        }
    }
    return false;
}

std::int32_t ChartStore::NewestNumber() const {
    Recordset newest;
    newest.Open("Select Max(SNO) From ChartSave", connection_);
    return newest.IsNull(std::size_t{0}) ? 0 : newest.Integer(std::size_t{0});
}

std::optional<std::string> ChartStore::NameOf(std::int32_t number) const {
    Recordset row;
    row.Open("Select ChartName From ChartSave where Sno = " + std::to_string(number), connection_);
    return row.IsEndOfFile() ? std::nullopt : std::optional(row.Text(std::size_t{0}));
}

StoredChart ChartStore::Read(std::int32_t number) const {
    Recordset row;
    row.Open("Select * From ChartSave where Sno = " + std::to_string(number), connection_);
    StoredChart chart;
    chart.Sno = row.Integer("SNO");
    chart.ChartName = ShownName(row.Text("ChartName"));
    chart.Gender = row.Line("gender");
    chart.Country = row.Integer("Country");
    chart.City = row.Line("City");
    chart.ChartDay = row.Integer("ChartDay");
    chart.ChartMonth = row.Integer("ChartMonth");
    chart.ChartYear = row.Integer("ChartYear");
    chart.ChartHour = row.Integer("ChartHour");
    chart.ChartMinute = row.Integer("ChartMinute");
    chart.ChartSecond = row.Integer("ChartSecond");
    chart.place = PlaceIn(row);
    if (!row.IsNull("Timedifference")) {
        chart.TimeDifference = row.Integer("Timedifference");
    }
    return chart;
}

void ChartStore::Update(const StoredChart &chart) {
    Recordset row;
    row.Open("select * from ChartSave where Sno = " + std::to_string(chart.Sno), connection_);
    if (row.IsEndOfFile()) {
        throw StoreError("The chart to be changed is no longer among the saved charts.");
    }
    row.Assign("ChartName", chart.ChartName);
    row.Assign("Gender", chart.Gender);
    row.Assign("Country", WholeNumber(chart.Country));
    row.Assign("City", chart.City);
    row.Assign("ChartDay", WholeNumber(chart.ChartDay));
    row.Assign("ChartMonth", WholeNumber(chart.ChartMonth));
    row.Assign("ChartYear", WholeNumber(chart.ChartYear));
    row.Assign("ChartHour", WholeNumber(chart.ChartHour));
    row.Assign("ChartMinute", WholeNumber(chart.ChartMinute));
    row.Assign("ChartSecond", WholeNumber(chart.ChartSecond));
    AssignPlace(chart.place, row);
    row.Assign("TimeDifference", chart.TimeDifference ? WholeNumber(*chart.TimeDifference) : Value{});
    row.Update();
}

void ChartStore::Delete(std::int32_t number) {
    connection_.Execute("delete from Chartsave where SNo =" + std::to_string(number));
}

} // namespace kelvaro::store
