#include "horoscope/CalculateHoroscope.h"

#include "horoscope/ChartPositions.h"
#include "horoscope/Horoscope.h"
#include "horoscope/NamesForLanguage.h"
#include "panchanga/RasiOfLongitude.h"
#include "presentation/ChartCells.h"

#include <array>
#include <exception>
#include <string_view>

namespace kelvaro {

namespace {

struct Step {
    std::string_view name;
    void (*run)(Horoscope &);
};

void LoadHoroscopeForms(Horoscope &horoscope) {
    horoscope.status.HideHoroscopeForms();
    horoscope.forms = {};
}

/// The fill of the status display moves on after each of them.
constexpr std::array<Step, 9> steps{{
    {"Load the forms", LoadHoroscopeForms},
    {"Rasi positions", [](Horoscope &h) { ComputeChartPositions(h, rasiSize); }},
    {"Names", [](Horoscope &h) { LoadNamesForLanguage(h.state); }},
    {"Rasi chart", [](Horoscope &h) { FillRasiChart(h.state, h.forms); }},
    {"Navamsa positions", [](Horoscope &h) { ComputeChartPositions(h, navamsaSize); }},
    {"Names for the Navamsa", [](Horoscope &h) { LoadNamesForLanguage(h.state); }},
    {"Navamsa chart", [](Horoscope &h) { FillNavamsaChart(h.state, h.forms); }},
    // Readers of the rasi numbers outside a run find those of the Rasi chart.
    {"Rasi positions again", [](Horoscope &h) { ComputeChartPositions(h, rasiSize); }},
    {"Show the view", [](Horoscope &h) { h.status.ShowCurrentView(h.CurrentView); }},
}};

void RunSteps(Horoscope &horoscope) {
    for (const Step &step : steps) {
        try {
            step.run(horoscope);
        } catch (const std::exception &error) {
            horoscope.status.ShowCurrentView(horoscope.CurrentView);
            horoscope.status.RunFailed(step.name, error.what());
            return;
        }
        horoscope.status.AdvanceStatusBar();
    }
}

/// Marks the horoscope as being calculated, also when an exception ends the run.
class RunMark {
public:
    explicit RunMark(Horoscope &horoscope) : horoscope_(horoscope) {
        horoscope_.isCalculating = true;
        horoscope_.status.OpenStatus();
    }
    RunMark(const RunMark &) = delete;
    RunMark &operator=(const RunMark &) = delete;
    ~RunMark() {
        horoscope_.status.CloseStatus();
        horoscope_.isCalculating = false;
    }

private:
    Horoscope &horoscope_;
};

} // namespace

void CalculateHoroscope(Horoscope &horoscope) {
    if (horoscope.isCalculating) {
        return;
    }
    const RunMark mark(horoscope);
    RunSteps(horoscope);
}

} // namespace kelvaro
