#include "astronomy/ClsPlanet.h"
#include "astronomy/clsSunrise.h"
#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Horoscope.h"

#include <benchmark/benchmark.h>

namespace {

using namespace kelvaro;

/// A screen that shows nothing.
class NoDisplay : public StatusDisplay {
public:
    void OpenStatus() override {}
    void AdvanceStatusBar() override {}
    void CloseStatus() override {}
    void HideHoroscopeForms() override {}
    void ShowCurrentView(std::string_view) override {}
    void RunFailed(std::string_view, std::string_view) override {}
};

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

void BM_WholeHoroscope(benchmark::State &state) {
    NoDisplay display;
    store::Connection connection;
    connection.OpenCopyInMemory(KELVARO_SEED_DATABASE);
    Horoscope horoscope(connection, display);
    for ([[maybe_unused]] auto _ : state) {
        CalculateHoroscope(horoscope);
        benchmark::DoNotOptimize(horoscope.state.LagnaLon);
    }
}
BENCHMARK(BM_WholeHoroscope)->Unit(benchmark::kMicrosecond);

} // namespace
