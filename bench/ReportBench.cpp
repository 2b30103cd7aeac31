#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Horoscope.h"
#include "report/HoroscopeReport.h"
#include "tools/horoscope-json/RunStatus.h"

#include <benchmark/benchmark.h>

namespace {

using namespace kelvaro;

void BM_ComposeReport(benchmark::State &state) {
    const auto antra = state.range(0) == 0 ? AntraSection::Without : AntraSection::With;
    RunStatus status;
    store::Connection connection;
    connection.OpenCopyInMemory(KELVARO_SEED_DATABASE);
    Horoscope horoscope(connection, status);
    CalculateHoroscope(horoscope);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(ComposeReport(horoscope.state, horoscope.forms, connection, antra));
    }
}
BENCHMARK(BM_ComposeReport)->ArgName("antra")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace
