#include "panchanga/clsYoga.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kelvaro {

namespace {

struct YogaRow {
    std::int16_t number;
    std::string_view name;
    double end; ///< degrees, belongs to the yoga
};

// The span of 13 degrees 20 minutes is shortened to three decimals; the last yoga takes what is left.
constexpr std::array<YogaRow, 27> yogas{{
    {1, "Vishkumbha", 13.333}, {2, "Preeti", 26.666},       {3, "Ayushmaana", 39.999},
    {4, "Saubhagya", 53.332},  {5, "Shobhana", 66.665},     {6, "Atiganda", 79.998},
    {7, "Sukarma", 93.331},    {8, "Dhriti", 106.664},      {9, "Shoola", 119.997},
    {10, "Ganda", 133.33},     {11, "Vriddhi", 146.663},    {12, "Dhruva", 159.996},
    {13, "Vyaghata", 173.329}, {14, "Harshana", 186.662},   {15, "Vajra", 199.995},
    {16, "Siddhi", 213.328},   {17, "Vyatipaata", 226.661}, {18, "Variyana", 239.994},
    {19, "Parigha", 253.327},  {20, "Shiva", 266.66},       {21, "Siddha", 279.993},
    {22, "Sadhya", 293.326},   {23, "Shubha", 306.659},     {24, "Shukla", 319.992},
    {25, "Brahma", 333.325},   {26, "Indra", 346.658},      {27, "Vaidhriti", 360},
}};

} // namespace

void clsYoga::findyoga() {
    double sum = moon_position + sun_position;
    if (sum > 360) {
        sum -= 360;
    }
    if (!(sum >= 0)) {
        return;
    }
    const auto *const found =
        std::find_if(yogas.begin(), yogas.end(), [=](const YogaRow &row) { return sum <= row.end; });
    if (found != yogas.end()) {
        YogaName = found->name;
        YogaNo = found->number;
    }
}

} // namespace kelvaro
