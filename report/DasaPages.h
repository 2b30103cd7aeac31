#pragma once

#include "horoscope/record/TextGrid.h"
#include "report/ReportPages.h"

namespace kelvaro {

// Periods stand two in a line, to be read line by line, in one block for each section of the grid. A block is
// not parted by a page's end; pages are added as blocks need them.

/// The bhuktis of the nine dasas, which all fit on one page.
void AddBhuktiPages(const TextGrid &mshBukti, ReportPages &pages);

/// The antras of all bhuktis.
void AddAntraPages(const TextGrid &mshAntra, ReportPages &pages);

} // namespace kelvaro
