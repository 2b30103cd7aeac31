#pragma once

#include "horoscope/entry/BirthStorage.h"
#include "tests/horoscope/EnteredBirth.h"
#include "tests/horoscope/HoroscopeFixture.h"
#include "tests/horoscope/MemorySettings.h"
#include "tests/store/StoreFixture.h"

namespace kelvaro {

constexpr std::int32_t indianZone = 181;

/// Fields and a horoscope on a database file of their own.
class BirthEntryTest : public store::StoreTest {
protected:
    BirthFields Entered(const std::string &hour = "02", bool isPm = true) {
        return EnteredBirth(lists_, horoscope_.state, hour, isPm);
    }

    Notice Save(BirthFields &fields) { return SaveBirth(fields, connection_, settings_).notice; }
    OpenedBirth Open(const store::ListItem &row) { return OpenBirth(row, connection_, horoscope_.state); }
    std::string HourStored() { return First("select ChartHour from ChartSave"); }

    store::PlaceLists lists_{connection_};
    RecordingDisplay display_;
    Horoscope horoscope_{connection_, display_};
    MemorySettings settings_;
};

} // namespace kelvaro
