#include "tools/births/BirthLines.h"

#include <limits>

namespace kelvaro {

BirthLines::BirthLines(std::istream &births) : births_(births), buffer_(longestLine + 2) {}

std::optional<std::string_view> BirthLines::Next() {
    // Fails with the buffer full, and with nothing read at the end of the stream.
    births_.getline(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    auto length = static_cast<std::size_t>(births_.gcount());
    if (births_.fail()) {
        if (length == 0) {
            return std::nullopt;
        }
        births_.clear();
        births_.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    } else if (!births_.eof()) {
        --length; // the end of the line was read too
    }
    return std::string_view(buffer_.data(), length);
}

} // namespace kelvaro
