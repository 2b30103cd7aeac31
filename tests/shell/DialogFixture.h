#pragma once

#include "drawing/TextOf.h"
#include "store/database/DatabaseFile.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

namespace kelvaro {

/// A folder of one test with a copy of the seed database that can be written to, and room for settings.
struct SeedFolder {
    SeedFolder() {
        std::filesystem::copy_file(KELVARO_SEED_DATABASE, file);
        std::filesystem::permissions(file, std::filesystem::perms(0644));
    }

    QTemporaryDir folder;
    std::filesystem::path path = folder.path().toStdString();
    std::filesystem::path file = path / store::databaseFileName;
    QString settings = folder.filePath(QStringLiteral("settings.ini"));
};

/// The text of a combo box or a line.
inline QString TextIn(const QWidget &window, const char *name) {
    const auto *box = window.findChild<QComboBox *>(name);
    return box != nullptr ? box->currentText() : window.findChild<QLineEdit *>(name)->text();
}

inline QString FocusIn(const QWidget &window) {
    return window.focusWidget()->objectName();
}

/// Types over what stands in a line or a combo box.
inline void Type(const QWidget &window, const char *name, const char *keys) {
    auto *field = window.findChild<QWidget *>(name);
    auto *box = qobject_cast<QComboBox *>(field);
    field->setFocus();
    (box != nullptr ? box->lineEdit() : qobject_cast<QLineEdit *>(field))->selectAll();
    QTest::keyClicks(field, keys);
}

/// Types into the field with the focus and goes on with Enter.
inline void Enter(const QWidget &window, const char *keys) {
    QTest::keyClicks(window.focusWidget(), QString::fromUtf8(keys));
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
}

inline void Press(const QWidget &window, const char *button) {
    QTest::mouseClick(window.findChild<QPushButton *>(button), Qt::LeftButton);
}

} // namespace kelvaro
