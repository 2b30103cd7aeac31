#pragma once

#include "horoscope/Horoscope.h"
#include "horoscope/StatusDisplay.h"
#include "shell/window/MainMenu.h"
#include "shell/window/UserSettings.h"

#include <QLabel>
#include <QMainWindow>
#include <QSettings>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

namespace kelvaro {

class MainHoroscope;
class StatusPanel;
class ViewArea;

/// The main window: the horoscope in force, its tree and its views, the menus and what they open.
class MDILight : public QMainWindow, private StatusDisplay {
    Q_OBJECT

public:
    /// Works with the settings of the user, or with those in a file.
    explicit MDILight(const QString &settingsFile = {});
    MDILight(const MDILight &) = delete;
    MDILight &operator=(const MDILight &) = delete;
    /// Unloads the windows in a fixed order, then the database.
    ~MDILight() override;

    /// Opens the database beside the program, or its copy in the user's folder, reads the preferences and the
    /// letterhead, and shows the chart that the program starts with. An error is shown in a message box and
    /// ends the start; the window stays, with the menus that need a database disabled.
    void Start(const std::filesystem::path &programFolder, const std::filesystem::path &userFolder);

    Horoscope &HoroscopeInForce() { return horoscope_; }

    /// Computes and shows the horoscope as its record stands. A call in the middle of a run is ignored, and
    /// a window that was closed in the middle of a run closes at its end.
    void Calculate();

    /// Shows a view, counted as in `horoscopeViews`; in the middle of a run it is shown at its end.
    void ChooseView(std::size_t view);
    std::size_t ViewInForce() const;

    /// Does some work, but not in the middle of a run, and shows the error that breaks it off, or that there
    /// is no database.
    void Guard(const std::function<void()> &work);

    // The owner's letterhead, as it stood at the start.
    QString Str_CompName, Str_CompAddress, Str_CompAddress2, Str_CompCity, Str_CompCountry, Str_CompZipcode,
        Str_CompPhone, Str_CompEMail;

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void OpenStatus() override;
    void AdvanceStatusBar() override;
    void CloseStatus() override;
    void HideHoroscopeForms() override;
    void HideOpenChart() override;
    void ShowCurrentView(std::string_view currentView) override;
    void RunFailed(std::string_view step, std::string_view cause) override;
    void RunRemarked(std::string_view remark) override;

    void ReadLetterhead();
    void MakeRoomForMessage();
    void ShowFirstHoroscope();
    void FNInitialize();
    void FnEnable() { menu_.Enable(true); }
    void FnDisable() { menu_.Enable(false); }
    void RestoreWindowPlace();

    UserSettings lastChart_; ///< before the others look at the file: only the first look tells a damaged one
    QSettings settings_;
    store::Connection connection_;
    Horoscope horoscope_;
    ViewArea *views_;
    MainHoroscope *tree_;
    StatusPanel *panel_ = nullptr;
    QLabel *owner_; ///< whose program this is, in the status bar
    MainMenu menu_;
    std::string startFault_;     ///< what broke off the start; empty after one that came to its end
    bool isCloseWanted_ = false; ///< the window was closed in the middle of a run
};

} // namespace kelvaro
