#include "analysis/Vargas.h"

#include "horoscope/NamesForLanguage.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <random>

namespace kelvaro {
namespace {

/// A longitude in whole millionths of a degree, so that the rules can be told in whole numbers.
struct Place {
    std::int64_t whole;  ///< on the circle
    std::int64_t sign;   ///< 0 to 11
    std::int64_t degree; ///< within the sign
};

constexpr std::int64_t oneDegree = 1'000'000;

std::int64_t Hora(Place p) {
    return (p.degree < 15 * oneDegree) == (p.sign % 2 == 0) ? 4 : 3;
}

std::int64_t Dashamsha(Place p) {
    return p.sign + p.degree / (3 * oneDegree) + (p.sign % 2 == 0 ? 0 : 8);
}

std::int64_t Chaturvimshamsha(Place p) {
    return p.degree / 1'250'000 + (p.sign % 2 == 0 ? 4 : 3);
}

std::int64_t Trimshamsha(Place p) {
    constexpr std::array<std::array<std::int64_t, 5>, 2> ends{{{5, 10, 18, 25, 30}, {5, 12, 20, 25, 30}}};
    constexpr std::array<std::array<std::int64_t, 5>, 2> signs{{{0, 10, 8, 2, 6}, {1, 5, 11, 9, 7}}};
    const auto parity = static_cast<std::size_t>(p.sign % 2);
    std::size_t part = 0;
    while (p.degree >= ends[parity][part] * oneDegree) {
        ++part;
    }
    return signs[parity][part];
}

std::int64_t Khavedamsa(Place p) {
    return p.degree / 750'000 + (p.sign % 2 == 0 ? 0 : 6);
}

std::int64_t Akshvedamsa(Place p) {
    return p.degree * 3 / (2 * oneDegree) + p.sign % 3 * 4;
}

struct Rule {
    const char *label;
    std::int64_t (*sign)(Place); ///< 0 to 11 after division by twelve
};

constexpr std::array<Rule, 21> rules{{
    {"Rasi", [](Place p) { return p.sign; }},
    {"Navamsa", [](Place p) { return p.whole * 3 / (10 * oneDegree); }},
    {"Hora", Hora},
    {"Drekkana", [](Place p) { return p.sign + p.degree / (10 * oneDegree) * 4; }},
    {"Chaturthamsha", [](Place p) { return p.sign + p.degree / 7'500'000 * 3; }},
    {"Panchamsha", [](Place p) { return p.whole / (6 * oneDegree); }},
    {"Shashtamsha", [](Place p) { return p.whole / (5 * oneDegree); }},
    {"Sapthamsha", [](Place p) { return p.whole / 4'285'700; }},
    {"Ashatamsha", [](Place p) { return p.whole / 3'750'000; }},
    {"Dashamsha", Dashamsha},
    {"Ekadashamsha", [](Place p) { return p.whole * 11 / (30 * oneDegree); }},
    {"Dwadashamsha", [](Place p) { return p.sign + p.degree / 2'500'000; }},
    {"Shodashamsha", [](Place p) { return p.whole / 1'875'000; }},
    {"Vimshamsha", [](Place p) { return p.whole / 1'500'000; }},
    {"Chaturvimshamsha", Chaturvimshamsha},
    {"Saptavimshamsha", [](Place p) { return p.whole / 1'111'100; }},
    {"Trimshamsha", Trimshamsha},
    {"Khavedamsa", Khavedamsa},
    {"Akshvedamsa", Akshvedamsa},
    {"Shastiamsa", [](Place p) { return p.sign + p.degree / 500'000; }},
    {"Nava-Navamsa", [](Place p) { return p.whole * 81 / (360 * oneDegree); }},
}};

class VargasTest : public testing::Test {
protected:
    VargasTest() { connection_.OpenCopyInMemory(KELVARO_SEED_DATABASE); }

    /// Places Lagna to Ketu and fills the grid.
    void Fill(const std::array<double, 10> &longitudes, Language language = Language::English) {
        Positions positions;
        for (std::size_t i = 0; i < longitudes.size(); ++i) {
            positions.*bodyFields[i].longitude = longitudes[i];
        }
        names_ = *NamesIn(language);
        form_ = VargaCharts(positions, names_, language, table_);
    }

    const std::string &Cell(std::size_t row, std::size_t column) const {
        return form_.mshVargas.rows.at(row).at(column);
    }

    Names names_;
    VargasForm form_;
    store::Connection connection_;
    store::VargaTable table_{connection_};
};

TEST_F(VargasTest, AllChartsFollowTheirRules) {
    std::mt19937_64 random(4711);
    for (int chart = 0; chart < 300; ++chart) {
        // An odd multiple of five millionths lies on no limit of any chart.
        std::array<std::int64_t, 10> wholes{};
        std::array<double, 10> longitudes{};
        for (std::size_t i = 0; i < wholes.size(); ++i) {
            wholes[i] = static_cast<std::int64_t>(random() % 36'000'000) * 10 + 5;
            longitudes[i] = static_cast<double>(wholes[i]) / 1e6;
        }
        Fill(longitudes);
        for (std::size_t row = 0; row < rules.size(); ++row) {
            ASSERT_EQ(Cell(row, 0), rules[row].label);
            for (std::size_t i = 0; i < wholes.size(); ++i) {
                const std::int64_t sign = wholes[i] / (30 * oneDegree);
                const Place place{wholes[i], sign, wholes[i] - sign * 30 * oneDegree};
                const auto expected = static_cast<std::size_t>(rules[row].sign(place) % 12);
                ASSERT_EQ(Cell(row, i + 1), names_.RasiShortNames[expected])
                    << rules[row].label << " at " << longitudes[i];
                ASSERT_EQ(form_.rasis.at(row).at(i), expected + 1);
            }
        }
    }
}

TEST_F(VargasTest, ALimitBelongsToTheBandThatStartsThere) {
    // Hora and Drekkana in Aries and Taurus; the first of them stands so near to 0 that its text has an
    // exponent.
    Fill({1e-7, 10, 15, 20, 29.99999, 30, 40, 45, 59.5, 360});
    const std::array<const char *, 10> hora{"Leo", "Leo", "Can", "Can", "Can",
                                            "Can", "Can", "Leo", "Leo", "Leo"};
    const std::array<const char *, 10> drekkana{"Ari", "Leo", "Leo", "Sag", "Sag",
                                                "Tau", "Vir", "Vir", "Cap", "Ari"};
    for (std::size_t i = 0; i < hora.size(); ++i) {
        EXPECT_EQ(Cell(2, i + 1), hora[i]) << i;
        EXPECT_EQ(Cell(3, i + 1), drekkana[i]) << i;
    }
}

// The sizes of three charts fall short of the ninth, the seventh and the twenty-seventh of a rasi, so their
// parts drift towards Aries.
TEST_F(VargasTest, ShortSizesRunAhead) {
    Fill({9.999999999999995, 359.9995});
    EXPECT_EQ(Cell(1, 1), "Can") << "Navamsa, three parts of which end at 9.99999999999999";
    EXPECT_EQ(Cell(7, 2), "Ari") << "Sapthamsha, 84 parts of which end at 359.9988";
    EXPECT_EQ(Cell(15, 2), "Ari") << "Saptavimshamsha, 324 parts of which end at 359.9964";
}

TEST_F(VargasTest, SpeaksTheLanguageInForce) {
    Fill({});
    EXPECT_EQ(
        form_.mshVargas.header,
        "  Chart                  | Asc  | Sun  | Moo  | Mar  | Mer  | Jup  | Ven  | Sat  | Rah  | Ket  ");
    Fill({}, Language::Sanskrit);
    EXPECT_EQ(
        form_.mshVargas.header,
        "  Chart                  | Lag  | Sur  | Cha  | Kuj  | Bud  | Gur  | Suk  | San  | Rah  | Ket  ");
    EXPECT_EQ(Cell(2, 1), "Sim");
    EXPECT_EQ(RasiShortFromName(names_, "Vrischika"), "Vri");
    EXPECT_EQ(RasiShortFromName(names_, "Scorpio"), "");
}

TEST_F(VargasTest, ABodyThatTheTableDoesNotKnowHasAnEmptyCell) {
    connection_.Execute("delete from chartsmaster where chartname = 'Hora' and HouseNumber = 5");
    Fill({1, 16, 31, 46});
    const std::array<const char *, 5> hora{"Hora", "", "Can", "Can", ""};
    for (std::size_t column = 0; column < hora.size(); ++column) {
        EXPECT_EQ(Cell(2, column), hora[column]);
    }
    EXPECT_EQ(form_.rasis[2][0], 0);
    EXPECT_EQ(form_.rasis[2][1], 4);
    EXPECT_EQ(Cell(3, 1), "Ari");
}

TEST_F(VargasTest, ARowIsFoundByItsNameInAnyCase) {
    Fill({});
    VargaPositions at31{};
    at31.longitudes.fill(31);
    at31.rasis.fill(1);
    const auto fillRow = [&](const char *name, VargaSource source) {
        FillVargaRow(at31, name, 30, source, names_, table_, form_);
    };
    fillRow(" Navamsa ", VargaSource::Computed);
    EXPECT_EQ(Cell(1, 10), "Tau");
    fillRow("hORA", VargaSource::Table);
    EXPECT_EQ(Cell(2, 10), "Leo") << "one degree of the rasi given, Aries";
    const auto before = form_.mshVargas.rows;
    fillRow("Rasi", VargaSource::Computed);
    fillRow("", VargaSource::Computed);
    EXPECT_EQ(form_.mshVargas.rows, before);
}

} // namespace
} // namespace kelvaro
