#pragma once

#include "horoscope/Horoscope.h"
#include "horoscope/StatusDisplay.h"
#include "shell/HoroscopeViews.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <array>
#include <filesystem>
#include <optional>

namespace kelvaro {

class MainHoroscope;
class StatusPanel;

/// The main window: the horoscope in force, its tree and its views.
class MDILight : public QMainWindow, private StatusDisplay {
    Q_OBJECT

public:
    MDILight();

    /// Opens the database beside the program, or its copy in the user's folder, reads the preferences and
    /// shows the chart that the program starts with. An error is shown in a message box and ends the start;
    /// the window stays.
    void Start(const std::filesystem::path &programFolder, const std::filesystem::path &userFolder);

    Horoscope &HoroscopeInForce() { return horoscope_; }

    /// Computes and shows the horoscope as its record stands. A call in the middle of a run is ignored, and
    /// a window that was closed in the middle of a run closes at its end.
    void Calculate();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct ViewWindow {
        HoroscopeView *view = nullptr;
        QMdiSubWindow *window = nullptr;
        bool isStale = true; ///< not filled since the last run
    };

    void OpenStatus() override;
    void AdvanceStatusBar() override;
    void CloseStatus() override;
    void HideHoroscopeForms() override;
    void ShowCurrentView(std::string_view currentView) override;
    void RunFailed(std::string_view step, std::string_view cause) override;

    void FNInitialize();
    void BuildMenu();
    void BuildViews();
    void ChooseView(std::size_t view);
    void RefreshView(std::size_t view);
    void ShowPreferences();
    void ShowAbout();

    store::Connection connection_;
    Horoscope horoscope_;
    QMdiArea *area_;
    MainHoroscope *tree_;
    StatusPanel *panel_ = nullptr;
    std::array<ViewWindow, horoscopeViews.size()> views_;
    bool isCloseWanted_ = false; ///< the window was closed in the middle of a run
};

} // namespace kelvaro
