#include "horoscope/entry/TimeConverters.h"

#include "panchanga/day/IshtaGhati.h"
#include "runtime/MomentText.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "tests/RuleOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace kelvaro {
namespace {

struct Town {
    store::Place place;
    store::Zone zone;
};

const std::vector<Town> towns{{{17, 0, "N", 78, 0, "E"}, {"", "Hyderabad", 1, 5.5, "E"}},
                              {{41, 0, "N", 74, 0, "W"}, {"", "New York", 2, 5, "W"}},
                              {{35, 0, "S", 58, 0, "W"}, {"", "Buenos Aires", 3, 3, "W"}}};

BirthFields At(const Town &town, Moment moment = MomentOf({1990, 3, 21}, {12, 0, 0})) {
    BirthFields fields = FieldsAtLoad(moment);
    fields.txt_VC_Country = fields.chosen.country = "Somewhere";
    fields.txt_VC_City = "Town";
    TakePlace(town.place, fields);
    TakeZone(town.zone, fields);
    return fields;
}

std::string TextOf(const TimeConverters::Result &result) {
    const auto *const text = std::get_if<std::string>(&result);
    return text != nullptr ? *text : Told(std::get<Notice>(result));
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

TEST(TimeConverters, RulesComeInTheirOrder) {
    TimeConverters converters;
    std::vector<BrokenRule<BirthFields>> rules{
        {"Enter Date@txt_Date", &BirthFields::txt_Date, {""}},
        {"Enter Month@txt_Month", &BirthFields::txt_Month, {""}},
        {"Enter Year@txt_Year", &BirthFields::txt_Year, {""}},
        {"Enter Year Between 1800 and 3000@txt_Year", &BirthFields::txt_Year, {"x", "1799", "3001"}},
        {"Enter Correct Date@", &BirthFields::txt_Date, {"32"}},
        {"Enter Correct Time@cbHour", &BirthFields::cbHour, {""}},
        {"Enter Correct Time@cbMins", &BirthFields::cbMins, {""}},
        {"Enter Correct Time@cbHour", &BirthFields::cbHour, {"61", "-1", "x", "25", "13", "1.5"}},
        {"Enter Correct Time@cbMins", &BirthFields::cbMins, {"60", "-1", "x"}},
        {"Select Country@Cmb_VP_Country", &BirthFields::txt_VC_Country, {"", "Some"}},
        {"Select City@Cmb_VP_City", &BirthFields::txt_VC_City, {"", "Hyder"}},
        {"Select Timezone@cbTimeZone", &BirthFields::cbTimeZone, {"", "IST"}},
    };
    ExpectOrder(At(towns.front()), rules,
                [&](const BirthFields &fields) { return TextOf(converters.IshtaGhatiOfBirthTime(fields)); });
    rules[7].texts.resize(3); // an hour of 25 is one of 60 ghatis, and those of a clock are afternoon here
    rules.erase(rules.begin() + 4);
    ExpectOrder(At(towns.front()), rules,
                [&](const BirthFields &fields) { return TextOf(converters.BirthTimeOfIshtaGhati(fields)); });
    BirthFields fields = At(towns.front());
    fields.cbHour = "60";
    fields.txt_Date = "32";
    EXPECT_THROW(converters.BirthTimeOfIshtaGhati(fields), ConversionError) << "not asked, but read";
}

TEST(TimeConverters, CountFromTheSunriseBefore) {
    TimeConverters converters;
    const Moment sunrise = SunriseOf(At(towns.front()), converters);
    // By any almanac the Sun rises at Hyderabad at about 06:25 at the equinox.
    EXPECT_NEAR((sunrise.Serial() - DateOf(sunrise).Serial()) * 1440, 6 * 60 + 25, 4);
    for (const auto &[minutes, text] : std::vector<std::pair<int, std::string>>{
             {0, "Ishta Ghati : 0:0:0"}, {144, "Ishta Ghati : 6:0:0"}, {-10, "Ishta Ghati : 59:3"}}) {
        const BirthFields fields = At(towns.front(), DateAdd(Interval::Minute, minutes, sunrise));
        EXPECT_TRUE(TextOf(converters.IshtaGhatiOfBirthTime(fields)).starts_with(text)) << minutes;
    }
}

TEST(TimeConverters, AgreeToTheMinuteOverAYear) {
    TimeConverters converters;
    for (const Town &town : towns) {
        int beforeSunrise = 0;
        for (int day = 0; day < 365; ++day) {
            const Moment birth = DateAdd(Interval::Minute, (day * 397) % 1440,
                                         DateAdd(Interval::Day, day, MomentOf({1990, 1, 1})));
            const BirthFields fields = At(town, birth);
            std::string text = TextOf(converters.IshtaGhatiOfBirthTime(fields));
            ASSERT_TRUE(text.starts_with("Ishta Ghati : ")) << text;
            std::replace(text.begin(), text.end(), ':', ' ');
            std::istringstream numbers(text.substr(14));
            std::string ghati;
            double vighati = 0;
            double part = 0;
            numbers >> ghati >> vighati >> part;
            const bool isBefore = birth < SunriseOf(fields, converters);
            beforeSunrise += isBefore ? 1 : 0;
            BirthFields back = At(town, DateAdd(Interval::Day, isBefore ? -1 : 0, birth));
            back.cbHour = ghati;
            back.cbMins = NumberText(vighati + part / 60);
            EXPECT_EQ(TextOf(converters.BirthTimeOfIshtaGhati(back)), "Birth Time : " + ClockText(birth))
                << town.zone.text << " " << text;
        }
        EXPECT_GT(beforeSunrise, 50);
    }
}

} // namespace
} // namespace kelvaro
