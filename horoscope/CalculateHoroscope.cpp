#include "horoscope/CalculateHoroscope.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/BhavaForms.h"
#include "analysis/DasaForms.h"
#include "analysis/PlanetTable.h"
#include "analysis/Vargas.h"
#include "horoscope/BirthSummary.h"
#include "horoscope/ChartPositions.h"
#include "horoscope/Horoscope.h"
#include "horoscope/NamesForLanguage.h"
#include "panchanga/Sign.h"
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

void FillBhavaChart(Horoscope &horoscope) {
    ComputeChartPositions(horoscope, rasiSize);
    FillBhava(horoscope.state, horoscope.forms, horoscope.calculators.star);
}

/// From here on the rasi numbers of the record are those of the Rasi chart.
void FillPlanetTable(Horoscope &horoscope) {
    LoadNamesForLanguage(horoscope.state);
    ComputeChartPositions(horoscope, rasiSize);
    FillPlanetPositions(horoscope.state, horoscope.forms.Frm_PP, horoscope.calculators.position,
                        horoscope.calculators.star);
}

/// Builds the table a second time, with the same result.
void RefreshPlanetTable(Horoscope &horoscope) {
    FillPlanetTable(horoscope);
    LoadNamesForLanguage(horoscope.state);
    horoscope.status.HideOpenChart();
}

void FillDasaTables(Horoscope &horoscope) {
    Calculators &calculators = horoscope.calculators;
    FillDasa(horoscope.state, horoscope.forms.Frm_Dasa, calculators.position, calculators.star,
             horoscope.connection, horoscope.chartNumber);
}

/// The fill of the status display moves on after each of them.
constexpr std::array<Step, 15> steps{{
    {"Load the forms", LoadHoroscopeForms},
    {"Rasi positions", [](Horoscope &h) { ComputeChartPositions(h, rasiSize); }},
    {"Names", [](Horoscope &h) { LoadNamesForLanguage(h.state); }},
    {"Rasi chart", [](Horoscope &h) { FillRasiChart(h.state, h.forms); }},
    {"Birth details", FillBirthSummary},
    {"Ashtakavarga",
     [](Horoscope &h) { FillAshtakavarga(h.state, h.forms.Frm_AVargas, h.calculators.star); }},
    {"Navamsa positions", [](Horoscope &h) { ComputeChartPositions(h, navamsaSize); }},
    {"Names for the Navamsa", [](Horoscope &h) { LoadNamesForLanguage(h.state); }},
    {"Navamsa chart", [](Horoscope &h) { FillNavamsaChart(h.state, h.forms); }},
    {"Bhava", FillBhavaChart},
    {"Planet positions", FillPlanetTable},
    {"Planet positions again", RefreshPlanetTable},
    {"Vargas", [](Horoscope &h) { FillVargas(h.state, h.forms.Frm_Vargas, h.connection); }},
    {"Dasa", FillDasaTables},
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
