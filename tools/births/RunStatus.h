#pragma once

#include "horoscope/NoDisplay.h"

#include <optional>
#include <string>
#include <string_view>

namespace kelvaro {

/// A status display without a screen: it keeps how the run ended.
class RunStatus final : public NoDisplay {
public:
    /// "<step>: <cause>" of the step that ended the last run, nothing when the run came to its end.
    const std::optional<std::string> &Failure() const { return failure_; }

    void OpenStatus() override { failure_.reset(); }
    void RunFailed(std::string_view step, std::string_view cause) override {
        failure_ = std::string(step) + ": " + std::string(cause);
    }

private:
    std::optional<std::string> failure_;
};

} // namespace kelvaro
