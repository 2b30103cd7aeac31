#include "horoscope/entry/TimeConverters.h"

#include "panchanga/day/IshtaGhati.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace kelvaro {
namespace {

struct Place {
    const char *name;
    double latDeg;
    const char *latNS;
    double lonDeg;
    const char *lonEW;
    double hours;
    const char *side;
};

const std::vector<Place> places{{"Hyderabad", 17, "N", 78, "E", 5.5, "E"},
                                {"New York", 41, "N", 74, "W", 5, "W"},
                                {"Buenos Aires", 35, "S", 58, "W", 3, "W"}};

BirthFields At(const Place &place) {
    BirthFields fields = FieldsAtLoad(MomentOf({1990, 3, 21}, {12, 0, 0}));
    fields.txt_VC_Country = fields.chosen.country = "Somewhere";
    fields.txt_VC_City = fields.chosen.city = place.name;
    fields.cbTimeZone = fields.chosen.zone = "Zone";
    fields.txt_VC_LatDeg = place.latDeg;
    fields.txt_VC_LatNS = place.latNS;
    fields.txt_VC_LonDeg = place.lonDeg;
    fields.txt_VC_LonEW = place.lonEW;
    fields.txt_VC_TimeDiff = place.hours;
    fields.txt_VC_TimeDiffEW = place.side;
    return fields;
}

void PutMoment(Moment moment, BirthFields &fields) {
    const BirthFields parts = FieldsAtLoad(moment);
    fields.txt_Date = parts.txt_Date;
    fields.txt_Month = parts.txt_Month;
    fields.txt_Year = parts.txt_Year;
    fields.cbHour = parts.cbHour;
    fields.cbMins = parts.cbMins;
    fields.Opt_PM = parts.Opt_PM;
}

std::string TextOf(const TimeConverters::Result &result) {
    const auto *const text = std::get_if<std::string>(&result);
    return text != nullptr ? *text : std::get<Notice>(result).text + "@" + std::get<Notice>(result).focus;
}

/// The sunrise that the converter goes by: no ghati after it.
Moment SunriseOf(BirthFields fields, TimeConverters &converters) {
    fields.cbHour = "0";
    fields.cbMins = "0";
    const std::string text = TextOf(converters.BirthTimeOfIshtaGhati(fields));
    return ReadMoment(fields.txt_Date + "/" + fields.txt_Month + "/" + fields.txt_Year + " " +
                      text.substr(text.find(" : ") + 3));
}

TEST(IshtaGhati, FollowsFromMinutes) {
    EXPECT_EQ(IshtaGhatiOf(0), (IshtaGhati{0, 0, 0}));
    EXPECT_EQ(IshtaGhatiOf(144), (IshtaGhati{6, 0, 0}));
    EXPECT_EQ(IshtaGhatiOf(2), (IshtaGhati{0, 4, 59})) << "0.08333 is reckoned as 0.0833";
    EXPECT_EQ(IshtaGhatiOf(10), (IshtaGhati{0, 25, 0})) << "0.41666 is reckoned as 0.4167";
    EXPECT_EQ(IshtaGhatiOf(123), (IshtaGhati{5, 7, 30}));
    const Moment sunrise = MomentOf({2000, 1, 1}, {6, 0, 0});
    EXPECT_EQ(Split(MomentAfterSunrise(sunrise, 60, 0)), (CivilMoment{{2000, 1, 2}, {6, 0, 0}}));
    EXPECT_EQ(Split(MomentAfterSunrise(sunrise, 5, 7)), (CivilMoment{{2000, 1, 1}, {8, 2, 48}}));
}

TEST(TimeConverters, TestsComeInTheirOrder) {
    TimeConverters converters;
    BirthFields clock;
    BirthFields ghatis;
    const auto mend = [&](std::string BirthFields::*field, const std::string &text) {
        clock.*field = text;
        ghatis.*field = text;
    };
    const auto choose = [&](std::string BirthFields::Chosen::*field, const std::string &text) {
        clock.chosen.*field = text;
        ghatis.chosen.*field = text;
    };
    const auto expect = [&](const std::string &told) {
        EXPECT_EQ(TextOf(converters.IshtaGhatiOfBirthTime(clock)), told);
        EXPECT_EQ(TextOf(converters.BirthTimeOfIshtaGhati(ghatis)), told);
    };
    expect("Enter Date@txt_Date");
    mend(&BirthFields::txt_Date, "31");
    expect("Enter Month@txt_Month");
    mend(&BirthFields::txt_Month, "Apr");
    expect("Enter Year@txt_Year");
    for (const char *year : {"x", "1799", "3001"}) {
        mend(&BirthFields::txt_Year, year);
        expect("Enter Year Between 1800 and 3000@txt_Year");
    }
    mend(&BirthFields::txt_Year, "1800");
    EXPECT_EQ(TextOf(converters.IshtaGhatiOfBirthTime(clock)), "Enter Correct Date@");
    EXPECT_EQ(TextOf(converters.BirthTimeOfIshtaGhati(ghatis)), "Enter Correct Time@cbHour");
    clock.txt_Date = "30";
    expect("Enter Correct Time@cbHour");
    mend(&BirthFields::cbHour, "61");
    expect("Enter Correct Time@cbMins");
    mend(&BirthFields::cbMins, "60");
    expect("Enter Correct Time@cbHour");
    clock.cbHour = "25";
    expect("Enter Correct Time@cbHour");
    clock.cbHour = "24";
    ghatis.cbHour = "60";
    expect("Enter Correct Time@cbMins");
    mend(&BirthFields::cbMins, "59");
    expect("Select Country@Cmb_VP_Country");
    mend(&BirthFields::txt_VC_Country, "India");
    expect("Select Country@Cmb_VP_Country");
    choose(&BirthFields::Chosen::country, "India");
    expect("Select City@Cmb_VP_City");
    mend(&BirthFields::txt_VC_City, "Hyderabad (A.P)");
    expect("Select City@Cmb_VP_City");
    choose(&BirthFields::Chosen::city, "Hyderabad (A.P)");
    expect("Select Timezone@cbTimeZone");
    mend(&BirthFields::cbTimeZone, "IST");
    expect("Select Timezone@cbTimeZone");
    choose(&BirthFields::Chosen::zone, "IST");
    EXPECT_THROW(converters.BirthTimeOfIshtaGhati(ghatis), ConversionError) << "the 31st of April";
}

TEST(TimeConverters, CountFromTheSunriseBefore) {
    TimeConverters converters;
    BirthFields fields = At(places.front());
    const Moment sunrise = SunriseOf(fields, converters);
    // By any almanac the Sun rises at Hyderabad at about 06:25 at the equinox.
    EXPECT_NEAR((sunrise.Serial() - DateOf(sunrise).Serial()) * 1440, 6 * 60 + 25, 4);
    for (const auto &[minutes, text] : std::vector<std::pair<int, std::string>>{
             {0, "Ishta Ghati : 0:0:0"}, {144, "Ishta Ghati : 6:0:0"}, {-10, "Ishta Ghati : 59:3"}}) {
        PutMoment(DateAdd(Interval::Minute, minutes, sunrise), fields);
        const std::string result = TextOf(converters.IshtaGhatiOfBirthTime(fields));
        EXPECT_EQ(result.substr(0, text.size()), text) << minutes;
    }
}

TEST(TimeConverters, AgreeToTheMinuteOverAYear) {
    TimeConverters converters;
    for (const Place &place : places) {
        BirthFields fields = At(place);
        int beforeSunrise = 0;
        for (int day = 0; day < 365; ++day) {
            const Moment birth = DateAdd(Interval::Minute, (day * 397) % 1440,
                                         DateAdd(Interval::Day, day, MomentOf({1990, 1, 1})));
            PutMoment(birth, fields);
            std::string text = TextOf(converters.IshtaGhatiOfBirthTime(fields));
            ASSERT_EQ(text.rfind("Ishta Ghati : ", 0), 0U) << text;
            std::replace(text.begin(), text.end(), ':', ' ');
            std::istringstream numbers(text.substr(14));
            std::string ghati;
            double vighati = 0;
            double part = 0;
            numbers >> ghati >> vighati >> part;
            const bool isBefore = birth < SunriseOf(fields, converters);
            beforeSunrise += isBefore ? 1 : 0;
            BirthFields back = fields;
            PutMoment(DateAdd(Interval::Day, isBefore ? -1 : 0, birth), back);
            back.cbHour = ghati;
            back.cbMins = NumberText(vighati + part / 60);
            EXPECT_EQ(TextOf(converters.BirthTimeOfIshtaGhati(back)), "Birth Time : " + ClockText(birth))
                << place.name << " " << text;
            // Up to a vighati, 24 seconds, is lost without the third part, and the clock shows no seconds.
            back.cbMins = NumberText(vighati);
            const std::string clock = TextOf(converters.BirthTimeOfIshtaGhati(back)).substr(13);
            EXPECT_TRUE(clock == ClockText(birth) || clock == ClockText(DateAdd(Interval::Minute, -1, birth)))
                << place.name << " " << text << " " << clock;
        }
        EXPECT_GT(beforeSunrise, 50);
    }
}

} // namespace
} // namespace kelvaro
