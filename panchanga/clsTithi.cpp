#include "panchanga/clsTithi.h"

#include "runtime/RuntimeError.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace kelvaro {

namespace {

constexpr double tithiSize = 12;
constexpr double karanaSize = 6;

// The spellings of a karana differ from row to row; they are the stored names.
constexpr std::array<LunarDay, 30> tithis{{
    {1, "Pratipada", "Bright", "Kintughna", "Bava"},    {2, "Dwitiya", "Bright", "Balav", "Kaulav"},
    {3, "Tritiya", "Bright", "Taitila", "Gar"},         {4, "Chaturthi", "Bright", "Vanija", "Vishti"},
    {5, "Panchami", "Bright", "Bav", "Balav"},          {6, "Shasthi", "Bright", "Kaulava", "Taitila"},
    {7, "Saptami", "Bright", "Gar", "Vanija"},          {8, "Ashtami", "Bright", "Vishti", "Bav"},
    {9, "Navami", "Bright", "Balava", "Kaulava"},       {10, "Dashami", "Bright", "Taitila", "Gar"},
    {11, "Ekadashi", "Bright", "Vanija", "Vishti"},     {12, "Dwadashi", "Bright", "Bav", "Balav"},
    {13, "Triyodashi", "Bright", "Kaulava", "Taitila"}, {14, "Chaturdashi", "Bright", "Gar", "Vanija"},
    {15, "Purnima", "Bright", "Vishti", "Bav"},         {16, "Pratipada", "Dark", "Balav", "Kaulava"},
    {17, "Dwitiya", "Dark", "Taitila", "Gar"},          {18, "Tritiya", "Dark", "Vanija", "Vishti"},
    {19, "Chaturthi", "Dark", "Bav", "Balav"},          {20, "Panchami", "Dark", "Kaulava", "Taitila"},
    {21, "Shasthi", "Dark", "Gar", "Vanija"},           {22, "Saptami", "Dark", "Vishti", "Bav"},
    {23, "Ashtami", "Dark", "Balava", "Kaulava"},       {24, "Navami", "Dark", "Taitila", "Gar"},
    {25, "Dashami", "Dark", "Vanija", "Vishti"},        {26, "Ekadashi", "Dark", "Bav", "Balava"},
    {27, "Dwadashi", "Dark", "Kaulava", "Taitila"},     {28, "Triyodashi", "Dark", "Gar", "Vanija"},
    {29, "Chaturdashi", "Dark", "Vishti", "Shakuni"},   {30, "Amavashya", "Dark", "Chatushpada", "Naga"},
}};

constexpr double EndOf(const LunarDay &day) {
    return day.number * tithiSize;
}

/// Of the Moon from the Sun, degrees.
double Elongation(double moon, double sun) {
    return (sun > moon ? moon + 360 : moon) - sun;
}

/// Null outside 0 to 360.
const LunarDay *LunarDayAt(double elongation) {
    if (!(elongation >= 0)) {
        return nullptr;
    }
    const auto *const found =
        std::ranges::find_if(tithis, [=](const LunarDay &day) { return elongation <= EndOf(day); });
    return found == tithis.end() ? nullptr : found;
}

} // namespace

void clsTithi::FindTithi() {
    const double elongation = Elongation(moonA, sunC);
    if (const LunarDay *day = LunarDayAt(elongation)) {
        Tithi = day->name;
        TithiPosition = day->side;
        TithiNo = day->number;
        const double inTithi = elongation - (EndOf(*day) - tithiSize);
        Karnam = inTithi <= karanaSize ? day->firstKarana : day->secondKarana;
    }
}

const LunarDay &LunarDayOfNumber(int number) {
    if (number < 1 || number > static_cast<int>(tithis.size())) {
        throw OverflowError("There is no tithi number " + std::to_string(number));
    }
    return tithis.at(static_cast<std::size_t>(number) - 1);
}

std::string_view TithiNameOf(double moon, double sun) {
    const LunarDay *day = LunarDayAt(Elongation(moon, sun));
    return day != nullptr ? day->name : std::string_view();
}

std::string_view TithiSideOf(double moon, double sun) {
    const LunarDay *day = LunarDayAt(Elongation(moon, sun));
    return day != nullptr ? day->side : std::string_view();
}

std::int16_t TithiNumberOf(double moon, double sun) {
    const LunarDay *day = LunarDayAt(Elongation(moon, sun));
    return day != nullptr ? day->number : std::int16_t{0};
}

} // namespace kelvaro
