#pragma once

#include "horoscope/entry/PreferencesEntry.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frm_Preferences;
} // namespace Ui

namespace kelvaro {

/// The dialog of the preferences: it gathers the choices and hands them to the rules.
class PreferencesDialog : public QDialog {
    Q_OBJECT

public:
    /// Shows the stored preferences. Raises StoreError when they cannot be read.
    explicit PreferencesDialog(Horoscope &horoscope, QWidget *parent = nullptr);
    PreferencesDialog(const PreferencesDialog &) = delete;
    PreferencesDialog &operator=(const PreferencesDialog &) = delete;
    ~PreferencesDialog() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    using Acceptance = std::optional<Notice> (*)(const PreferenceFields &, Horoscope &);

    void Show(const PreferenceFields &fields);
    PreferenceFields Fields() const;
    void Accept(Acceptance acceptance);

    Horoscope &horoscope_;
    PreferenceFields stored_;
    std::unique_ptr<Ui::frm_Preferences> controls_;
};

} // namespace kelvaro
