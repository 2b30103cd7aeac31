#pragma once

#include "shell/window/MDILight.h"
#include "store/database/DatabaseFile.h"

#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>

namespace kelvaro {

/// A main window with a database and settings of its own.
class MainWindowCase : public QObject {
protected:
    void MakeFolder() {
        window_.reset();
        folder_ = std::make_unique<QTemporaryDir>();
        std::filesystem::copy_file(KELVARO_SEED_DATABASE, DatabaseFile());
        std::filesystem::permissions(DatabaseFile(), std::filesystem::perms(0644));
    }

    /// Shows a window, anew where there is one.
    void Open() {
        window_ = std::make_unique<MDILight>(SettingsFile());
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void Start() { window_->Start(Folder(), Folder() / "user"); }

    std::filesystem::path Folder() const { return folder_->path().toStdString(); }
    std::filesystem::path DatabaseFile() const { return Folder() / store::databaseFileName; }
    QString SettingsFile() const { return folder_->filePath(QStringLiteral("settings.ini")); }

    template <class Part = QWidget> Part *Find(const char *name) const {
        return window_->findChild<Part *>(QString::fromLatin1(name));
    }

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<MDILight> window_;
};

} // namespace kelvaro
