#include "analysis/DasaForms.h"

#include "analysis/Lords.h"
#include "analysis/VimshottariDasa.h"
#include "runtime/MomentText.h"

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace kelvaro {

namespace {

/// Writes periods that follow one another into the rows of a grid, the first from birth on.
class PeriodRows {
public:
    PeriodRows(TextGrid &grid, Moment birth) : grid_(grid), birth_(birth), last_(LimitAt(birth)) {
        grid_.rows.clear();
        grid_.sections.clear();
    }

    void OpenSection(std::string title) { grid_.sections.push_back({std::move(title), grid_.rows.size()}); }

    void Add(std::string lord, Moment end) {
        Limit next = LimitAt(end);
        grid_.rows.push_back({std::move(lord), last_.date, next.date, last_.age + " - " + next.age});
        last_ = std::move(next);
    }

private:
    struct Limit {
        std::string date;
        std::string age; ///< calendar years since the year of birth
    };

    Limit LimitAt(Moment moment) const {
        return {MonthNameDateText(moment), std::to_string(DateDiff(Interval::Year, birth_, moment))};
    }

    TextGrid &grid_;
    Moment birth_;
    Limit last_;
};

/// The scheme in the language in force, beside the moment it counts from.
struct NamedScheme {
    VimshottariDasa periods;
    std::array<std::string, 9> dasaNames;
    std::array<std::string, 81> bhuktiNames;
    Moment birth;
};

void FindMoon(HoroscopeState &state, ClsFindPlanetPosition &position) {
    position.FindFixValuesAt(state.positions.BirthMomentDate, state.site, state.preferences.InForce());
    state.positions.MoonLon = position.FnFindMoonPosition();
}

NamedScheme FindScheme(const HoroscopeState &state, clsStar &stars) {
    stars.PlanetPosition = state.positions.MoonLon;
    stars.findstar();
    std::int16_t star = stars.StarNo;
    const std::string_view firstLord = StarLordOf(star);
    const int minutesLeft = MinutesLeftInStar(star, state.positions.MoonLon);
    NamedScheme scheme;
    scheme.birth = state.positions.BirthMomentDate;
    scheme.periods = FindVimshottariDasa(firstLord, minutesLeft, scheme.birth, state.preferences.DaysInYear);
    for (std::size_t i = 0; i < scheme.dasaNames.size(); ++i) {
        scheme.dasaNames[i] = LocalisedPlanetName(state, scheme.periods.DasaLord[i]);
    }
    for (std::size_t i = 0; i < scheme.bhuktiNames.size(); ++i) {
        scheme.bhuktiNames[i] = LocalisedPlanetName(state, scheme.periods.BhuktiLord[i]);
    }
    return scheme;
}

void FillBalance(const NamedScheme &scheme, HoroscopeState &state, DasaForm &form) {
    const YearsMonthsDays balance = DivideYears(scheme.periods.balance);
    const std::string &lord = scheme.dasaNames.front();
    const std::string years = std::to_string(balance.years);
    const std::string months = std::to_string(balance.months);
    const std::string days = std::to_string(static_cast<int>(std::floor(balance.days)));
    form.Lab_DasaBalanceV = "Dasa Balance at Birth :Dasa  " + lord + " " + years + "-" + months + "- " + days;
    state.DasaBalanceText = lord + " Dasa  " + years + " Years " + months + " Months " + days + " Days ";
}

void FillDasaGrid(const NamedScheme &scheme, TextGrid &grid) {
    grid.header = "Dasa       | From              | To                 |  Age ";
    PeriodRows rows(grid, scheme.birth);
    for (std::size_t i = 0; i < scheme.dasaNames.size(); ++i) {
        rows.Add(scheme.dasaNames[i], scheme.periods.DasaEnd[i]);
    }
}

std::string InsertOf(long chartNumber, const std::string &dasa, const std::string &bhukti,
                     const std::vector<std::string> &row) {
    return "insert into tempBhukthi(UserID,DasaName,BhukthiName,BhukthiStart,BhukhiEnd,BhukthiAge) Values('" +
           std::to_string(chartNumber) + "','" + dasa + "','" + bhukti + "','" + row[1] + "','" + row[2] +
           "','" + row[3] + "')";
}

/// Gives the inserts of the rows written.
std::vector<std::string> FillBhuktiGrid(const NamedScheme &scheme, TextGrid &grid, long chartNumber) {
    grid.header = "Bhukthi  | From            | To                |  Age ";
    PeriodRows rows(grid, scheme.birth);
    std::vector<std::string> inserts;
    std::size_t openDasa = scheme.dasaNames.size();
    for (std::size_t i = 0; i < scheme.bhuktiNames.size(); ++i) {
        if (scheme.periods.BhuktiEnd[i] <= scheme.birth) {
            continue;
        }
        const std::size_t dasa = i / 9;
        if (dasa != openDasa) {
            rows.OpenSection(scheme.dasaNames[dasa] + " Dasa");
            openDasa = dasa;
        }
        rows.Add(scheme.bhuktiNames[i] + " Dasa", scheme.periods.BhuktiEnd[i]);
        inserts.push_back(
            InsertOf(chartNumber, scheme.dasaNames[dasa], scheme.bhuktiNames[i], grid.rows.back()));
    }
    return inserts;
}

void ExecuteAll(const std::vector<std::string> &statements, store::Connection &connection) {
    store::Transaction transaction(connection);
    for (const std::string &statement : statements) {
        connection.Execute(statement);
    }
    transaction.Commit();
}

void FillAntraGrid(const NamedScheme &scheme, const HoroscopeState &state, TextGrid &grid) {
    grid.header = "Antra     | From            | To                |  Age ";
    PeriodRows rows(grid, scheme.birth);
    for (std::size_t i = 0; i < scheme.periods.AntraEnd.size(); ++i) {
        if (i % 9 == 0) {
            rows.OpenSection(scheme.dasaNames[i / 81] + " Dasa, " + scheme.bhuktiNames[i / 9] + " Bhukthi");
        }
        rows.Add(LocalisedPlanetName(state, scheme.periods.AntraLord[i]), scheme.periods.AntraEnd[i]);
    }
}

} // namespace

void FillDasa(HoroscopeState &state, DasaForm &form, ClsFindPlanetPosition &position, clsStar &stars,
              store::Connection &connection, long chartNumber) {
    FindMoon(state, position);
    const NamedScheme scheme = FindScheme(state, stars);
    FillBalance(scheme, state, form);
    FillDasaGrid(scheme, form.mshDasa);
    ExecuteAll(FillBhuktiGrid(scheme, form.mshBukti, chartNumber), connection);
    FillAntraGrid(scheme, state, form.mshAntra);
}

} // namespace kelvaro
