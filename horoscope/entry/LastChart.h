#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kelvaro {

struct BirthFields;
struct HoroscopeState;

/// The user's settings of the program, section "Horo". What is written is kept with the next `Flush`, all of
/// it or nothing.
class SettingsStore {
public:
    SettingsStore() = default;
    SettingsStore(const SettingsStore &) = delete;
    SettingsStore &operator=(const SettingsStore &) = delete;
    virtual ~SettingsStore() = default;

    /// Raises RuntimeError where there are settings that cannot be read, which `Read` tells as keys that have
    /// never been written.
    virtual void RequireReadable() {}
    /// Nothing where the key has never been written.
    virtual std::optional<std::string> Read(std::string_view key) = 0;
    virtual void Write(std::string_view key, const std::string &value) = 0;
    /// Raises RuntimeError where the settings cannot be written. A store that keeps each text at once leaves
    /// it as it is.
    virtual void Flush() {}
};

/// Puts the last saved chart in force, without computing; a key that is missing counts as that of the sample
/// chart. Where the settings cannot be read, or a key is no date, time, number or letter, or
/// the place or its offset from Greenwich is one that no form takes, the sample chart as a whole comes in
/// force, and the words for the status bar are returned; they are empty otherwise. Texts are shortened to a
/// line.
std::string RestoreLastChart(SettingsStore &settings, HoroscopeState &state);

/// The texts of the eighteen keys, in their order.
using LastChart = std::array<std::string, 18>;

/// Raises ConversionError for an hour that is no number.
LastChart LastChartOf(const BirthFields &fields);

/// What the settings hold; a key that is missing counts as that of the sample chart.
LastChart LastChartIn(SettingsStore &settings);

/// Writes all keys together. Raises RuntimeError where the settings cannot be written, with nothing written.
void KeepLastChart(const LastChart &chart, SettingsStore &settings);

} // namespace kelvaro
