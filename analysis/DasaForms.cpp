#include "analysis/DasaForms.h"

#include "analysis/Lords.h"
#include "analysis/VimshottariDasa.h"
#include "runtime/MomentText.h"

#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kelvaro {

namespace {

/// Periods that follow one another from birth on.
class PeriodList {
public:
    PeriodList(Moment birth, const Names &names) : birth_(birth), names_(names), start_(birth) {}

    void Add(std::string_view lord, Moment end, std::size_t dasa, std::size_t bhukti = 0,
             std::size_t antra = 0) {
        const Body body = LordNamed(lord).value();
        periods_.push_back(
            {body, LongNameOf(names_, body), start_, end, AgeAt(start_), AgeAt(end), dasa, bhukti, antra});
        start_ = end;
    }

    std::vector<DasaPeriod> Periods() && { return std::move(periods_); }

private:
    int AgeAt(Moment moment) const { return DateDiff(Interval::Year, birth_, moment); }

    Moment birth_;
    const Names &names_;
    Moment start_;
    std::vector<DasaPeriod> periods_;
};

std::vector<DasaPeriod> DasasOf(const VimshottariDasa &scheme, PeriodList list) {
    for (std::size_t i = 0; i < scheme.DasaLord.size(); ++i) {
        list.Add(scheme.DasaLord[i], scheme.DasaEnd[i], i);
    }
    return std::move(list).Periods();
}

std::vector<DasaPeriod> BhuktisOf(const VimshottariDasa &scheme, Moment birth, PeriodList list) {
    for (std::size_t i = 0; i < scheme.BhuktiLord.size(); ++i) {
        if (scheme.BhuktiEnd[i] > birth) {
            list.Add(scheme.BhuktiLord[i], scheme.BhuktiEnd[i], i / 9, i % 9);
        }
    }
    return std::move(list).Periods();
}

std::vector<DasaPeriod> AntrasOf(const VimshottariDasa &scheme, PeriodList list) {
    for (std::size_t i = 0; i < scheme.AntraLord.size(); ++i) {
        list.Add(scheme.AntraLord[i], scheme.AntraEnd[i], i / 81, i / 9 % 9, i % 9);
    }
    return std::move(list).Periods();
}

std::string AgeText(const DasaPeriod &period) {
    return std::to_string(period.ageAtStart) + " - " + std::to_string(period.ageAtEnd);
}

void AddRow(const DasaPeriod &period, std::string lord, TextGrid &grid) {
    grid.rows.push_back(
        {std::move(lord), MonthNameDateText(period.start), MonthNameDateText(period.end), AgeText(period)});
}

const std::string &DasaName(const NamedScheme &scheme, const DasaPeriod &period) {
    return scheme.dasas.at(period.dasa).lordName;
}

} // namespace

NamedScheme FindNamedScheme(double moonLongitude, Moment birth, double daysInYear, const Names &names,
                            clsStar &stars) {
    stars.PlanetPosition = moonLongitude;
    stars.findstar();
    std::int16_t star = stars.StarNo;
    const std::string_view firstLord = StarLordOf(star);
    const int minutesLeft = MinutesLeftInStar(star, moonLongitude);
    const VimshottariDasa scheme = FindVimshottariDasa(firstLord, minutesLeft, birth, daysInYear);
    const PeriodList fromBirth(birth, names);
    return {scheme.balance, DasasOf(scheme, fromBirth), BhuktisOf(scheme, birth, fromBirth),
            AntrasOf(scheme, fromBirth)};
}

BalanceTexts BalanceTextsOf(const NamedScheme &scheme) {
    const YearsMonthsDays balance = DivideYears(scheme.balance);
    const std::string &lord = scheme.dasas.front().lordName;
    const std::string years = std::to_string(balance.years);
    const std::string months = std::to_string(balance.months);
    const std::string days = std::to_string(static_cast<int>(std::floor(balance.days)));
    return {"Dasa Balance at Birth :Dasa  " + lord + " " + years + "-" + months + "- " + days,
            lord + " Dasa  " + years + " Years " + months + " Months " + days + " Days "};
}

TextGrid DasaGrid(const NamedScheme &scheme) {
    TextGrid grid;
    grid.header = "Dasa       | From              | To                 |  Age ";
    for (const DasaPeriod &period : scheme.dasas) {
        AddRow(period, period.lordName, grid);
    }
    return grid;
}

TextGrid BhuktiGrid(const NamedScheme &scheme) {
    TextGrid grid;
    grid.header = "Bhukthi  | From            | To                |  Age ";
    std::size_t openDasa = scheme.dasas.size();
    for (const DasaPeriod &period : scheme.bhuktis) {
        if (period.dasa != openDasa) {
            grid.sections.push_back({DasaName(scheme, period) + " Dasa", grid.rows.size()});
            openDasa = period.dasa;
        }
        AddRow(period, period.lordName + " Dasa", grid);
    }
    return grid;
}

TextGrid AntraGrid(const NamedScheme &scheme) {
    TextGrid grid;
    grid.header = "Antra     | From            | To                |  Age ";
    for (const DasaPeriod &period : scheme.antras) {
        if (period.antra == 0) {
            // The first antra of a bhukti is that of its own lord.
            grid.sections.push_back(
                {DasaName(scheme, period) + " Dasa, " + period.lordName + " Bhukthi", grid.rows.size()});
        }
        AddRow(period, period.lordName, grid);
    }
    return grid;
}

std::vector<store::Bhukti> BhuktiRows(const NamedScheme &scheme) {
    std::vector<store::Bhukti> rows;
    for (const DasaPeriod &period : scheme.bhuktis) {
        rows.push_back({DasaName(scheme, period), period.lordName, MonthNameDateText(period.start),
                        MonthNameDateText(period.end), AgeText(period)});
    }
    return rows;
}

} // namespace kelvaro
