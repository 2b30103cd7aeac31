#pragma once

#include "pages/HoroscopePages.h"

#include <QAbstractScrollArea>

#include <memory>

namespace kelvaro {

/// Drawn pages as sheets of paper, one below the other, at any size. Only what is seen is painted, at the
/// resolution of the screen.
///
/// Ctrl with the wheel zooms at the mouse. Page Up, Page Down and the arrows scroll. Home and End go to the
/// first page and to the last.
class PagesArea : public QAbstractScrollArea {
    Q_OBJECT

public:
    static constexpr double leastZoom = 0.25;
    static constexpr double mostZoom = 4;

    enum class Fit { Width, WholePage, None };

    explicit PagesArea(QWidget *parent = nullptr);

    /// Shows other pages, at the same place as far as there are so many.
    void Show(std::shared_ptr<const HoroscopePages> pages);

    int PageCount() const { return pages_ ? pages_->Count() : 0; }
    int CurrentPage() const { return current_; } ///< counted from 0
    void GoTo(int page);

    Fit Fitting() const { return fit_; }
    void SetFit(Fit fit);

    /// Times the size on paper.
    double Zoom() const { return zoom_; }
    void SetZoom(double zoom);
    void ZoomIn() { ZoomByStep(1, viewport()->rect().center()); }
    void ZoomOut() { ZoomByStep(-1, viewport()->rect().center()); }

    /// Where a page stands in the viewport, in its pixels.
    QRectF PlaceOf(int page) const;

signals:
    /// The page or the zoom is another one.
    void Changed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QSizeF SizeAt(double zoom) const; ///< of a page, in pixels
    double ZoomToFit() const;
    void ZoomByStep(int direction, QPoint fixed);
    void ZoomAt(double zoom, QPoint fixed);
    void FitAgain();
    void SetScrollBars();
    void FindCurrent();
    QSize Content() const; ///< in pixels

    std::shared_ptr<const HoroscopePages> pages_;
    Fit fit_ = Fit::Width;
    double zoom_ = 1;
    int current_ = 0;
    int wheelAngle_ = 0;   ///< turned, but less than a step
    bool isGoing_ = false; ///< to a page that was asked for
    bool cameByKeyboard_ = false;
};

} // namespace kelvaro
