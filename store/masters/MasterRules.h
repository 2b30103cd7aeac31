#pragma once

#include "runtime/Notice.h"
#include "runtime/Texts.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro::store {

/// What came of storing a row of a master, and what to tell about it.
struct Outcome {
    bool isStored = false;
    Notice notice;
};

/// The row that a search selects, or else what it tells.
struct Found {
    std::optional<std::size_t> row;
    std::optional<Notice> notice;
};

/// The cells of the rows of a grid.
using GridRows = std::vector<std::vector<std::string>>;

/// A test of the fields of a dialog: what it tells when it fails and the control that takes the focus.
template <typename Fields> struct FieldTest {
    bool (*fails)(const Fields &);
    std::string_view message, focus;
};

/// What the first failing test tells; nothing where all pass.
template <typename Fields>
std::optional<Notice> FirstFailure(std::span<const FieldTest<Fields>> tests, const Fields &fields) {
    for (const FieldTest<Fields> &test : tests) {
        if (test.fails(fields)) {
            return Notice{std::string(test.message), Notice::Icon::Information, std::string(test.focus)};
        }
    }
    return std::nullopt;
}

/// Whether the text reads as a decimal number.
bool IsNumber(std::string_view text);

/// Whether the text is a number from the lowest to the highest, both included.
bool IsWithin(std::string_view text, double lowest, double highest);

} // namespace kelvaro::store
