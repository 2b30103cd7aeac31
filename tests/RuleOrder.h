#pragma once

#include "runtime/Notice.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelvaro {

/// A rule of a form, and texts in one of its fields that break it.
template <typename Fields> struct BrokenRule {
    const char *told; ///< message and field, joined by "@"
    std::string Fields::*field;
    std::vector<std::string> texts;
};

inline std::string Told(const Notice &notice) {
    return notice.text + "@" + notice.focus;
}

/// Breaks the rules of faultless fields from the last to the first: each must hide those after it. The fields
/// come back with all rules broken.
template <typename Fields, typename Check>
Fields ExpectOrder(Fields fields, std::vector<BrokenRule<Fields>> rules, Check check) {
    for (auto rule = rules.rbegin(); rule != rules.rend(); ++rule) {
        const Fields later = fields;
        for (const std::string &text : rule->texts) {
            fields = later;
            fields.*rule->field = text;
            EXPECT_EQ(check(fields), rule->told) << text;
        }
    }
    return fields;
}

} // namespace kelvaro
