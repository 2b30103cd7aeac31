#pragma once

#include <QTextEdit>
#include <QTextFrameFormat>

#include <string_view>

namespace kelvaro {

/// The pages of a report as sheets of paper, one below the other.
class ReportBox : public QTextEdit {
public:
    explicit ReportBox(QWidget *parent = nullptr);

    void Show(std::string_view report);

    /// Shows the text in the largest letters with which whole lines fit into a width, and takes up no more of
    /// it than they need. Where the smallest do not fit, the lines can be scrolled.
    void FitInto(int width);

private:
    int WidthAt(int letter) const;
    QTextFrameFormat SheetFormat() const;
    QTextCharFormat LetterFormat() const;

    int letter_ = 0; ///< its size in pixels
};

} // namespace kelvaro
