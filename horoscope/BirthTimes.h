#pragma once

namespace kelvaro {

struct Horoscope;

/// Reckons the local mean time of the birth and the Ishta Ghati, the time since the sunrise that opened its
/// day.
///
/// Sets `LocalMeanTimeMoment`, `SunriseForGhati`, `IshtaGhatiMinutes` and `IshtaGhati` of the record and the
/// text `txtlmt`; returns the Ishta Ghati in ghatis of 24 minutes. It is negative where the clock is past
/// sunrise and the local mean time is not yet.
double ComputeLocalMeanTime(Horoscope &horoscope);

/// Sets the text `txtIshtaGhati` from the same reckoning: ghatis, ":", four digits of the fraction.
void ComputeIshtaGhati(Horoscope &horoscope);

} // namespace kelvaro
