#include "astronomy/ClsPlanet.h"
#include "astronomy/clsSunrise.h"
#include "runtime/Moment.h"

#include <benchmark/benchmark.h>

namespace {

using namespace kelvaro;

/// Moments of one after another, so that no run repeats the one before.
Moment NextMoment(int &count) {
    ++count;
    return DateAdd(Interval::Hour, (count * 7) % 1000000, MomentOf({1900, 1, 1}, {0, 10, 0}));
}

void BM_FnCalculate(benchmark::State &state) {
    ClsPlanet planet;
    planet.AyType = "Lahiri";
    planet.CL_LatitudeDeg = 17;
    planet.CL_LongitudeDeg = -78;
    planet.TZone = 5.5;
    int count = 0;
    for ([[maybe_unused]] auto _ : state) {
        planet.BirthDateTime = NextMoment(count);
        planet.FnCalculate();
        benchmark::DoNotOptimize(planet.LagnaValue);
    }
}
BENCHMARK(BM_FnCalculate)->Unit(benchmark::kMicrosecond);

void BM_Sunrise(benchmark::State &state) {
    clsSunrise sunrise;
    sunrise.CL_LatitudeDeg = 17;
    sunrise.CL_LongitudeDeg = 78;
    sunrise.STZ = 5.5;
    int count = 0;
    for ([[maybe_unused]] auto _ : state) {
        sunrise.BirthDateTime = NextMoment(count);
        sunrise.FnCalculate();
        benchmark::DoNotOptimize(sunrise.m_dateSunrise);
    }
}
BENCHMARK(BM_Sunrise)->Unit(benchmark::kMicrosecond);

} // namespace
