#pragma once

#include "horoscope/StatusDisplay.h"

namespace kelvaro {

/// A screen that shows nothing, for runs without a window.
class NoDisplay : public StatusDisplay {
public:
    void OpenStatus() override {}
    void AdvanceStatusBar() override {}
    void CloseStatus() override {}
    void HideHoroscopeForms() override {}
    void ShowCurrentView(std::string_view /*currentView*/) override {}
    void RunFailed(std::string_view /*step*/, std::string_view /*cause*/) override {}
};

} // namespace kelvaro
