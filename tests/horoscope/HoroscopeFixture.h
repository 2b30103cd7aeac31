#pragma once

#include "horoscope/Horoscope.h"
#include "store/database/Connection.h"
#include "tests/horoscope/RecordingDisplay.h"

#include <gtest/gtest.h>

#include <string>

namespace kelvaro {

/// A horoscope on a private copy of the seed database, at first the sample birth.
class HoroscopeTest : public testing::Test {
protected:
    HoroscopeTest() { connection.OpenCopyInMemory(KELVARO_SEED_DATABASE); }

    void SetBirth(Moment moment) {
        const CivilMoment parts = Split(moment);
        horoscope.state.birth.BirthDay = std::to_string(parts.date.day);
        horoscope.state.birth.BirthMonth = std::to_string(parts.date.month);
        horoscope.state.birth.BirthYear = std::to_string(parts.date.year);
        horoscope.state.birth.BirthHour = std::to_string(parts.clock.hour);
        horoscope.state.birth.BirthMinute = std::to_string(parts.clock.minute);
    }

    RecordingDisplay display;
    store::Connection connection;
    Horoscope horoscope{connection, display};
};

} // namespace kelvaro
