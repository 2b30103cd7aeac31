#include "horoscope/entry/BirthplaceClock.h"

#include "horoscope/entry/SavedChartClocks.h"
#include "store/masters/CityMaster.h"
#include "store/masters/CityZones.h"
#include "tests/store/StoreFixture.h"

#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>

namespace kelvaro {
namespace {

using store::CityZones;
using store::PlaceLists;

struct Birth {
    std::string city, country;
    CivilMoment shown;
    double hours = 0;
    std::string season, times, source;
};

std::vector<Birth> TrueClocks() {
    std::ifstream table(TRUE_CLOCKS);
    std::vector<Birth> births;
    std::string line;
    std::getline(table, line);
    while (std::getline(table, line)) {
        std::istringstream cells(line);
        Birth birth;
        std::string day, time, hours;
        for (std::string *cell :
             {&birth.city, &birth.country, &day, &time, &hours, &birth.season, &birth.times, &birth.source}) {
            std::getline(cells, *cell, '|');
        }
        birth.hours = std::stod(hours);
        auto &[date, clock] = birth.shown;
        EXPECT_EQ(std::sscanf((day + time).c_str(), "%d-%d-%2d%d:%d", &date.year, &date.month, &date.day,
                              &clock.hour, &clock.minute),
                  5)
            << line;
        births.push_back(birth);
    }
    return births;
}

class BirthplaceClockTest : public store::StoreTest {
protected:
    std::int32_t CountryNamed(const std::string &name) {
        for (const store::ListItem &country : lists_.Countries()) {
            if (country.text == name) {
                return country.key;
            }
        }
        ADD_FAILURE() << "no country " << name;
        return 0;
    }

    std::optional<ClockAdvice> Advice(const std::string &city, const std::string &country,
                                      const CivilMoment &shown, std::optional<double> hours) {
        const std::int32_t id = CountryNamed(country);
        const store::Place place = lists_.PlaceOfCity(city).value_or(store::Place());
        return AdviseOnClock({shown, zones_.ZoneOfCity(city, id).value_or("none"), hours,
                              LocalMeanTimeAt(place.lonDeg, place.lonMin, place.lonEW)},
                             city, id, lists_.ZonesOf(id));
    }

    std::string RowTaken(const ClockAdvice &advice) {
        return advice.zoneNumber ? lists_.ZoneNumbered(*advice.zoneNumber).place : "";
    }

    PlaceLists lists_{connection_};
    CityZones zones_{connection_};
};

TEST_F(BirthplaceClockTest, StandsAtWhatWasAnnounced) {
    const auto births = TrueClocks();
    ASSERT_GE(births.size(), 60U);
    for (const Birth &birth : births) {
        SCOPED_TRACE(birth.city + ": " + birth.source);
        const auto zone = zones_.ZoneOfCity(birth.city, CountryNamed(birth.country));
        ASSERT_TRUE(zone);
        const auto check = CheckClock({birth.shown, *zone, birth.hours});
        ASSERT_TRUE(check);
        EXPECT_TRUE(check->agrees);
        EXPECT_TRUE(AreHoursOf(check->reading.offset, birth.hours));
        EXPECT_EQ(check->reading.offset.isSummer, birth.season == "summer");
        EXPECT_EQ(check->reading.shown, birth.times == "once"    ? ClockReading::Shown::Once
                                        : birth.times == "twice" ? ClockReading::Shown::Twice
                                                                 : ClockReading::Shown::Never);
        EXPECT_EQ(check->isSure, birth.shown.date.year >= 1970);
        EXPECT_FALSE(CheckClock({birth.shown, *zone, birth.hours + 0.4})->agrees);
    }
}

TEST_F(BirthplaceClockTest, SaysTheClockAndTheRowToTake) {
    const CivilMoment summer{{1990, 7, 4}, {8, 15, 0}};
    auto advice = Advice("Chicago", "United States", summer, -5.0);
    ASSERT_TRUE(advice);
    EXPECT_EQ(advice->text, "Clocks in Chicago stood at 5 hrs W on 4 Jul 1990, summer time.");
    EXPECT_FALSE(advice->isWarning || advice->zoneNumber || advice->newZone);

    advice = Advice("Chicago", "United States", summer, -6.0);
    EXPECT_EQ(advice->text,
              "Clocks in Chicago stood at 5 hrs W on 4 Jul 1990, summer time; the chosen zone says 6 "
              "hrs W: an hour changes the Lagna by half a sign.");
    EXPECT_TRUE(advice->isWarning);
    EXPECT_EQ(RowTaken(*advice),
              "Central Daylight Time (USA)"); // Eastern Standard Time stands first with 5 hours

    advice = Advice("Indianapolis", "United States", summer, std::nullopt);
    EXPECT_FALSE(advice->isWarning);
    EXPECT_EQ(RowTaken(*advice), "Eastern Standard Time (USA)");

    advice = Advice("Chicago", "United States", {{1990, 10, 28}, {1, 30, 0}}, -6.0);
    EXPECT_EQ(advice->text,
              "Clocks in Chicago showed 01:30 twice on 28 Oct 1990, first at 5 hrs W, summer time, then "
              "at 6 hrs W.");
    EXPECT_FALSE(advice->isWarning || advice->zoneNumber);

    advice = Advice("Chicago", "United States", {{1990, 4, 1}, {2, 30, 0}}, -6.0);
    EXPECT_EQ(advice->text,
              "Clocks in Chicago never showed 02:30 on 1 Apr 1990: they were put from 6 hrs W to 5 hrs W, "
              "summer time.");
    EXPECT_TRUE(advice->isWarning);
}

TEST_F(BirthplaceClockTest, OffersAZoneThatTheListLacks) {
    const auto advice = Advice("Chennai", "India", {{1850, 1, 1}, {6, 0, 0}}, 5.5);
    ASSERT_TRUE(advice);
    EXPECT_EQ(
        advice->text,
        "Clocks in Chennai stood at 5 hours 21 minutes 8 seconds E on 1 Jan 1850, local mean time; the "
        "chosen "
        "zone says 5.5 hrs E: an hour changes the Lagna by half a sign. Records from before 1970 are less "
        "certain. The list of time zones has no such offset.");
    EXPECT_FALSE(advice->zoneNumber);
    ASSERT_TRUE(advice->newZone);
    EXPECT_EQ(*advice->newZone,
              (store::ZoneFields{CountryNamed("India"), 0, "Chennai Local Mean Time", "5", "21", "E"}));
}

/// The records have the Sun of Calcutta for all of India. Until 1844 Manila had the day of America.
TEST_F(BirthplaceClockTest, TakesTheSunOfTheBirthplaceForLocalMeanTime) {
    const auto begin = [this](const char *city, const char *country) {
        const std::string text = Advice(city, country, {{1840, 5, 5}, {6, 0, 0}}, std::nullopt)->text;
        return text.substr(0, text.find(" on "));
    };
    EXPECT_EQ(begin("Calcutta", "India"), "Clocks in Calcutta stood at 5 hours 53 minutes 28 seconds E");
    EXPECT_EQ(begin("Mumbai", "India"), "Clocks in Mumbai stood at 4 hours 51 minutes 32 seconds E");
    EXPECT_EQ(begin("Manila", "Philippines"), "Clocks in Manila stood at 15 hours 56 minutes 4 seconds W");
}

/// Local mean time has seconds, of which a zone that is added keeps none.
TEST_F(BirthplaceClockTest, TakesTheZoneThatItOfferedToAdd) {
    store::TimeZoneMaster master(connection_);
    const struct {
        const char *city, *country;
    } places[]{
        {"Chicago", "United States"}, {"Chennai", "India"}, {"Paris", "France"}, {"Lisbon", "Portugal"}};
    for (const auto &[city, country] : places) {
        SCOPED_TRACE(city);
        const CivilMoment birth{{1850, 1, 1}, {6, 0, 0}};
        const auto offered = Advice(city, country, birth, std::nullopt);
        ASSERT_TRUE(offered && offered->newZone);
        ASSERT_TRUE(master.Add(*offered->newZone, [](const Notice &) {}).isStored);
        const auto taken = Advice(city, country, birth, std::nullopt);
        ASSERT_EQ(RowTaken(*taken), offered->newZone->place);
        const store::Zone row = lists_.ZoneNumbered(*taken->zoneNumber);
        EXPECT_FALSE(Advice(city, country, birth, SignedHours(row.hours, row.direction))->isWarning);
    }
}

TEST_F(BirthplaceClockTest, IsSilentBeyondTheRecords) {
    EXPECT_FALSE(Advice("Chicago", "United States", {{2038, 7, 4}, {8, 15, 0}}, -6.0));
    EXPECT_FALSE(ReadClock("America/Nowhere", {{1990, 7, 4}, {8, 15, 0}}));
}

TEST_F(BirthplaceClockTest, FindsTheZoneOfCitiesThatTheUserAddsOrMoves) {
    const std::int32_t country = CountryNamed("United States");
    store::CityMaster master(connection_);
    // In the corner of Indiana that keeps the time of Chicago.
    ASSERT_TRUE(master.Add({country, 0, "Gary Farm", "41", "35", "N", "87", "20", "W"}).isStored);
    EXPECT_EQ(zones_.ZoneOfCity("Gary Farm", country), "America/Chicago");
    EXPECT_EQ(zones_.ZoneOfCity("No Such Town", country), std::nullopt);
    EXPECT_EQ(zones_.ZoneNear({21, 18, "N", 157, 51, "W"}, country), "Pacific/Honolulu");
    // The far end of Russia lies in western longitudes, beside its neighbours in eastern ones.
    EXPECT_EQ(zones_.ZoneNear({66, 10, "N", 169, 49, "W"}, CountryNamed("Russia")), "Asia/Anadyr");

    const auto cityId = std::stoi(First("select CityID from City_Master where CityName = 'Chicago'"));
    ASSERT_TRUE(master.Update({country, cityId, "Chicago", "34", "3", "N", "118", "15", "W"}).isStored);
    EXPECT_EQ(zones_.ZoneOfCity("Chicago", country), "America/Los_Angeles");
}

TEST_F(BirthplaceClockTest, SurveysTheSavedCharts) {
    const std::string country = std::to_string(CountryNamed("United States"));
    const auto save = [this, &country](const std::string &name, const std::string &date,
                                       const std::string &zone) {
        connection_.Execute(
            "insert into ChartSave (ChartName, Gender, Country, City, ChartDay, ChartMonth, ChartYear, "
            "ChartHour, ChartMinute, ChartSecond, LatitudeDegree, Latitude_NS, LatitudeMinute, "
            "LongitudeDegree, "
            "Longitude_EW, LongitudeMinute, TimeDifference) select '" +
            name + "', 'Male', " + country + ", 'Chicago', " + date +
            ", 12, 0, 0, 41, 'N', 51, 87, 'W', 39, SNo from TimeZone where Place = '" + zone + "'");
    };
    save("Right~4-Jul-1990", "4, 7, 1990", "Central Daylight Time (USA)");
    save("Wrong~4-Jul-1990", "4, 7, 1990", "Central Standard Time (USA)");
    save("Damaged~31-Feb-1990", "31, 2, 1990", "Central Standard Time (USA)");
    save("Far~4-Jul-2040", "4, 7, 2040", "Central Standard Time (USA)");
    const ClockSurvey survey = SurveyClocks(connection_);
    EXPECT_EQ(survey.agreeing, 1U);
    ASSERT_EQ(survey.differing.size(), 1U);
    EXPECT_EQ(survey.differing.front().chart.text, "Wrong~4-Jul-1990");
    EXPECT_NE(survey.differing.front().remark.find("summer time; the chosen zone says 6 hrs W"),
              std::string::npos);
    ASSERT_EQ(survey.unknown.size(), 2U);
    EXPECT_TRUE(survey.unknown.front().remark.starts_with("This chart cannot be read"));
    EXPECT_EQ(survey.unknown.back().remark, "There are no records for this place and year.");
}

TEST_F(BirthplaceClockTest, BringsTheZonesOfCitiesIntoAnOlderDatabase) {
    connection_.Execute("drop table CityZone");
    connection_.Execute("update City_Master set CityName = 'Mine now' where CityName = 'Chicago'");
    EXPECT_FALSE(zones_.AreKnown());
    zones_.BringFrom(folder_ / "missing.mdb");
    EXPECT_FALSE(zones_.AreKnown());
    const auto program = folder_ / "program.mdb"; // a copy, which no other test locks
    std::filesystem::copy_file(KELVARO_SEED_DATABASE, program);
    zones_.BringFrom(program);
    ASSERT_TRUE(zones_.AreKnown());
    EXPECT_EQ(First("select count(*) from CityZone"), "60397");
    EXPECT_EQ(zones_.ZoneOfCity("Phoenix", 0), "America/Phoenix");
    zones_.BringFrom(program); // where the table stands nothing happens
    EXPECT_EQ(First("select count(*) from CityZone"), "60397");
}

/// Twice a year from 1950 to 2025, at noon of the first of January and of July.
TEST_F(BirthplaceClockTest, FindsARowForNearlyEveryCity) {
    store::Recordset groups;
    groups.Open(
        "select CountryID, TimeZoneName, count(*) as cities from City_Master join CityZone using (CityID) "
        "group by CountryID, TimeZoneName",
        connection_);
    std::map<std::int32_t, std::vector<store::Zone>> zonesOf;
    double looked = 0;
    double found = 0;
    for (; !groups.IsEndOfFile(); groups.MoveNext()) {
        const std::int32_t country = groups.Integer("CountryID");
        auto [list, isNew] = zonesOf.try_emplace(country);
        if (isNew) {
            list->second = lists_.ZonesOf(country);
        }
        const std::string zone = groups.Text("TimeZoneName");
        const double cities = groups.Number("cities");
        for (int halfYear = 0; halfYear < 152; ++halfYear) {
            const CivilMoment noon{{1950 + halfYear / 2, halfYear % 2 == 0 ? 1 : 7, 1}, {12, 0, 0}};
            const auto advice = AdviseOnClock({noon, zone, std::nullopt}, "here", country, list->second);
            ASSERT_TRUE(advice) << zone;
            looked += cities;
            found += advice->zoneNumber ? cities : 0;
        }
    }
    EXPECT_GT(looked, 9e6);
    EXPECT_GE(found / looked, 0.999);
}

} // namespace
} // namespace kelvaro
