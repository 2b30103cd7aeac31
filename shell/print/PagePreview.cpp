#include "shell/print/PagePreview.h"

#include "drawing/ChartColours.h"
#include "shell/widgets/HouseIcon.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace kelvaro {

namespace {

constexpr int distance = 6;
constexpr const char *wordsProperty = "words"; // of a button, kept for when there is room for them

QLabel *NewState(const char *name) {
    auto *label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

bool IsSizeOnPaper(const QKeyEvent &event) {
    return event.modifiers().testFlag(Qt::ControlModifier) && event.key() == Qt::Key_0;
}

} // namespace

PagePreview::PagePreview(QWidget *parent)
    : QWidget(parent), area_(new PagesArea), bar_(new QWidget), zoom_(NewState("zoomLabel")),
      place_(NewState("pageLabel")) {
    setObjectName(QStringLiteral("preview"));
    fitWidth_ = NewButton("fitWidth", "fit-width", tr("Fit &Width"), {});
    wholePage_ = NewButton("wholePage", "whole-page", tr("W&hole Page"), {});
    zoomOut_ = NewButton("zoomOut", "zoom-out", tr("Zoom Out"), tr("Ctrl+-"));
    zoomIn_ = NewButton("zoomIn", "zoom-in", tr("Zoom In"), tr("Ctrl++"));
    pageUp_ = NewButton("pageUp", "page-up", tr("Previous Page"), tr("Ctrl+Page Up"));
    pageDown_ = NewButton("pageDown", "page-down", tr("Next Page"), tr("Ctrl+Page Down"));
    print_ = NewButton("printPages", "print", tr("P&rint..."), {});
    ShowWords({zoomOut_, zoomIn_, pageUp_, pageDown_}, false);
    fitWidth_->setCheckable(true);
    wholePage_->setCheckable(true);

    auto *row = new QHBoxLayout(bar_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(distance);
    for (QWidget *part : std::initializer_list<QWidget *>{fitWidth_, wholePage_, zoomOut_, zoom_, zoomIn_,
                                                          pageUp_, place_, pageDown_}) {
        row->addWidget(part);
    }
    row->addStretch();
    row->addWidget(print_);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(distance);
    whole->addWidget(bar_);
    whole->addWidget(area_, 1);

    connect(fitWidth_, &QPushButton::clicked, area_, [this] { area_->SetFit(PagesArea::Fit::Width); });
    connect(wholePage_, &QPushButton::clicked, area_, [this] { area_->SetFit(PagesArea::Fit::WholePage); });
    connect(zoomOut_, &QPushButton::clicked, area_, &PagesArea::ZoomOut);
    connect(zoomIn_, &QPushButton::clicked, area_, &PagesArea::ZoomIn);
    connect(pageUp_, &QPushButton::clicked, area_, [this] { area_->GoTo(area_->CurrentPage() - 1); });
    connect(pageDown_, &QPushButton::clicked, area_, [this] { area_->GoTo(area_->CurrentPage() + 1); });
    connect(print_, &QPushButton::clicked, this, &PagePreview::PrintWanted);
    connect(area_, &PagesArea::Changed, this, &PagePreview::ShowState);
    AddKeys();
    ShowState();
}

/// Who has just chosen an option turns the pages without going to them first.
void PagePreview::AddKeys() {
    const auto add = [this](Qt::Key key, auto work) {
        connect(new QShortcut(Qt::CTRL | key, this), &QShortcut::activated, area_, work);
    };
    add(Qt::Key_Plus, &PagesArea::ZoomIn);
    add(Qt::Key_Equal, &PagesArea::ZoomIn); // the same key without Shift
    add(Qt::Key_Minus, &PagesArea::ZoomOut);
    add(Qt::Key_PageUp, [this] { area_->GoTo(area_->CurrentPage() - 1); });
    add(Qt::Key_PageDown, [this] { area_->GoTo(area_->CurrentPage() + 1); });
}

QPushButton *PagePreview::NewButton(const char *name, const char *icon, const QString &text,
                                    const QString &keys) {
    auto *button = new QPushButton(HouseIcon(icon, nameColour), text, bar_);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(true);
    button->setProperty(wordsProperty, text);
    const QString words = QString(text).remove(u'&');
    button->setAccessibleName(words);
    const QString keysShown =
        keys.isEmpty() ? QKeySequence::mnemonic(text).toString(QKeySequence::NativeText) : keys;
    button->setToolTip(QStringLiteral("%1 (%2)").arg(words, keysShown));
    return button;
}

void PagePreview::Show(std::shared_ptr<const HoroscopePages> pages) {
    area_->Show(std::move(pages));
}

void PagePreview::ShowState() {
    const int count = area_->PageCount();
    const int page = area_->CurrentPage();
    zoom_->setText(QStringLiteral("%1 %").arg(qRound(area_->Zoom() * 100)));
    place_->setText(count > 0 ? tr("Page %1 of %2").arg(page + 1).arg(count) : tr("No pages"));
    area_->setAccessibleDescription(place_->text());
    fitWidth_->setChecked(area_->Fitting() == PagesArea::Fit::Width);
    wholePage_->setChecked(area_->Fitting() == PagesArea::Fit::WholePage);
    // Not button by button at the ends: one that is switched off passes the focus on, and the next Enter
    // would press another one.
    bar_->setEnabled(count > 0);
}

/// In a narrow window the icons stand for the words.
void PagePreview::FitBar() {
    const QString widestPlace = tr("Page %1 of %2").arg(88).arg(88);
    place_->setMinimumWidth(QFontMetrics(font()).horizontalAdvance(widestPlace));
    zoom_->setMinimumWidth(QFontMetrics(font()).horizontalAdvance(QStringLiteral("888 %")));
    const std::vector<QPushButton *> sizes{fitWidth_, wholePage_};
    const auto widthOfBar = [this] {
        bar_->layout()->invalidate();
        return bar_->layout()->sizeHint().width();
    };
    ShowWords(sizes, false);
    ShowWords({print_}, false);
    bar_->setMinimumWidth(widthOfBar());
    ShowWords({print_}, true);
    if (widthOfBar() > width()) {
        ShowWords({print_}, false);
        return;
    }
    ShowWords(sizes, true);
    if (widthOfBar() > width()) {
        ShowWords(sizes, false);
    }
}

void PagePreview::ShowWords(const std::vector<QPushButton *> &buttons, bool areShown) {
    for (QPushButton *button : buttons) {
        const QString words = button->property(wordsProperty).toString();
        button->setText(areShown ? words : QString());
        button->setShortcut(QKeySequence::mnemonic(words)); // which goes with the words otherwise
    }
}

/// The tenth view has the key of the usual size for its own, which is this one.
bool PagePreview::event(QEvent *event) {
    if (event->type() == QEvent::ShortcutOverride && IsSizeOnPaper(static_cast<QKeyEvent &>(*event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void PagePreview::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        FitBar();
    }
}

void PagePreview::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    FitBar();
}

void PagePreview::keyPressEvent(QKeyEvent *event) {
    if (IsSizeOnPaper(*event)) {
        area_->SetZoom(1);
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace kelvaro
