#pragma once

#include "horoscope/entry/LastChart.h"

#include <QSettings>

#include <map>
#include <memory>

namespace kelvaro {

/// The settings of the person at the machine, where the platform keeps those of a program.
class UserSettings : public SettingsStore {
public:
    UserSettings() = default;
    /// Keeps the settings in a file of its own.
    explicit UserSettings(QString file);

    std::optional<std::string> Read(std::string_view key) override;
    void Write(std::string_view key, const std::string &value) override;
    void Flush() override;

private:
    std::unique_ptr<QSettings> Open() const;

    QString file_; ///< empty for the platform's own place
    std::map<QString, QString> written_;
};

} // namespace kelvaro
