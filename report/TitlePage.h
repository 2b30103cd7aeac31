#pragma once

#include "horoscope/record/UserDetailsForm.h"
#include "report/ReportPages.h"
#include "store/database/Connection.h"

namespace kelvaro {

/// The first page: invocation, birth summary and the owner's letterhead, which is empty where none is stored.
/// Raises StoreError when the letterhead cannot be read.
void AddTitlePage(const UserDetailsForm &form, store::Connection &connection, ReportPages &pages);

} // namespace kelvaro
