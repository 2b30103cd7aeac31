#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "horoscope/record/HoroscopeState.h"
#include "presentation/ChartStyles.h"
#include "report/ReportPages.h"
#include "store/database/Connection.h"

#include <string_view>

namespace kelvaro {

// Charts are drawn in the preferred style, from the cells that the windows show. A style that is none of the
// three words and a window that was never filled have no drawing. The cells come back from the database as
// the one row of a literal select; both raise StoreError when that fails.

/// The preferred style in any case of letters, where the form has a drawing in it; otherwise null.
const StyleOfChart *PreferredStyleOf(const HoroscopeState &state, const ChartForm &form);

/// What heads the table of the houses: how they are divided.
std::string_view BhavaTableTitle(const HoroscopeState &state);

/// The page of the Rasi and the Navamsa chart.
void AddChartsPage(const HoroscopeState &state, const HoroscopeForms &forms, store::Connection &connection,
                   ReportPages &pages);

/// The page of the Bhava chart and the mid points of the houses.
void AddBhavaPage(const HoroscopeState &state, const HoroscopeForms &forms, store::Connection &connection,
                  ReportPages &pages);

} // namespace kelvaro
