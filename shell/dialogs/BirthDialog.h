#pragma once

#include "horoscope/entry/BirthClock.h"
#include "horoscope/entry/DiscardedBirths.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class frm_OpenChart;
} // namespace Ui

namespace kelvaro {

class BirthPlaces;
class ChartListDialog;
class SettingsStore;

/// The form of birth details: it gathers what is typed and hands it to the rules. Nothing starts while a
/// horoscope is being computed.
class BirthDialog : public QDialog {
    Q_OBJECT

public:
    /// Fills the lists and shows the present date and time. What is typed and leaves the form unsaved is kept
    /// among the discarded births, which the form offers to bring back. All three must outlive the dialog.
    /// Raises StoreError when the countries cannot be read.
    BirthDialog(Horoscope &horoscope, SettingsStore &settings, DiscardedBirths &discarded,
                QWidget *parent = nullptr);
    BirthDialog(const BirthDialog &) = delete;
    BirthDialog &operator=(const BirthDialog &) = delete;
    ~BirthDialog() override;

    void New();
    void OpenList();
    void Save();
    /// Puts a saved chart onto the form.
    void OpenChart(const store::ListItem &chart);

    /// Shows the form again with what stood on it, and with the lists of places as a master has left them.
    void ReturnFromMaster();

    void reject() override;

signals:
    /// The form has hidden itself to make room for the master of cities. The country is that of the form, 0
    /// for none.
    void CityMasterWanted(std::int32_t countryId);
    /// The form has hidden itself to make room for the master of time zones.
    void TimeZoneMasterWanted(std::int32_t countryId);
    /// The same, to add a zone that the records tell.
    void NewZoneWanted(const kelvaro::store::ZoneFields &zone);
    /// The user is done with the form.
    void Closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct Command;

    void BuildMenu();
    void BuildToolbar();
    void ConnectFields();

    void Guard(const std::function<void()> &work);
    void Tell(const Notice &notice);
    void ShowAll();
    void ShowAllRemarks();
    void TakeClock();
    void Settle();
    bool IsTyped() const { return !HaveSameTexts(fields_, settled_); }
    void KeepTyping();
    void BringBack();
    void Show(const PlaceChoices &choices);
    void TakePlaces();

    void Confirm();
    void OpenListAnew();
    void PassOverSecondClick();
    void SetDeafToMouse(bool isDeaf);
    void DeleteFromMenu();
    void DeleteFromToolbar();
    void Delete();
    void AskMaster(QWidget *returnTo, void (BirthDialog::*wanted)(std::int32_t));

    Horoscope &horoscope_;
    SettingsStore &settings_;
    DiscardedBirths &discarded_;
    BirthFields fields_;
    BirthFields settled_; ///< the form when nothing of it could be lost: at load, after New, Open and Save
    std::unique_ptr<Ui::frm_OpenChart> controls_;
    std::unique_ptr<BirthPlaces> places_;
    BirthClock clock_;
    std::optional<ClockAdvice> clockAdvice_;     ///< as it stands on the form
    std::unique_ptr<ChartListDialog> chartList_; ///< left over from an earlier opening, hidden
    QTimer secondClick_; ///< runs while a click may still be the second one of a double click in the list
    QWidget *firstField_ = nullptr; ///< takes the focus when the form is shown
};

} // namespace kelvaro
