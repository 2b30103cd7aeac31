#include "bench/HeadlessHoroscope.h"
#include "horoscope/CalculateHoroscope.h"
#include "pages/HoroscopePages.h"
#include "pages/PdfFile.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

namespace {

using namespace kelvaro;

/// The pages composed and written as a document, from the horoscope on.
void BM_DrawnPages(benchmark::State &state) {
    const PageOptions options{state.range(0) == 0 ? AntraSection::Without : AntraSection::With,
                              state.range(0) != 0};
    const auto goOn = [](int /*done*/, int /*count*/) { return true; };
    HeadlessHoroscope headless;
    const Horoscope &horoscope = headless.horoscope;
    CalculateHoroscope(headless.horoscope);
    for ([[maybe_unused]] auto _ : state) {
        const HoroscopePages pages =
            ComposePages(horoscope.state, horoscope.forms, headless.connection, options);
        benchmark::DoNotOptimize(PdfOf(pages, goOn));
    }
}
BENCHMARK(BM_DrawnPages)->ArgName("all")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
