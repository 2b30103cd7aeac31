#include "panchanga/clsTithi.h"

#include "runtime/RuntimeError.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace kelvaro {

namespace {

struct TithiRow {
    std::int16_t number;
    std::string_view name;
    std::string_view position;
    std::string_view firstHalf;  ///< karana
    std::string_view secondHalf; ///< karana
};

constexpr double tithiSize = 12;
constexpr double karanaSize = 6;

// The spellings of a karana differ from row to row; they are the stored names.
constexpr std::array<TithiRow, 30> tithis{{
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

constexpr double EndOf(const TithiRow &row) {
    return row.number * tithiSize;
}

const TithiRow *TithiAt(double elongation) {
    if (!(elongation >= 0)) {
        return nullptr;
    }
    const auto *const found = std::find_if(tithis.begin(), tithis.end(),
                                           [=](const TithiRow &row) { return elongation <= EndOf(row); });
    return found == tithis.end() ? nullptr : found;
}

} // namespace

void clsTithi::FindTithi() {
    const double sun = sunC;
    const double moon = sun > moonA ? moonA + 360 : moonA;
    const double elongation = moon - sun;
    if (const TithiRow *row = TithiAt(elongation)) {
        Tithi = row->name;
        TithiPosition = row->position;
        TithiNo = row->number;
        const double inTithi = elongation - (EndOf(*row) - tithiSize);
        Karnam = inTithi <= karanaSize ? row->firstHalf : row->secondHalf;
    }
}

Karanas KaranasOf(std::int16_t tithiNo) {
    if (tithiNo < 1 || tithiNo > static_cast<std::int16_t>(tithis.size())) {
        throw OverflowError("There is no tithi number " + std::to_string(tithiNo));
    }
    const TithiRow &row = tithis.at(static_cast<std::size_t>(tithiNo) - 1);
    return {row.firstHalf, row.secondHalf};
}

} // namespace kelvaro
