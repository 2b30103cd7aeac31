#pragma once

#include "horoscope/Horoscope.h"
#include "horoscope/StatusDisplay.h"
#include "shell/HoroscopeViews.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <array>
#include <optional>

namespace kelvaro {

class MainHoroscope;
class StatusPanel;

/// The main window: the horoscope in force, its tree and its views.
class MDILight : public QMainWindow, private StatusDisplay {
    Q_OBJECT

public:
    MDILight();

    /// Shows the chart that the program starts with.
    void FNInitialize();

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
    };

    void OpenStatus() override;
    void AdvanceStatusBar() override;
    void CloseStatus() override;
    void HideHoroscopeForms() override;
    void ShowCurrentView(std::string_view currentView) override;
    void RunFailed(std::string_view step, std::string_view cause) override;

    void BuildMenu();
    void BuildViews();
    void ChooseView(std::size_t view);
    void ShowAbout();

    Horoscope horoscope_;
    QMdiArea *area_;
    MainHoroscope *tree_;
    StatusPanel *panel_ = nullptr;
    std::array<ViewWindow, horoscopeViews.size()> views_;
    bool isCloseWanted_ = false; ///< the window was closed in the middle of a run
};

} // namespace kelvaro
