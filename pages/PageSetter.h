#pragma once

#include "pages/Page.h"
#include "pages/PageBlock.h"

#include <QSizeF>

#include <utility>
#include <vector>

namespace kelvaro {

/// Fills pages from top to bottom. Lengths are in points.
class PageSetter {
public:
    /// Opens the first page.
    explicit PageSetter(QSizeF paper);

    /// What the margins leave of the paper; the footer stands below.
    const QRectF &Area() const { return area_; }
    double Top() const { return top_; } ///< of what comes next
    double RoomLeft() const { return area_.bottom() - top_; }

    void OpenPage();
    void Skip(double height) { top_ += height; }

    /// Adds an item where it stands, and leaves the place of what comes next.
    template <typename Item> void Add(Item item) { pages_.back().emplace_back(std::move(item)); }
    /// Adds a block at so many points from the left of the area.
    void AddBlock(const PageBlock &block, double indent = 0);

    void AddHeading(const QString &text);
    /// Small print, below a table.
    void AddNote(const QString &text);

    /// A heading with a line below it, where that is not empty, and a table. They stay together with the
    /// first rows; rows that the page has no room for go on on the next one, below the titles.
    void AddTable(const QString &heading, const QString &line, TableContent content,
                  const TableSetting &setting = {});

    /// The pages, each with a footer that names whose they are.
    std::vector<Page> Finish(const QString &name) &&;

private:
    void AddRows(const std::shared_ptr<const TableDrawing> &table);

    QSizeF paper_;
    QRectF area_;
    std::vector<Page> pages_;
    double top_ = 0;
};

} // namespace kelvaro
