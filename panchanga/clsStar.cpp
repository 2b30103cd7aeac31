#include "panchanga/clsStar.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace kelvaro {

namespace {

struct StarRow {
    std::int16_t number;
    std::string_view name;
    std::array<double, 4>
        padaEnds;            ///< degrees; an end belongs to its pada, the last one is the end of the star
    std::int16_t firstHouse; ///< Navamsa sign of the first pada; 0 where none is given
};

constexpr std::int16_t uttarashada = 21;
constexpr std::int16_t shravana = 23;

// Thirds of a degree are kept to fifteen digits, rounded after each addition to the start of the star; that
// is why the last digit of equal fractions varies. The second pada of Uttarashada and the first of Shravana
// have ends of their own choosing in that digit.
constexpr std::array<StarRow, 27> stars{{
    {1, "Ashwini", {3.33333333333333, 6.66666666666667, 10, 13.3333333333333}, 1},
    {2, "Bharani", {16.6666666666666, 20, 23.3333333333333, 26.6666666666667}, 5},
    {3, "Kritika", {30, 33.3333333333334, 36.6666666666667, 40}, 9},
    {4, "Rohini", {43.3333333333333, 46.6666666666667, 50, 53.3333333333333}, 1},
    {5, "Mrigshira", {56.6666666666666, 60, 63.3333333333333, 66.6666666666667}, 5},
    {6, "Ardra", {70, 73.3333333333334, 76.6666666666667, 80}, 9},
    {7, "Punarvasu", {83.3333333333333, 86.6666666666667, 90, 93.3333333333333}, 1},
    {8, "Pushya", {96.6666666666666, 100, 103.333333333333, 106.666666666667}, 5},
    {9, "Ashlesha", {110, 113.333333333334, 116.666666666667, 120}, 9},
    {10, "Magha", {123.333333333333, 126.666666666667, 130, 133.333333333333}, 1},
    {11, "P.Falguni", {136.666666666666, 140, 143.333333333333, 146.666666666667}, 5},
    {12, "U.Falguni", {150, 153.333333333334, 156.666666666667, 160}, 9},
    {13, "Hasta", {163.333333333333, 166.666666666667, 170, 173.333333333333}, 1},
    {14, "Chitra", {176.666666666666, 180, 183.333333333333, 186.666666666667}, 5},
    {15, "Swati", {190, 193.333333333334, 196.666666666667, 200}, 9},
    {16, "Vishaka", {203.333333333333, 206.666666666667, 210, 213.333333333333}, 1},
    {17, "Anuradha", {216.666666666666, 220, 223.333333333333, 226.666666666667}, 5},
    {18, "Jyestha", {230, 233.333333333334, 236.666666666667, 240}, 9},
    {19, "Moola", {243.333333333333, 246.666666666667, 250, 253.333333333333}, 1},
    {20, "Poorvashada", {256.666666666666, 260, 263.333333333333, 266.666666666667}, 0},
    {uttarashada, "Uttarashada", {270, 273.333333333333, 276.666666666667, 280}, 0},
    {shravana, "Shravana", {283.333333333334, 286.666666666667, 290, 293.333333333333}, 1},
    {24, "Dhanishtha", {296.666666666666, 300, 303.333333333333, 306.666666666667}, 5},
    {25, "Shatbhisha", {310, 313.333333333334, 316.666666666667, 320}, 9},
    {26, "P.Bhadrapad", {323.333333333333, 326.666666666667, 330, 333.333333333333}, 1},
    {27, "U.Bhadrapad", {336.666666666666, 340, 343.333333333333, 346.666666666667}, 5},
    {28, "Revati", {350, 353.333333333334, 356.666666666667, 360}, 9},
}};

/// Belongs to both sides: the pada before it ends here and Abijit begins.
constexpr double abijitStart = 276.666666666667;

struct IrregularEnd {
    std::int16_t star;
    std::int16_t pada;
    double end;
};

// Ends that only the distance is measured to. The pada itself stays regular.
constexpr std::array<IrregularEnd, 8> irregularEnds{{
    {2, 3, 23.6666666666667},
    {5, 1, 56.66525},
    {6, 1, 90},
    {7, 1, 83.33125},
    {11, 2, 139.9965},
    {13, 1, 163.32925},
    {shravana, 1, 280.333333333333},
    {shravana, 2, 286.6595},
}};

const StarRow *StarAt(double position) {
    if (!(position >= 0)) {
        return nullptr;
    }
    const auto *const found = std::find_if(
        stars.begin(), stars.end(), [=](const StarRow &row) { return position <= row.padaEnds.back(); });
    return found == stars.end() ? nullptr : found;
}

/// 1 to 4, for a position inside the star.
std::int16_t PadaAt(const StarRow &star, double position) {
    const auto *const found =
        std::find_if(star.padaEnds.begin(), star.padaEnds.end(), [=](double end) { return position <= end; });
    return static_cast<std::int16_t>(found - star.padaEnds.begin() + 1);
}

double DistanceToPadaEnd(const StarRow &star, std::int16_t pada, double position) {
    const double end = star.padaEnds.at(static_cast<std::size_t>(pada - 1));
    if (star.number == 9 && pada == 3) {
        // Measured backwards in this one pada: never positive.
        return position - end;
    }
    const auto *const irregular =
        std::find_if(irregularEnds.begin(), irregularEnds.end(), [&](const IrregularEnd &entry) {
            return entry.star == star.number && entry.pada == pada;
        });
    return (irregular == irregularEnds.end() ? end : irregular->end) - position;
}

} // namespace

void clsStar::findstar() {
    position_ = PlanetPosition;
    if (const StarRow *star = StarAt(position_)) {
        name_ = star->name;
        StarNo = star->number;
        StarQuarter = PadaAt(*star, position_);
        if (star->firstHouse != 0) {
            HouseNo = static_cast<std::int16_t>(star->firstHouse + StarQuarter - 1);
        }
        StarPadaDistance = DistanceToPadaEnd(*star, StarQuarter, position_);

        if (star->number == uttarashada && position_ >= abijitStart) {
            name_ = "Uttarashada - Abijit";
            StarNo = 22;
        } else if (star->number == shravana && StarQuarter == 1) {
            name_ = "Shravana - Abijit";
        }
    }
    StarName = name_;
}

} // namespace kelvaro
