#pragma once

#include "horoscope/record/DasaForm.h"
#include "report/ReportPages.h"

namespace kelvaro {

// Periods stand two in a line, to be read line by line, in one block for each dasa or bhukti, with a
// blank line between two blocks of a page. A block is not broken by a page's end; pages are added as blocks
// need them.

/// The bhuktis of the nine dasas, which all fit on one page.
void AddBhuktiPages(const DasaForm &form, ReportPages &pages);

/// The antras of all bhuktis.
void AddAntraPages(const DasaForm &form, ReportPages &pages);

} // namespace kelvaro
