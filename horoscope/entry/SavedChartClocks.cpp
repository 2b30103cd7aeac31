#include "horoscope/entry/SavedChartClocks.h"

#include "horoscope/entry/BirthplaceClock.h"
#include "runtime/RuntimeError.h"
#include "store/charts/ChartStore.h"
#include "store/masters/CityZones.h"

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

namespace kelvaro {

namespace {

Moment BirthOf(const store::StoredChart &chart) {
    return MomentOf({chart.ChartYear, chart.ChartMonth, chart.ChartDay},
                    {chart.ChartHour, chart.ChartMinute, 0});
}

/// Looks at one chart after another. Charts of one place share what is read of it.
class Surveyor {
public:
    explicit Surveyor(store::Connection &connection) : lists_(connection), zones_(connection) {}

    std::optional<ClockAdvice> AdviceOn(const store::StoredChart &chart) {
        StatedClock stated{Split(BirthOf(chart)), ZoneOf(chart), std::nullopt,
                           LocalMeanTimeAt(chart.place.lonDeg, chart.place.lonMin, chart.place.lonEW)};
        if (chart.TimeDifference) {
            const store::Zone zone = lists_.ZoneNumbered(*chart.TimeDifference);
            stated.hours = SignedHours(zone.hours, zone.direction);
        }
        return AdviseOnClock(stated, chart.City, chart.Country, ListOf(chart.Country));
    }

private:
    std::string ZoneOf(const store::StoredChart &chart) {
        const std::pair key(chart.City, chart.Country);
        const auto known = zonesOfCities_.find(key);
        if (known != zonesOfCities_.end()) {
            return known->second;
        }
        return zonesOfCities_.emplace(key, zones_.ZoneOfBirthplace(chart.City, chart.place, chart.Country))
            .first->second;
    }

    const std::vector<store::Zone> &ListOf(std::int32_t country) {
        const auto known = listsOfCountries_.find(country);
        return known != listsOfCountries_.end()
                   ? known->second
                   : listsOfCountries_.emplace(country, lists_.ZonesOf(country)).first->second;
    }

    store::PlaceLists lists_;
    store::CityZones zones_;
    std::map<std::pair<std::string, std::int32_t>, std::string> zonesOfCities_;
    std::map<std::int32_t, std::vector<store::Zone>> listsOfCountries_;
};

} // namespace

ClockSurvey SurveyClocks(store::Connection &connection) {
    const store::ChartStore charts(connection);
    Surveyor surveyor(connection);
    ClockSurvey survey;
    for (const store::ListItem &listed : charts.fnFillChart("All").List_VC_ChartName) {
        try {
            const auto advice = surveyor.AdviceOn(charts.Read(listed.key));
            if (!advice) {
                survey.unknown.push_back({listed, HasZoneRecords()
                                                      ? "There are no records for this place and year."
                                                      : "This machine has no records of time zones."});
            } else if (advice->isWarning) {
                survey.differing.push_back({listed, advice->text});
            } else {
                ++survey.agreeing;
            }
        } catch (const RuntimeError &error) {
            survey.unknown.push_back({listed, std::string("This chart cannot be read: ") + error.what()});
        }
    }
    return survey;
}

} // namespace kelvaro
