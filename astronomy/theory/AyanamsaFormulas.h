#pragma once

#include <cstdint>

namespace kelvaro {

// The ayanamsa family, degrees. Lahiri comes negative, ready to be added to a tropical longitude; the others
// come positive and are to be negated.

/// Chitrapaksha, with nutation. `clockCenturies` are Julian centuries from 1900 January 0.5.
double FnFindLahiri(double clockCenturies);

/// Krishnamurti. `days` are whole days from 1900 January 1.
double FnFindKP(std::int32_t days);

/// Raman. `days` are whole days from January 1 of the year.
double FnFindRaman(int year, std::int32_t days);

/// A zero year and a progress in seconds of arc a year; `days` as for Raman.
double FnFindCustom(double zeroYear, double progress, int year, std::int32_t days);

} // namespace kelvaro
