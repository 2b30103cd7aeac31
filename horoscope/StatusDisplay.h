#pragma once

#include <string_view>

namespace kelvaro {

/// The screen during a run of the driver: the panel with its creeping fill, and the views of the horoscope.
class StatusDisplay {
public:
    StatusDisplay() = default;
    StatusDisplay(const StatusDisplay &) = delete;
    StatusDisplay &operator=(const StatusDisplay &) = delete;
    virtual ~StatusDisplay() = default;

    /// Shows the panel with an empty fill.
    virtual void OpenStatus() = 0;

    /// Lets the fill creep on by one step of the track.
    virtual void AdvanceStatusBar() = 0;

    virtual void CloseStatus() = 0;

    virtual void HideHoroscopeForms() = 0;

    /// Hides the form of birth details, which a run that has got as far as the planet table no longer needs.
    virtual void HideOpenChart() {}

    /// Shows the view of that name, or the birth details for an empty name.
    virtual void ShowCurrentView(std::string_view currentView) = 0;

    /// Tells the user at which step the run ended, and why.
    virtual void RunFailed(std::string_view step, std::string_view cause) = 0;

    /// Tells the user what to know of the results of a run that came to its end.
    virtual void RunRemarked(std::string_view /*remark*/) {}
};

} // namespace kelvaro
