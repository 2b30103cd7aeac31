#pragma once

#include "store/database/Connection.h"
#include "store/masters/PlaceLists.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kelvaro {

/// A saved chart whose zone is to be looked at.
struct DoubtfulClock {
    store::ListItem chart; ///< "Velnesh~14-Jul-1965" with its number
    std::string remark;    ///< what the records say and what the chart has
};

/// The saved charts held against the records of the clocks of their birthplaces.
struct ClockSurvey {
    std::vector<DoubtfulClock>
        differing; ///< charts with another offset, and those of an hour that no clock showed
    std::vector<DoubtfulClock> unknown; ///< charts that cannot be checked, and why
    std::size_t agreeing = 0;
};

/// Looks at all saved charts, by name. Nothing is changed. Raises StoreError where the list of charts cannot
/// be read; a chart that cannot be read is among the unknown ones.
ClockSurvey SurveyClocks(store::Connection &connection);

} // namespace kelvaro
