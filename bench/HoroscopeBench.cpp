#include "bench/HeadlessHoroscope.h"
#include "horoscope/CalculateHoroscope.h"
#include "horoscope/Calculators.h"

#include <benchmark/benchmark.h>

namespace {

using namespace kelvaro;

/// Both lunar dates, with the hourly walks to the full and new moons around the birth.
void BM_LunarDates(benchmark::State &state) {
    HeadlessHoroscope headless;
    Horoscope &horoscope = headless.horoscope;
    CalculateHoroscope(horoscope);
    LunarCalendar &calendar = horoscope.calculators->lunarCalendar;
    int days = 0;
    for ([[maybe_unused]] auto _ : state) {
        const Moment birth =
            DateAdd(Interval::Day, ++days % 10000, horoscope.state.positions.BirthMomentDate);
        TithiSearch search(horoscope.calculators->calendarPosition, horoscope.state.site,
                           horoscope.state.preferences.InForce(), birth);
        calendar.LunarDateKrishnadi(search, "");
        calendar.LunarDateSukladi(search, "");
        benchmark::DoNotOptimize(calendar.Sukladi());
    }
}
BENCHMARK(BM_LunarDates)->Unit(benchmark::kMicrosecond);

void BM_WholeHoroscope(benchmark::State &state) {
    HeadlessHoroscope headless;
    for ([[maybe_unused]] auto _ : state) {
        CalculateHoroscope(headless.horoscope);
        benchmark::DoNotOptimize(headless.horoscope.state.positions.LagnaLon);
    }
}
BENCHMARK(BM_WholeHoroscope)->Unit(benchmark::kMicrosecond);

} // namespace
