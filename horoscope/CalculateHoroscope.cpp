#include "horoscope/CalculateHoroscope.h"

#include "horoscope/BirthSummary.h"
#include "horoscope/Horoscope.h"
#include "horoscope/StatusDisplay.h"
#include "horoscope/Steps.h"
#include "panchanga/Sign.h"

#include <array>
#include <exception>
#include <string_view>

namespace kelvaro {

namespace {

struct Step {
    std::string_view name;
    void (*run)(Horoscope &);
};

/// The fill of the status display moves on after each of them.
constexpr std::array<Step, 15> steps{{
    {"Load the forms", LoadHoroscopeForms},
    {"Rasi positions", [](Horoscope &h) { ComputeChartPositions(h, rasiSize); }},
    {"Names", LoadNamesForLanguage},
    {"Rasi chart", FillRasiChart},
    {"Birth details", FillBirthSummary},
    {"Ashtakavarga", FillAshtakavarga},
    {"Navamsa positions", [](Horoscope &h) { ComputeChartPositions(h, navamsaSize); }},
    {"Names for the Navamsa", LoadNamesForLanguage}, // changes nothing
    {"Navamsa chart", FillNavamsaChart},
    {"Bhava", FillBhava},
    {"Planet positions", FillPlanetPositions},
    {"Planet positions again", RefreshPlanetTable}, // changes nothing
    {"Vargas", FillVargas},
    {"Dasa", FillDasa},
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
    if (!horoscope.state.day.SunRemark.empty()) {
        horoscope.status.RunRemarked(horoscope.state.day.SunRemark);
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
