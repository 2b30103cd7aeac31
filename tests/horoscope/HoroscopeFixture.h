#pragma once

#include "horoscope/Horoscope.h"
#include "horoscope/StatusDisplay.h"
#include "store/database/Connection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace kelvaro {

/// Notes what the driver asks of the screen.
class RecordingDisplay : public StatusDisplay {
public:
    void OpenStatus() override { events.emplace_back("open"); }
    void AdvanceStatusBar() override {
        events.emplace_back("advance");
        if (atEachAdvance) {
            atEachAdvance();
        }
    }
    void CloseStatus() override { events.emplace_back("close"); }
    void HideHoroscopeForms() override { events.emplace_back("hide"); }
    void HideOpenChart() override { events.emplace_back("hide birth"); }
    void ShowCurrentView(std::string_view view) override { events.emplace_back("show " + std::string(view)); }
    void RunFailed(std::string_view step, std::string_view cause) override {
        failedStep = step;
        failure = cause;
    }
    void RunRemarked(std::string_view text) override { remark = text; }

    std::size_t Count(const std::string &event) const {
        return static_cast<std::size_t>(std::count(events.begin(), events.end(), event));
    }

    std::vector<std::string> events;
    std::string failedStep;
    std::string failure;
    std::string remark;
    std::function<void()> atEachAdvance;
};

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
