#include "bench/HeadlessHoroscope.h"
#include "horoscope/CalculateHoroscope.h"
#include "report/HoroscopeReport.h"

#include <benchmark/benchmark.h>

namespace {

using namespace kelvaro;

void BM_ComposeReport(benchmark::State &state) {
    const auto antra = state.range(0) == 0 ? AntraSection::Without : AntraSection::With;
    HeadlessHoroscope headless;
    const Horoscope &horoscope = headless.horoscope;
    CalculateHoroscope(headless.horoscope);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(ComposeReport(horoscope.state, horoscope.forms, headless.connection, antra));
    }
}
BENCHMARK(BM_ComposeReport)->ArgName("antra")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace
