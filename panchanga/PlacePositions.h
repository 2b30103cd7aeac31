#pragma once

#include "astronomy/ClsFindPlanetPosition.h"
#include "horoscope/record/HoroscopeState.h"

namespace kelvaro {

/// Runs `FindFixValues` for a moment at the place of the record, under an ayanamsa and the record's custom
/// figures.
void FindFixValuesAt(ClsFindPlanetPosition &position, const HoroscopeState &state, Moment moment,
                     const std::string &ayanamsa);

/// Longitudes at the place and under the ayanamsa that the record has in force, for the searches of the
/// calendars. Degrees, 0 to 360. Raises what `ClsFindPlanetPosition` raises.
class PlacePositions {
public:
    struct SunAndMoon {
        double sun = 0;
        double moon = 0;
    };

    struct SunAndLagna {
        double sun = 0;
        double lagna = 0;
    };

    /// The record must outlive the object.
    explicit PlacePositions(const HoroscopeState &state) : state_(state) {}
    PlacePositions(const PlacePositions &) = delete;
    PlacePositions &operator=(const PlacePositions &) = delete;
    ~PlacePositions() = default;

    SunAndMoon SunAndMoonAt(Moment moment);
    SunAndLagna SunAndLagnaAt(Moment moment);

private:
    const HoroscopeState &state_;
    /// Apart from the driver's, which holds the positions of the birth for its readers.
    ClsFindPlanetPosition position_;
};

} // namespace kelvaro
