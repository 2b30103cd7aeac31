#pragma once

#include "horoscope/entry/BirthEntry.h"
#include "horoscope/entry/BirthplaceClock.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kelvaro {

/// What the records of clocks say of the birth on the form. The place that was asked about last is
/// remembered, so that a remark can follow every key.
class BirthClock {
public:
    /// The connection must outlive the object.
    explicit BirthClock(store::Connection &connection) : connection_(connection) {}

    /// Nothing while date, time and city are not all known, and where there are no records. Raises StoreError
    /// where the database fails.
    std::optional<ClockAdvice> Advice(const BirthFields &fields);

    /// The masters may have changed what is remembered.
    void Forget() { known_.reset(); }

private:
    struct KnownPlace {
        std::string city;
        std::int32_t countryId = 0;
        std::string zone;              ///< in the tz database; empty where it is not known
        std::vector<store::Zone> list; ///< the zones of the country
    };

    const std::string &ZoneOf(const BirthFields &fields);

    store::Connection &connection_;
    std::optional<KnownPlace> known_;
};

} // namespace kelvaro
