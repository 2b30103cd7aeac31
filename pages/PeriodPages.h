#pragma once

#include "horoscope/record/DasaForm.h"
#include "pages/PageSetter.h"

namespace kelvaro {

// Periods stand in blocks, one for each dasa or bhukti, to be read down the columns of a page. No block is
// torn. Where there are no periods, nothing is added, and no page is opened.

/// Sets the bhuktis of all dasas on a page of their own.
void SetBhuktiPages(const DasaForm &form, PageSetter &setter);

/// Sets the antras of all bhuktis on as many pages as they need.
void SetAntraPages(const DasaForm &form, PageSetter &setter);

} // namespace kelvaro
