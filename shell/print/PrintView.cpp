#include "shell/print/PrintView.h"

#include "drawing/ChartColours.h"
#include "drawing/FileName.h"
#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "drawing/WholeFile.h"
#include "horoscope/Horoscope.h"
#include "pages/PaperOfLocale.h"
#include "report/ReportFile.h"
#include "shell/print/PagePreview.h"
#include "shell/print/PagesPrinter.h"
#include "shell/print/PdfExport.h"
#include "shell/print/ReportBox.h"
#include "shell/print/ReportPrinter.h"
#include "shell/widgets/FileChoice.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/MessageBoxes.h"
#include "shell/widgets/SpokenNames.h"

#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

#include <string_view>

namespace kelvaro {

/// A kind of file that the report is written to.
struct ReportFileKind {
    FileKind file;
    std::string (*content)(std::string_view report);
};

namespace {

constexpr ReportFileKind textFile{{"Text Files (*.Txt)", ".Txt"}, TextFileContent};
constexpr ReportFileKind htmlFile{{"HTML Files (*.HTML)", ".HTML"}, HtmlFileContent};
constexpr FileKind pdfFile{"PDF Files (*.pdf)", ".pdf"};

constexpr int margin = 16;
constexpr double linesOfContent = 32; // that the options, as large as in the other views, leave room for
constexpr double lettersOfContent = 170;

QRadioButton *NewOption(const char *name, const char *caption) {
    auto *option = new QRadioButton(QString::fromLatin1(caption));
    option->setObjectName(QString::fromLatin1(name));
    return option;
}

/// A group of options, of which the first is on, and below them what more there is to choose.
QGroupBox *NewFrame(const char *caption, const QList<QRadioButton *> &options,
                    const QList<QWidget *> &others = {}) {
    options.front()->setChecked(true);
    auto *frame = new QGroupBox(QString::fromLatin1(caption));
    auto *rows = new QVBoxLayout;
    frame->setLayout(rows);
    for (QRadioButton *option : options) {
        rows->addWidget(option);
    }
    for (QWidget *other : others) {
        rows->addWidget(other);
    }
    return frame;
}

/// A widget behind the label that names it.
QWidget *Labelled(const QString &text, QWidget *widget) {
    auto *line = new QWidget;
    auto *row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    auto *label = new QLabel(text);
    label->setBuddy(widget);
    row->addWidget(label);
    row->addWidget(widget, 1);
    return line;
}

/// A choice of paper, at that of the person's country.
QComboBox *NewPaper() {
    auto *paper = new QComboBox;
    paper->setObjectName(QStringLiteral("paper"));
    paper->setAccessibleName(QObject::tr("Paper"));
    paper->addItem(QObject::tr("A4"), QPageSize::A4);
    paper->addItem(QObject::tr("Letter"), QPageSize::Letter);
    paper->setCurrentIndex(paper->findData(UsualPaper()));
    return paper;
}

} // namespace

PrintView::PrintView(QWidget *parent)
    : HoroscopeView(parent), heading_(new ViewHeading(tr("Print"))), Op2_(NewOption("Op2", "Without Antra")),
      Op1_(NewOption("Op1", "With Antra")), vargaCharts_(new QCheckBox(tr("With Charts of Vargas"))),
      paper_(NewPaper()), Op4_(NewOption("Op4", "Generate Horoscope as a Text file")),
      Op3_(NewOption("Op3", "Generate Horoscope as a HTML file")), Op5_(NewOption("Op5", "Print Directly")),
      Op6_(NewOption("Op6", "Generate Horoscope as a PDF file")), CoPrt_(new QPushButton(tr("&Print"))),
      outcome_(new QLabel), options_(new QWidget), Te_(new ReportBox), preview_(new PagePreview) {
    setAccessibleName(tr("Print"));
    vargaCharts_->setObjectName(QStringLiteral("vargaCharts"));
    CoPrt_->setObjectName(QStringLiteral("CoPrt"));
    CoPrt_->setIcon(HouseIcon("print", nameColour));
    CoPrt_->setAutoDefault(true);
    CoPrt_->setEnabled(false);
    outcome_->setObjectName(QStringLiteral("outcome"));
    outcome_->setTextFormat(Qt::PlainText);
    outcome_->setWordWrap(true);
    outcome_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    composing_.setSingleShot(true);
    PlaceParts();
    NameFields(*this);
    ChooseOutput();

    connect(CoPrt_, &QPushButton::clicked, this, &PrintView::Print);
    connect(Op6_, &QRadioButton::toggled, this, &PrintView::ChooseOutput);
    connect(Op1_, &QRadioButton::toggled, this, &PrintView::PagesAreStale);
    connect(vargaCharts_, &QCheckBox::toggled, this, &PrintView::PagesAreStale);
    connect(paper_, &QComboBox::currentIndexChanged, this, &PrintView::PagesAreStale);
    connect(&composing_, &QTimer::timeout, this, [this] {
        if (isVisible()) { // a run of the driver hides it and fills the horoscope anew
            Guarded(this, [this] { ComposeAllPages(); });
        }
    });
    connect(preview_, &PagePreview::PrintWanted, this, [this] { Guarded(this, [this] { PrintPages(); }); });
    // The button's own key works only with the focus inside the view; this one also from the tree.
    auto *key = new QShortcut(CoPrt_->shortcut(), this);
    key->setContext(Qt::ApplicationShortcut);
    CoPrt_->setShortcut({});
    connect(key, &QShortcut::activated, CoPrt_, &QPushButton::click);
}

void PrintView::PlaceParts() {
    auto *choices = new QVBoxLayout(options_);
    choices->setContentsMargins(0, 0, 0, 0);
    choices->setSpacing(margin);
    choices->addWidget(
        NewFrame("Horoscope Option", {Op2_, Op1_}, {vargaCharts_, Labelled(tr("P&aper"), paper_)}));
    choices->addWidget(NewFrame("Output Option", {Op4_, Op3_, Op5_, Op6_}));
    choices->addWidget(CoPrt_, 0, Qt::AlignRight);
    choices->addWidget(outcome_);
    choices->addStretch();

    auto *content = new QHBoxLayout;
    content->setSpacing(margin);
    content->addStretch();
    content->addWidget(options_);
    content->addWidget(Te_, 1);
    content->addWidget(preview_, 1);
    content->addStretch();
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(margin);
    whole->addWidget(heading_);
    whole->addLayout(content, 1);
}

void PrintView::Refresh(const Horoscope &horoscope) {
    horoscope_ = &horoscope;
    heading_->Show(horoscope.state);
    report_.clear();
    Te_->Show(report_);
    TellNothing();
    CoPrt_->setEnabled(true);
    PagesAreStale();
}

void PrintView::keyPressEvent(QKeyEvent *event) {
    if (IsEnter(*event)) {
        focusNextChild();
        return;
    }
    HoroscopeView::keyPressEvent(event);
}

void PrintView::resizeEvent(QResizeEvent *event) {
    HoroscopeView::resizeEvent(event);
    LayOut();
}

/// A large window shows larger letters; the sheets take up the room that the options leave.
void PrintView::LayOut() {
    const QFont roomy = RoomyFont(linesOfContent, lettersOfContent);
    heading_->setFont(roomy);
    options_->setFont(roomy);
    options_->setFixedWidth(options_->sizeHint().width());
    preview_->setFont(roomy);
    Te_->FitInto(width() - 3 * margin - options_->width());
}

void PrintView::showEvent(QShowEvent *event) {
    HoroscopeView::showEvent(event);
    if (pages_ == nullptr) {
        PagesAreStale();
    }
}

AntraSection PrintView::Antra() const {
    return Op1_->isChecked() ? AntraSection::With : AntraSection::Without;
}

QString PrintView::ChartName() const {
    return TextOf(horoscope_->state.birth.ChartName);
}

void PrintView::Print() {
    TellNothing();
    Guarded(this, [this] {
        if (IsPdf()) {
            SavePdf();
            return;
        }
        Compose();
        if (Op5_->isChecked()) {
            Tell(PrintThroughDialog(this, JobOf(PagesToPrint(report_, Antra())), ChartName(),
                                    PaperUse::InsideMargins));
        } else {
            SaveAs(Op3_->isChecked() ? htmlFile : textFile);
        }
    });
}

QPageSize::PageSizeId PrintView::Paper() const {
    return static_cast<QPageSize::PageSizeId>(paper_->currentData().toInt());
}

void PrintView::Compose() {
    report_ = ComposeReport(horoscope_->state, horoscope_->forms, horoscope_->connection, Antra());
    Te_->Show(report_);
}

void PrintView::SaveAs(const ReportFileKind &kind) {
    const QString name = AskFile(this, {kind.file}, FileNameOf(ChartName()));
    if (!name.isEmpty()) {
        WriteWholeFile(name, QByteArray::fromStdString(kind.content(report_)));
        TellFile(name);
    }
}

void PrintView::TellNothing() {
    outcome_->clear();
    outcome_->setToolTip({});
}

void PrintView::TellFile(const QString &name) {
    NoteFolderOf(name, this);
    // Lines may break behind the folders of a long path.
    const QString path = QDir::toNativeSeparators(name);
    QString breakable = path;
    breakable.replace(QDir::separator(), QDir::separator() + QStringLiteral("\u200b"));
    outcome_->setText(tr("The report is in the file %1.").arg(breakable));
    outcome_->setToolTip(ToolTipText(path));
}

void PrintView::Tell(const std::optional<PrintOutcome> &outcome) {
    if (!outcome) {
        return;
    }
    if (outcome->file.isEmpty()) {
        outcome_->setText(tr("The report went to the printer %1.").arg(outcome->printer));
    } else {
        TellFile(outcome->file);
    }
}

/// The pages have a preview and options of their own.
void PrintView::ChooseOutput() {
    vargaCharts_->setEnabled(IsPdf());
    paper_->setEnabled(IsPdf());
    Te_->setVisible(!IsPdf());
    preview_->setVisible(IsPdf());
    PagesAreStale();
}

/// The pages are composed when all that changes them has changed, and only to be seen.
void PrintView::PagesAreStale() {
    pages_.reset();
    preview_->Show(nullptr);
    if (IsPdf() && isVisible() && horoscope_ != nullptr) {
        composing_.start(0);
    }
}

void PrintView::ComposeAllPages() {
    composing_.stop();
    const PageOptions options{Antra(), vargaCharts_->isChecked(), Paper()};
    pages_ = std::make_shared<const HoroscopePages>(
        ComposePages(horoscope_->state, horoscope_->forms, horoscope_->connection, options));
    preview_->Show(pages_);
}

void PrintView::SavePdf() {
    ComposeAllPages();
    const auto pages = pages_;
    const QString name = AskFile(this, {pdfFile}, FileNameOf(ChartName()));
    if (name.isEmpty()) {
        return;
    }
    if (WritePdfFile(this, *pages, name)) {
        TellFile(name);
    } else {
        outcome_->setText(tr("The writing was cancelled. No file was changed."));
    }
}

void PrintView::PrintPages() {
    TellNothing();
    ComposeAllPages();
    Tell(PrintThroughDialog(this, JobOf(pages_), ChartName(), PaperUse::WholePaper, QPageSize(Paper())));
}

} // namespace kelvaro
