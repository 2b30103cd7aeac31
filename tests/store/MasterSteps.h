#pragma once

#include "store/masters/Masters.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace kelvaro::store {

/// What a test of the entered texts tells, and the text that passes it.
template <typename Fields> struct Step {
    const char *message, *focus;
    std::string Fields::*field;
    const char *mended;
};

/// Expects that each test in its turn refuses the fields, until the last text is mended.
template <typename Fields, typename Operation>
void ExpectSteps(Fields &fields, std::initializer_list<Step<Fields>> steps, Operation operation) {
    for (const Step<Fields> &step : steps) {
        const Outcome outcome = operation();
        EXPECT_EQ(outcome.notice.text, step.message);
        EXPECT_EQ(outcome.notice.focus, step.focus);
        EXPECT_FALSE(outcome.isStored);
        fields.*step.field = step.mended;
    }
}

} // namespace kelvaro::store
