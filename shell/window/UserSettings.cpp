#include "shell/window/UserSettings.h"

#include "drawing/TextOf.h"
#include "runtime/RuntimeError.h"

#include <utility>

namespace kelvaro {

namespace {

QString PathOf(std::string_view key) {
    return QStringLiteral("Horo/") + TextOf(key);
}

} // namespace

UserSettings::UserSettings(QString file) : file_(std::move(file)), isReadable_(LooksReadable()) {}

bool UserSettings::LooksReadable() const {
    const auto settings = Open();
    // A section is parsed when the first of its keys is read; where the chart has none, all that there is.
    if (!settings->value(PathOf("Name")).isValid()) {
        settings->allKeys();
    }
    return settings->status() == QSettings::NoError;
}

void UserSettings::RequireReadable() {
    if (!isReadable_) {
        throw RuntimeError("The settings in " + Open()->fileName().toStdString() +
                           " are damaged or must not be read.");
    }
}

/// The settings are opened for each use: once it has failed to write, the object reports that for ever.
std::unique_ptr<QSettings> UserSettings::Open() const {
    return file_.isEmpty() ? std::make_unique<QSettings>()
                           : std::make_unique<QSettings>(file_, QSettings::IniFormat);
}

std::optional<std::string> UserSettings::Read(std::string_view key) {
    const QVariant value = Open()->value(PathOf(key));
    return value.isValid() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

void UserSettings::Write(std::string_view key, const std::string &value) {
    written_.insert_or_assign(PathOf(key), QString::fromStdString(value));
}

void UserSettings::Flush() {
    const auto settings = Open();
    std::map<QString, QVariant> before;
    for (const auto &[path, value] : std::exchange(written_, {})) {
        before.emplace(path, settings->value(path));
        settings->setValue(path, value);
    }
    settings->sync();
    if (settings->status() != QSettings::AccessError) {
        return;
    }
    // What could not be written would be read again all the same, and written at some later time.
    for (const auto &[path, value] : before) {
        if (value.isValid()) {
            settings->setValue(path, value);
        } else {
            settings->remove(path);
        }
    }
    throw RuntimeError("The settings cannot be written: " + settings->fileName().toStdString());
}

} // namespace kelvaro
