#include "store/charts/ChartStore.h"
#include "store/database/Connection.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using namespace kelvaro;

/// The list of so many saved charts, by name.
void BM_ChartList(benchmark::State &state) {
    store::Connection connection;
    connection.OpenCopyInMemory(KELVARO_SEED_DATABASE);
    store::Transaction transaction(connection);
    for (std::int64_t chart = 0; chart < state.range(0); ++chart) {
        const std::string name = "Person " + std::to_string(chart * 7919 % state.range(0)) + "~1-Jan-2000";
        connection.Execute("insert into ChartSave (ChartName,Gender) values ('" + name + "','Male')");
    }
    transaction.Commit();
    const store::ChartStore charts(connection);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(charts.fnFillChart("All"));
    }
}
BENCHMARK(BM_ChartList)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
