#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <QWidget>

namespace kelvaro {

/// The panel `PicMask` that lies over the main window during a run: a label and a track with a creeping fill.
///
/// Every movement gives the message loop a turn, in which all but the input of the user is handled. The panel
/// paints itself as often as a screen can show it.
class StatusPanel : public QFrame {
public:
    explicit StatusPanel(QWidget *parent);

    /// Spans the panel over the top of an area of its parent, with an empty fill.
    void Open(const QRect &area);

    /// Lets the fill creep on by a fourteenth of the track, one pixel at a time.
    void Advance();

    void Close();

    /// Fits the panel to the width of the area while it is open.
    void Span(const QRect &area);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void Paint();

    QElapsedTimer sincePaint_;
    QWidget *Frame1_;
    QWidget *PicOut_;
    QWidget *PicIn_;
};

} // namespace kelvaro
