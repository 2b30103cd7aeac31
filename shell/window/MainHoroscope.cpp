#include "shell/window/MainHoroscope.h"

#include "drawing/ChartColours.h"
#include "shell/widgets/ParchmentPalette.h"
#include "shell/window/HoroscopeViews.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace kelvaro {

namespace {

constexpr int nodeIndent = 10;

} // namespace

MainHoroscope::MainHoroscope(QWidget *parent) : QWidget(parent), tV_(new QTreeWidget(this)) {
    setObjectName(QStringLiteral("frm_MainHoroscope"));
    setWindowTitle(tr("Horoscope"));
    tV_->setObjectName(QStringLiteral("tV"));
    tV_->setAccessibleName(windowTitle());
    tV_->setHeaderLabel(windowTitle());
    tV_->setIndentation(nodeIndent);
    tV_->setFrameShape(QFrame::NoFrame);
    tV_->setFocus();
    setFocusProxy(tV_);
    QPalette colours = ParchmentPalette();
    colours.setColor(QPalette::Base, parchmentColour);
    colours.setColor(QPalette::Text, Qt::black);
    colours.setColor(QPalette::Button, parchmentColour.darker(106));
    colours.setColor(QPalette::ButtonText, lineColour);
    tV_->setPalette(colours);
    tV_->header()->setPalette(colours);
    const int rowHeight = 2 * tV_->fontMetrics().height();
    tV_->header()->setMinimumHeight(rowHeight);
    tV_->header()->setDefaultAlignment(Qt::AlignCenter);
    for (const HoroscopeViewRow &row : horoscopeViews) {
        auto *node = new QTreeWidgetItem(tV_, {QString::fromLatin1(row.text)});
        node->setSizeHint(0, QSize(0, rowHeight));
        node->setData(0, Qt::UserRole, QString::fromLatin1(row.key));
    }

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tV_);
    MarkView(0);
    connect(tV_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *node) {
        if (node != nullptr) {
            Mark(node);
            emit ViewChosen(static_cast<std::size_t>(tV_->indexOfTopLevelItem(node)));
        }
    });
}

void MainHoroscope::MarkView(std::size_t view) {
    const QSignalBlocker silence(tV_);
    QTreeWidgetItem *node = tV_->topLevelItem(static_cast<int>(view));
    tV_->setCurrentItem(node);
    Mark(node);
}

void MainHoroscope::Mark(QTreeWidgetItem *node) {
    FnTreeViewColorChangeToBlack();
    QFont bold = tV_->font();
    bold.setBold(true);
    node->setFont(0, bold);
}

void MainHoroscope::FnTreeViewColorChangeToBlack() {
    for (int index = 0; index < tV_->topLevelItemCount(); ++index) {
        tV_->topLevelItem(index)->setForeground(0, Qt::black);
        tV_->topLevelItem(index)->setFont(0, tV_->font());
    }
}

} // namespace kelvaro
