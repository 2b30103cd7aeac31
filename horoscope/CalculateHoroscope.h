#pragma once

namespace kelvaro {

struct Horoscope;

/// Turns the birth details and preferences of the record into every result that the views show, from end to
/// end.
///
/// An error in a step ends the run at that step: the views that were not reached stand empty, the view in
/// force is shown, and the status display is told the step and the cause. A run that comes to its end tells
/// it where a missing sunrise or sunset was replaced. A call from inside a run is ignored.
void CalculateHoroscope(Horoscope &horoscope);

} // namespace kelvaro
