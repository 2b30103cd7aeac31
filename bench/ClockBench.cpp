#include "horoscope/entry/BirthplaceClock.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <string>

namespace {

using namespace kelvaro;

/// Births of 150 years in four zones, one of which has no summer time.
void BM_CheckClock(benchmark::State &state) {
    const std::array<std::string, 4> zones{"America/Chicago", "Asia/Kolkata", "Europe/Dublin",
                                           "Pacific/Apia"};
    std::size_t count = 0;
    for ([[maybe_unused]] auto _ : state) {
        ++count;
        const auto day = static_cast<int>(count);
        const CivilMoment shown{{1880 + day % 150, 1 + day % 12, 1 + day % 28}, {day % 24, day % 60, 0}};
        benchmark::DoNotOptimize(CheckClock({shown, zones[count % zones.size()], 5.5}));
    }
}
BENCHMARK(BM_CheckClock)->Unit(benchmark::kMicrosecond);

} // namespace
