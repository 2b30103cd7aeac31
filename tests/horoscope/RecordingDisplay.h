#pragma once

#include "horoscope/StatusDisplay.h"

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
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

} // namespace kelvaro
