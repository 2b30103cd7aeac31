#pragma once

#include <QTreeWidget>
#include <QWidget>

namespace kelvaro {

/// The window `frm_MainHoroscope` with the horoscope tree, one node a view.
class MainHoroscope : public QWidget {
    Q_OBJECT

public:
    explicit MainHoroscope(QWidget *parent = nullptr);

    /// Marks the node of a view without telling anyone.
    void MarkView(std::size_t view);

signals:
    /// The user moved to the node of a view, counted as in `horoscopeViews`.
    void ViewChosen(std::size_t view);

private:
    /// Takes the mark off every node, so that a newly chosen one can be marked.
    void FnTreeViewColorChangeToBlack();
    void Mark(QTreeWidgetItem *node);

    QTreeWidget *tV_;
};

} // namespace kelvaro
