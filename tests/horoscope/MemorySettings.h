#pragma once

#include "horoscope/entry/LastChart.h"

#include <functional>
#include <map>
#include <string>
#include <utility>

namespace kelvaro {

/// The settings of a test.
class MemorySettings : public SettingsStore {
public:
    std::optional<std::string> Read(std::string_view key) override {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void Write(std::string_view key, const std::string &value) override {
        if (atWrite) {
            atWrite();
        }
        written_.insert_or_assign(std::string(key), value);
    }
    void Flush() override {
        written_.merge(values);
        values = std::exchange(written_, {});
    }

    std::map<std::string, std::string, std::less<>> values;
    std::function<void()> atWrite;

private:
    std::map<std::string, std::string, std::less<>> written_;
};

} // namespace kelvaro
