// Two readers of charts. An input that opens with a brace is a birth for the JSON tool; any other is a row of
// the saved charts with whatever values, opened, computed and saved again as the form does it.

#include "fuzz/Require.h"
#include "horoscope/Horoscope.h"
#include "horoscope/entry/BirthStorage.h"
#include "store/charts/ChartStore.h"
#include "store/database/Recordset.h"
#include "tests/horoscope/MemorySettings.h"
#include "tools/births/BirthReader.h"
#include "tools/births/RunStatus.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

using namespace kelvaro;

/// A column with the values that the program itself would have stored: whole numbers up to a highest, or a
/// text.
struct Column {
    const char *name;
    std::int64_t highest;
    const char *text = nullptr;
};

constexpr std::array<Column, 17> columns{{
    {"ChartName", 0, "Uma~4-Jul-1965"},
    {"Gender", 0, "Female"},
    {"Country", 247},
    {"City", 0, "Sao Paulo"},
    {"ChartDay", 28},
    {"ChartMonth", 12},
    {"ChartYear", 3000},
    {"ChartHour", 23},
    {"ChartMinute", 59},
    {"ChartSecond", 59},
    {"LatitudeDegree", 90},
    {"Latitude_NS", 0, "S"},
    {"LatitudeMinute", 59},
    {"LongitudeDegree", 180},
    {"Longitude_EW", 0, "W"},
    {"LongitudeMinute", 59},
    {"TimeDifference", 375},
}};

/// A horoscope on a copy of the database in memory, whose table of charts takes values of any type.
struct Program {
    Program() {
        connection.OpenCopyInMemory(KELVARO_SEED_DATABASE);
        // A form that opens a chart lists the cities of its country: a few are enough here.
        connection.Execute("delete from City_Master where CityID % 1000 <> 1");
        connection.Execute("create table Loose as select * from ChartSave");
        connection.Execute("drop table ChartSave");
        connection.Execute("alter table Loose rename to ChartSave");
        connection.Execute("insert into ChartSave (Sno) values (1)");
    }

    store::Connection connection;
    RunStatus status;
    Horoscope horoscope{connection, status};
    MemorySettings settings;
};

store::Value AnyValue(FuzzedDataProvider &input) {
    switch (input.ConsumeIntegralInRange(0, 3)) {
    case 0:
        return {};
    case 1:
        return input.ConsumeIntegral<std::int64_t>();
    case 2:
        return input.ConsumeFloatingPoint<double>();
    default:
        return input.ConsumeRandomLengthString(40);
    }
}

/// Mostly a value that gets the chart past the first tests.
store::Value ValueFor(const Column &column, FuzzedDataProvider &input) {
    if (input.ConsumeIntegralInRange(0, 15) == 15) {
        return AnyValue(input);
    }
    if (column.text != nullptr) {
        return std::string(column.text);
    }
    return column.highest - input.ConsumeIntegralInRange<std::int64_t>(0, column.highest);
}

void StoreRow(FuzzedDataProvider &input, store::Connection &connection) {
    store::Recordset row;
    row.Open("select * from ChartSave", connection);
    for (const Column &column : columns) {
        row.Assign(column.name, ValueFor(column, input));
    }
    row.Update();
}

/// A horoscope takes longer than all the rest, so not every chart is computed.
void OpenComputeAndSave(Program &program, bool isComputed) {
    const store::ChartList charts = store::ChartStore(program.connection).fnFillChart("All");
    Require(charts.List_VC_ChartName.size() == 1, "the list shows the one chart");
    OpenedBirth opened =
        OpenBirth(charts.List_VC_ChartName.front(), program.connection, program.horoscope.state);
    if (isComputed) {
        AcceptBirth(opened.fields, program.horoscope);
        // The run takes any exception for its own; this is what one of the library's would read like.
        Require(program.status.Failure().value_or("").find("__n ") == std::string::npos,
                "no index is out of range");
    }
    SaveBirth(opened.fields, program.connection, program.settings);
}

void TryRow(FuzzedDataProvider &input) {
    static Program program;
    const bool isComputed = input.ConsumeIntegralInRange(0, 31) == 31;
    StoreRow(input, program.connection);
    MayRefuse([isComputed] { OpenComputeAndSave(program, isComputed); });
    program.connection.Execute("delete from tempBhukthi");
}

void TryBirth(const std::string &line) {
    HoroscopeState state;
    try {
        ReadBirth(line, state);
    } catch (const BirthError &error) {
        Require(*error.what() != '\0', "an error has words");
        Require(state.birth.BirthMoment == Moment(), "a refused birth leaves the record as it was");
        return;
    }
    Require(state.site.LatDeg + state.site.LatMin / 60 <= 90, "the place lies on the earth");
    Require(state.site.LonDeg + state.site.LonMin / 60 <= 180, "the place lies on the earth");
    Require(Split(state.birth.BirthMoment).clock.second == 0, "the birth is a moment");
}

} // namespace

// NOLINTNEXTLINE(misc-use-internal-linkage): the fuzzer calls it by this name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size > 0 && *data == '{') {
        TryBirth(std::string(reinterpret_cast<const char *>(data), size));
    } else {
        FuzzedDataProvider input(data, size);
        TryRow(input);
    }
    return 0;
}
