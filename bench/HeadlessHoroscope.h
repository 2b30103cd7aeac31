#pragma once

#include "horoscope/Horoscope.h"

namespace kelvaro {

/// A screen that shows nothing.
class NoDisplay : public StatusDisplay {
public:
    void OpenStatus() override {}
    void AdvanceStatusBar() override {}
    void CloseStatus() override {}
    void HideHoroscopeForms() override {}
    void ShowCurrentView(std::string_view) override {}
    void RunFailed(std::string_view, std::string_view) override {}
};

/// The horoscope of the sample birth on a private copy of the database.
struct HeadlessHoroscope {
    HeadlessHoroscope() { connection.OpenCopyInMemory(KELVARO_SEED_DATABASE); }

    NoDisplay display;
    store::Connection connection;
    Horoscope horoscope{connection, display};
};

} // namespace kelvaro
