#pragma once

#include <cstddef>
#include <cstdint>

namespace kelvaro {

/// A sign of the zodiac (rasi): 1 is Aries (Mesha), 12 Pisces (Meena), and after the last comes the first.
class Sign {
public:
    /// Raises OverflowError for a number outside 1 to 12.
    explicit Sign(int number);

    std::int16_t Number() const { return number_; }
    /// The place in a table of twelve.
    std::size_t Index() const { return static_cast<std::size_t>(number_ - 1); }

    Sign Next() const { return Plus(1); }
    Sign Previous() const { return Plus(-1); }
    /// So many signs on, backwards where the count is negative.
    Sign Plus(int signs) const;

    friend bool operator==(Sign, Sign) = default;

private:
    std::int16_t number_;
};

/// Division sizes of the Rasi and the Navamsa, degrees. The second is this decimal and not the third of ten.
inline constexpr double rasiSize = 30;
inline constexpr double navamsaSize = 3.33333333333333;

/// The rasi, 1 to 12, of a longitude under a division size, both in degrees, counted on from Aries through
/// the zodiac. Raises OverflowError beyond 16 bits.
std::int16_t RasiOfLongitude(double longitude, double division);

/// The same by the name that it has among the charts.
inline std::int16_t SignOfLongitude(double position, double width) {
    return RasiOfLongitude(position, width);
}

} // namespace kelvaro
