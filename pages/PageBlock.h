#pragma once

#include "pages/Page.h"
#include "pages/PageType.h"

#include <QString>

namespace kelvaro {

/// Texts and rules that keep together, below one another and beside one another. It is made at the origin and
/// then placed. Lengths are in points.
class PageBlock {
public:
    double Top() const { return top_; } ///< of what comes next
    void MoveTo(double top) { top_ = top; }
    void Skip(double height) { top_ += height; }
    double Height() const { return height_; } ///< of all that was added

    /// Adds a text in as many lines as it needs in a width.
    void AddLines(const QString &text, const TextStyle &style, double left, double width,
                  Qt::AlignmentFlag alignment = Qt::AlignLeft);
    void AddRule(double left, double width, double thickness);

    /// The items with the origin at a point of the page.
    Page ItemsAt(QPointF origin) const;

private:
    Page items_;
    double top_ = 0;
    double height_ = 0;
};

} // namespace kelvaro
