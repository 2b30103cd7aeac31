#include "runtime/Now.h"

#include "runtime/RuntimeError.h"
#include "system/System.h"

#include <algorithm>
#include <ctime>

namespace kelvaro {

Moment Now() {
    const auto local = LocalTime(std::time(nullptr));
    if (!local) {
        throw RuntimeError("The machine does not tell the time");
    }
    // A leap second, which the clock may show as 60, has no place in a moment.
    return MomentOf({local->tm_year + 1900, local->tm_mon + 1, local->tm_mday},
                    {local->tm_hour, local->tm_min, std::min(local->tm_sec, 59)});
}

} // namespace kelvaro
