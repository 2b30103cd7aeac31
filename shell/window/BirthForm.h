#pragma once

#include "horoscope/entry/DiscardedBirths.h"
#include "shell/dialogs/BirthDialog.h"

#include <QPointer>

#include <functional>

namespace kelvaro {

class MDILight;

/// The form of birth details as it comes and goes: a run or a master hides it, and it comes back with what
/// stood on it, until the user is done with it.
class BirthForm {
public:
    /// Window and settings must outlive the object.
    BirthForm(MDILight &window, SettingsStore &settings) : window_(window), settings_(settings) {}
    BirthForm(const BirthForm &) = delete;
    BirthForm &operator=(const BirthForm &) = delete;
    ~BirthForm() { delete dialog_; }

    /// Whether there is one, shown or hidden.
    bool Exists() const { return dialog_ != nullptr; }

    /// Brings the form to the front: as it was hidden, or a new one.
    BirthDialog &Show();

    void Hide();

    /// As the user closes it; nothing where there is none.
    void Close();

private:
    void Forget();
    /// `begin` says where the master starts.
    template <class Master> void ShowMaster(const std::function<void(Master &)> &begin);

    MDILight &window_;
    SettingsStore &settings_;
    DiscardedBirths discarded_; ///< what the forms of this run held
    QPointer<BirthDialog> dialog_;
};

} // namespace kelvaro
