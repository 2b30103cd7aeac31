#include "shell/help/HelpWindow.h"

#include "drawing/ChartColours.h"
#include "shell/widgets/ParchmentPalette.h"
#include "shell/widgets/ScreenFit.h"

#include <QFile>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QVBoxLayout>

/// The guide lies in a static library, whose resources the linker leaves out unless they are asked for. The
/// macro wants to stand outside of all namespaces.
static void LoadGuide() {
    Q_INIT_RESOURCE(help);
}

namespace kelvaro {

namespace {

constexpr int deepestHeading = 3;
constexpr QSize firstSize(980, 700);
constexpr int headingSpace = 3;

} // namespace

HelpWindow::HelpWindow(QWidget *parent)
    : QDialog(parent), headings_(new QListWidget), text_(new QTextBrowser) {
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(tr("Help"));
    resize(firstSize);
    KeepWithinScreen(*this);
    headings_->setAccessibleName(tr("Contents"));
    QPalette colours = ParchmentPalette();
    text_->setPalette(colours);
    colours.setColor(QPalette::Base, parchmentColour);
    headings_->setPalette(colours);
    headings_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    headings_->setSpacing(headingSpace);

    LoadGuide();
    QFile guide(QStringLiteral(":/guide.md"));
    const bool isOpen = guide.open(QIODevice::ReadOnly);
    text_->setMarkdown(isOpen ? QString::fromUtf8(guide.readAll()) : guide.errorString());
    text_->setOpenExternalLinks(true);
    text_->document()->setDocumentMargin(18);
    ListHeadings();

    const int headingsWidth = headings_->sizeHintForColumn(0) + 2 * fontMetrics().height();
    auto *splitter = new QSplitter;
    splitter->addWidget(headings_);
    splitter->addWidget(text_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({headingsWidth, firstSize.width() - headingsWidth});
    splitter->setChildrenCollapsible(false);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter);
    connect(headings_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *heading) {
        if (heading != nullptr) {
            ScrollTo(heading->data(Qt::UserRole).toInt());
        }
    });
}

void HelpWindow::ListHeadings() {
    for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level < 2 || level > deepestHeading) {
            continue;
        }
        auto *heading =
            new QListWidgetItem((level == 2 ? QString() : QStringLiteral("     ")) + block.text(), headings_);
        heading->setData(Qt::UserRole, block.position());
    }
}

void HelpWindow::ShowSubject(const QString &subject) {
    QList<QListWidgetItem *> found = headings_->findItems(subject, Qt::MatchExactly);
    found += headings_->findItems(subject, Qt::MatchContains);
    found += headings_->findItems(QString(), Qt::MatchContains);
    if (!found.isEmpty()) {
        headings_->setCurrentItem(found.front());
        ScrollTo(found.front()->data(Qt::UserRole).toInt());
    }
}

void HelpWindow::ScrollTo(int position) {
    QTextCursor cursor(text_->document());
    cursor.setPosition(position);
    text_->setTextCursor(cursor);
    // The heading stands at the top, with a little air above it.
    QScrollBar *bar = text_->verticalScrollBar();
    bar->setValue(bar->value() + text_->cursorRect().top() - text_->fontMetrics().height());
}

} // namespace kelvaro
