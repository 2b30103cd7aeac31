#pragma once

#include "horoscope/Horoscope.h"
#include "horoscope/NoDisplay.h"
#include "store/database/Connection.h"

namespace kelvaro {

/// The horoscope of the sample birth on a private copy of the database.
struct HeadlessHoroscope {
    HeadlessHoroscope() { connection.OpenCopyInMemory(KELVARO_SEED_DATABASE); }

    NoDisplay display;
    store::Connection connection;
    Horoscope horoscope{connection, display};
};

} // namespace kelvaro
