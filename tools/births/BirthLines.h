#pragma once

#include <istream>
#include <optional>
#include <string_view>
#include <vector>

namespace kelvaro {

/// The lines of a stream of births, read into one buffer, however long they are.
class BirthLines {
public:
    /// The most bytes that a birth may have.
    static constexpr std::size_t longestLine = std::size_t{1} << 20U;

    /// The stream must outlive the object.
    explicit BirthLines(std::istream &births);

    /// The next line without its end, and nothing after the last. A line beyond `longestLine` comes cut, and
    /// still too long by one byte. The text stands until the next call.
    std::optional<std::string_view> Next();

private:
    std::istream &births_;
    std::vector<char> buffer_;
};

} // namespace kelvaro
