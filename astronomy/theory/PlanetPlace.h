#pragma once

#include "astronomy/theory/OrbitalElements.h"
#include "astronomy/theory/SunPlace.h"

namespace kelvaro {

/// The apparent geocentric longitude of a planet, tropical degrees from 0 to 360.
///
/// `centuries` are Julian centuries from 1900 January 0.5; `elements` and `sun` belong to the same time.
/// Light-time counts for Mercury, Venus and Jupiter, aberration for Jupiter and Saturn only. Divisions by
/// zero leave an infinity or an invalid number, for the caller's guard to find.
double FnFindPlanet(Planet planet, double centuries, const PlanetElements &elements, const SunPlace &sun);

} // namespace kelvaro
