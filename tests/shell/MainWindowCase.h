#pragma once

#include "shell/window/MDILight.h"
#include "tests/shell/DialogFixture.h"

#include <memory>

namespace kelvaro {

/// A main window with a database and settings of its own.
class MainWindowCase : public QObject {
protected:
    void MakeFolder() {
        window_.reset();
        folder_ = std::make_unique<SeedFolder>();
    }

    /// Shows a window, anew where there is one.
    void Open() {
        window_ = std::make_unique<MDILight>(SettingsFile());
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void Start() { window_->Start(Folder(), Folder() / "user"); }

    std::filesystem::path Folder() const { return folder_->path; }
    std::filesystem::path DatabaseFile() const { return folder_->file; }
    QString SettingsFile() const { return folder_->settings; }

    template <class Part = QWidget> Part *Find(const char *name) const {
        return window_->findChild<Part *>(QString::fromLatin1(name));
    }

    std::unique_ptr<SeedFolder> folder_;
    std::unique_ptr<MDILight> window_;
};

} // namespace kelvaro
