#pragma once

#include "horoscope/entry/BirthEntry.h"

#include <deque>

namespace kelvaro {

/// What was typed into forms of birth details and left them without being saved, for the run of the program.
class DiscardedBirths {
public:
    /// The oldest are dropped beyond a bound. What looks the same as one kept before takes its place.
    void Keep(const BirthFields &typed);

    /// A birth has been saved: what looks the same is no longer kept.
    void Forget(const BirthFields &saved);

    /// The one that comes back next; null where there is none.
    const BirthFields *Next() const { return births_.empty() ? nullptr : &births_.back(); }

    /// Puts the next one onto a form, which stands for the same saved chart, or none, as before. It is no
    /// longer kept. What it takes the place of waits behind all others where it was typed; so whoever brings
    /// back again and again sees them all. Nothing is done where there is none.
    void BringBack(BirthFields &form, bool isTyped);

private:
    std::deque<BirthFields> births_; ///< the next one last
};

} // namespace kelvaro
