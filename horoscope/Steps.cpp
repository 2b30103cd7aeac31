#include "horoscope/Steps.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/BhavaForms.h"
#include "analysis/BhavaSystem.h"
#include "analysis/DasaForms.h"
#include "analysis/PlanetTable.h"
#include "analysis/Vargas.h"
#include "horoscope/Calculators.h"
#include "horoscope/ChartPositions.h"
#include "horoscope/Horoscope.h"
#include "horoscope/NamesForLanguage.h"
#include "horoscope/StatusDisplay.h"
#include "panchanga/Sign.h"
#include "presentation/ChartCells.h"
#include "presentation/ChartStyles.h"
#include "store/tables/BhuktiTable.h"

namespace kelvaro {

namespace {

Language PreferredLanguage(const HoroscopeState &state) {
    return LanguageOf(state.preferences.Language);
}

ChartStyle PreferredStyle(const HoroscopeState &state) {
    return ChartStyleOf(state.preferences.ChartStyle);
}

} // namespace

void LoadHoroscopeForms(Horoscope &horoscope) {
    horoscope.status.HideHoroscopeForms();
    horoscope.forms = {};
}

void ComputeChartPositions(Horoscope &horoscope, double division) {
    HoroscopeState &state = horoscope.state;
    const PositionPass pass =
        FindPositions(state.birth, state.site, state.preferences, division, *horoscope.calculators);
    state.positions = pass.positions;
    state.day = pass.day;
}

void LoadNamesForLanguage(Horoscope &horoscope) {
    if (const auto names = NamesIn(PreferredLanguage(horoscope.state))) {
        horoscope.state.names = *names;
    }
}

void FillRasiChart(Horoscope &horoscope) {
    const HoroscopeState &state = horoscope.state;
    FillRasiChart(state.positions, state.names, PreferredStyle(state), horoscope.forms);
}

void FillNavamsaChart(Horoscope &horoscope) {
    const HoroscopeState &state = horoscope.state;
    FillNavamsaChart(state.positions, state.names, PreferredStyle(state), horoscope.forms);
}

void FillAshtakavarga(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    state.moonStar = MoonStarOf(state.positions.MoonLon, horoscope.calculators->star);
    horoscope.forms.Frm_AVargas.mshAshtaVarga =
        AshtakavargaGrid(state.positions, state.names, PreferredLanguage(state));
}

void FillBhava(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    // Changes no longitude, and the houses read nothing else: only the rasi numbers cease to be the
    // Navamsa's, which nobody reads before the table of planets runs a pass again.
    ComputeChartPositions(horoscope, rasiSize);
    state.houses = HousesOf(state.positions, HouseSystemOf(state.preferences.BhavaSystem), state.names);
    FillBhavaChart(state.houses, state.names, PreferredStyle(state), horoscope.forms);
    horoscope.forms.frm_CBhava = BhavaTables(state.houses, state.names, horoscope.calculators->star);
}

void FillPlanetPositions(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    Calculators &calculators = *horoscope.calculators;
    LoadNamesForLanguage(horoscope);
    ComputeChartPositions(horoscope, rasiSize);
    calculators.position.FindFixValuesAt(DateAdd(Interval::Day, 1, state.positions.BirthMomentDate),
                                         state.site, state.preferences.InForce());
    const RetroLongitudes nextDay = RetroLongitudesOf(calculators.position);
    horoscope.forms.Frm_PP =
        PlanetTable(state.positions, nextDay, state.names, state.ghati.IshtaGhati, calculators.star);
}

void RefreshPlanetTable(Horoscope &horoscope) {
    // Builds the table a second time and loads the names a third: nothing changes.
    FillPlanetPositions(horoscope);
    LoadNamesForLanguage(horoscope);
    horoscope.status.HideOpenChart();
}

void FillVargas(Horoscope &horoscope) {
    const HoroscopeState &state = horoscope.state;
    horoscope.forms.Frm_Vargas = VargaCharts(state.positions, state.names, PreferredLanguage(state),
                                             horoscope.calculators->vargaTable);
}

void FillDasa(Horoscope &horoscope) {
    HoroscopeState &state = horoscope.state;
    Calculators &calculators = *horoscope.calculators;
    const Moment birth = state.positions.BirthMomentDate;
    calculators.position.FindFixValuesAt(birth, state.site, state.preferences.InForce());
    state.positions.MoonLon = calculators.position.FnFindMoonPosition();
    const NamedScheme scheme = FindNamedScheme(state.positions.MoonLon, birth, state.preferences.DaysInYear,
                                               state.names, calculators.star);
    const BalanceTexts balance = BalanceTextsOf(scheme);
    DasaForm &form = horoscope.forms.Frm_Dasa;
    form.Lab_DasaBalanceV = balance.window;
    state.DasaBalanceText = balance.report;
    form.dasas = scheme.dasas;
    form.mshDasa = DasaGrid(scheme);
    form.bhuktis = scheme.bhuktis;
    form.mshBukti = BhuktiGrid(scheme);
    store::AddBhuktis(horoscope.connection, horoscope.chartNumber, BhuktiRows(scheme));
    form.antras = scheme.antras;
    form.mshAntra = AntraGrid(scheme);
}

} // namespace kelvaro
