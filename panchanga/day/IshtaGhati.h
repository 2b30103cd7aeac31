#pragma once

#include "runtime/Moment.h"

#include <cstdint>

namespace kelvaro {

// Ishta ghati: the time since sunrise in ghatis of 24 minutes. A ghati has 60 vighatis, a vighati 60 parts.

struct IshtaGhati {
    std::int32_t ghati = 0;
    std::int32_t vighati = 0;
    std::int32_t part = 0;

    friend bool operator==(const IshtaGhati &, const IshtaGhati &) = default;
};

/// The ghatis of so many whole minutes since sunrise, computed with four places of decimals, so that the last
/// part can be one short.
IshtaGhati IshtaGhatiOf(std::int32_t minutes);

/// The moment so many ghatis and vighatis after a sunrise.
Moment MomentAfterSunrise(Moment sunrise, double ghatis, double vighatis);

} // namespace kelvaro
