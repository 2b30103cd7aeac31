#pragma once

#include "horoscope/entry/LastChart.h"

#include <QSettings>

#include <map>
#include <memory>

namespace kelvaro {

/// The settings of the person at the machine, where the platform keeps those of a program.
class UserSettings : public SettingsStore {
public:
    /// Keeps the settings in a file of its own, or in the platform's place where none is named. Looks whether
    /// they can be read: only the first look at a file in a run of the program tells.
    explicit UserSettings(QString file = {});

    void RequireReadable() override;
    std::optional<std::string> Read(std::string_view key) override;
    void Write(std::string_view key, const std::string &value) override;
    void Flush() override;

private:
    std::unique_ptr<QSettings> Open() const;
    bool LooksReadable() const;

    QString file_; ///< empty for the platform's own place
    bool isReadable_;
    std::map<QString, QString> written_;
};

} // namespace kelvaro
