#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"

#include <cstdint>
#include <memory>
#include <string>

namespace kelvaro {

class StatusDisplay;
struct Calculators;

namespace store {
class Connection;
}

/// The one horoscope in force: what was stated, what was computed, what the views show.
struct Horoscope {
    /// Both must outlive the object.
    Horoscope(store::Connection &opened, StatusDisplay &display);
    Horoscope(const Horoscope &) = delete;
    Horoscope &operator=(const Horoscope &) = delete;
    ~Horoscope();

    HoroscopeState state;
    HoroscopeForms forms;
    std::unique_ptr<Calculators> calculators; ///< never null; apart, for who only shows what they found
    std::string CurrentView;      ///< name of the view that the user last chose; empty for the birth details
    std::int32_t chartNumber = 0; ///< of the saved chart in force; 0 for one that is not saved
    store::Connection &connection;
    StatusDisplay &status;
    bool isCalculating = false;
};

} // namespace kelvaro
