#include "astronomy/clsDecimal.h"

#include "runtime/Numbers.h"

#include <algorithm>

namespace kelvaro {

double clsDecimal::FnFindDecimal(std::string_view text) const {
    const auto from = [&](std::size_t start, std::size_t count) {
        return NumberFromText(text.substr(std::min(start, text.size()), count));
    };
    const double degrees = from(0, 3);
    const double minutes = from(4, 2);
    const double seconds = from(text.size() < 2 ? 0 : text.size() - 2, 2);
    return degrees + minutes / 60 + seconds / 3600;
}

} // namespace kelvaro
