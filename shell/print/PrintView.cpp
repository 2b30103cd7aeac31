#include "shell/print/PrintView.h"

#include "horoscope/Horoscope.h"
#include "report/ReportFile.h"
#include "report/TextLayout.h"
#include "shell/print/ReportPrinter.h"
#include "shell/widgets/ChartColours.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/MessageBoxes.h"
#include "shell/widgets/TextOf.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QPrintDialog>
#include <QScrollBar>
#include <QShortcut>
#include <QStandardPaths>
#include <QTextEdit>
#include <QTextFrame>
#include <QVBoxLayout>

#include <algorithm>

namespace kelvaro {

/// A kind of file that the report can be written to.
struct ReportFileKind {
    const char *filter;
    const char *ending; ///< of a name that was given without one
    std::string (*content)(std::string_view report);
};

namespace {

constexpr int margin = 16;
constexpr double linesOfContent = 32; // that the options, as large as in the other views, leave room for
constexpr double lettersOfContent = 170;
constexpr double sheetPadding = 2; // in columns of the report
constexpr double largestLetter = 24;
constexpr double smallestLetter = 9; // in pixels
constexpr double paperMargin = 15;   // mm

constexpr ReportFileKind textFile{"Text Files (*.Txt)", ".Txt", TextFileContent};
constexpr ReportFileKind htmlFile{"HTML Files (*.HTML)", ".HTML", HtmlFileContent};

/// Shows that the program is at work while it lives.
class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};

QRadioButton *NewOption(const char *name, const char *caption) {
    auto *option = new QRadioButton(QString::fromLatin1(caption));
    option->setObjectName(QString::fromLatin1(name));
    return option;
}

/// A group of options, of which the first is on.
QGroupBox *NewFrame(const char *caption, const QList<QRadioButton *> &options) {
    options.front()->setChecked(true);
    auto *frame = new QGroupBox(QString::fromLatin1(caption));
    auto *rows = new QVBoxLayout;
    frame->setLayout(rows);
    for (QRadioButton *option : options) {
        rows->addWidget(option);
    }
    return frame;
}

/// The file name as given, with the ending of its kind where it has none. What follows a dot is an ending
/// only where the system knows it: "K. Raman" and "14.07.1965" have none.
QString WithEnding(const QString &name, const ReportFileKind &kind) {
    const QString ending = QString::fromLatin1(kind.ending);
    const bool hasEnding = name.isEmpty() || name.endsWith(ending, Qt::CaseInsensitive) ||
                           !QMimeDatabase().suffixForFileName(name).isEmpty();
    return hasEnding ? name : name + ending;
}

QString FirstFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

/// The name of the print job, of which print dialogs make a file name.
QString JobName(const std::string &chartName) {
    return QString::fromStdString(chartName).replace(QDir::separator(), u'-');
}

} // namespace

/// The pages of a report as sheets of paper, one below the other.
class ReportBox : public QTextEdit {
public:
    ReportBox() {
        setObjectName(QStringLiteral("Te"));
        setAccessibleName(tr("Report"));
        setReadOnly(true);
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        setLineWrapMode(QTextEdit::NoWrap);
        setUndoRedoEnabled(false);
        setPlaceholderText(tr("The report is shown here when it is printed."));
        setFont(ReportFont());
        QPalette colours = palette();
        colours.setColor(QPalette::Base, parchmentColour.darker(112));
        colours.setColor(QPalette::Text, Qt::black);
        colours.setColor(QPalette::PlaceholderText, figureColour);
        setPalette(colours);
    }

    void Show(std::string_view report) {
        clear();
        QTextCursor cursor(document());
        cursor.beginEditBlock();
        for (const std::string_view page : PagesOf(report)) {
            cursor.movePosition(QTextCursor::End);
            cursor.insertFrame(SheetFormat());
            cursor.insertText(TextOf(page.substr(0, page.find_last_not_of(lineEnd) + 1)));
        }
        cursor.endEditBlock();
        moveCursor(QTextCursor::Start);
    }

    /// The least room that shows whole lines in letters of a size in pixels.
    int WidthAt(double letter) const {
        return qCeil(SheetWidthAt(letter) + 2 * document()->documentMargin()) + 2 * frameWidth() +
               verticalScrollBar()->sizeHint().width() + 1;
    }

    /// Shows the text in letters of this size.
    void SetLetter(int pixels) {
        if (pixels == font().pixelSize()) {
            return;
        }
        QFont larger = font();
        larger.setPixelSize(pixels);
        setFont(larger);
        const QList<QTextFrame *> sheets = document()->rootFrame()->childFrames();
        for (QTextFrame *sheet : sheets) {
            sheet->setFrameFormat(SheetFormat());
        }
    }

private:
    static double ColumnAt(double letter) {
        QFont font = ReportFont();
        font.setPixelSize(qRound(letter));
        return QFontMetricsF(font).horizontalAdvance(QString(pageWidth, u'0')) /
               static_cast<double>(pageWidth);
    }

    static double SheetWidthAt(double letter) {
        return ColumnAt(letter) * (static_cast<double>(pageWidth) + 2 * sheetPadding) + 2;
    }

    QTextFrameFormat SheetFormat() const {
        const double letter = fontInfo().pixelSize();
        QTextFrameFormat format;
        format.setBackground(Qt::white);
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(figureColour);
        format.setPadding(ColumnAt(letter) * sheetPadding);
        format.setWidth(SheetWidthAt(letter));
        return format;
    }
};

PrintView::PrintView(QWidget *parent)
    : HoroscopeView(parent), folder_(FirstFolder()), heading_(new ViewHeading(tr("Print"))),
      Op2_(NewOption("Op2", "Without Antra")), Op1_(NewOption("Op1", "With Antra")),
      Op4_(NewOption("Op4", "Generate Horoscope as a Text file")),
      Op3_(NewOption("Op3", "Generate Horoscope as a HTML file")), Op5_(NewOption("Op5", "Print Directly")),
      CoPrt_(new QPushButton(tr("&Print"))), outcome_(new QLabel), options_(new QWidget), Te_(new ReportBox) {
    setAccessibleName(tr("Print"));
    CoPrt_->setObjectName(QStringLiteral("CoPrt"));
    CoPrt_->setAutoDefault(true);
    CoPrt_->setEnabled(false);
    outcome_->setObjectName(QStringLiteral("outcome"));
    outcome_->setTextFormat(Qt::PlainText);
    outcome_->setWordWrap(true);
    outcome_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto *choices = new QVBoxLayout(options_);
    choices->setContentsMargins(0, 0, 0, 0);
    choices->setSpacing(margin);
    choices->addWidget(NewFrame("Horoscope Option", {Op2_, Op1_}));
    choices->addWidget(NewFrame("Output Option", {Op4_, Op3_, Op5_}));
    choices->addWidget(CoPrt_, 0, Qt::AlignRight);
    choices->addWidget(outcome_);
    choices->addStretch();

    auto *content = new QHBoxLayout;
    content->setSpacing(margin);
    content->addStretch();
    content->addWidget(options_);
    content->addWidget(Te_, 1);
    content->addStretch();
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(margin, margin, margin, margin);
    whole->setSpacing(margin);
    whole->addWidget(heading_);
    whole->addLayout(content, 1);
    connect(CoPrt_, &QPushButton::clicked, this, &PrintView::Print);
    // The button's own key works only with the focus inside the view; this one also from the tree.
    auto *key = new QShortcut(CoPrt_->shortcut(), this);
    key->setContext(Qt::ApplicationShortcut);
    CoPrt_->setShortcut({});
    connect(key, &QShortcut::activated, CoPrt_, &QPushButton::click);
}

void PrintView::Refresh(const Horoscope &horoscope) {
    horoscope_ = &horoscope;
    heading_->Show(horoscope.state);
    report_.clear();
    Te_->Show(report_);
    outcome_->clear();
    CoPrt_->setEnabled(true);
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
    const int room = width() - 3 * margin - options_->width();
    int letter = static_cast<int>(smallestLetter);
    while (letter < largestLetter && Te_->WidthAt(letter + 1) <= room) {
        ++letter;
    }
    Te_->SetLetter(letter);
    Te_->setMaximumWidth(Te_->WidthAt(letter));
}

AntraSection PrintView::Antra() const {
    return Op1_->isChecked() ? AntraSection::With : AntraSection::Without;
}

void PrintView::Print() {
    outcome_->clear();
    outcome_->setToolTip({});
    Guarded(this, [this] {
        Compose();
        if (Op5_->isChecked()) {
            PrintDirectly();
        } else {
            SaveAs(Op3_->isChecked() ? htmlFile : textFile);
        }
    });
}

void PrintView::Compose() {
    report_ = ComposeReport(horoscope_->state, horoscope_->forms, horoscope_->connection, Antra());
    Te_->Show(report_);
}

void PrintView::SaveAs(const ReportFileKind &kind) {
    const QString name = AskFileName(kind);
    if (name.isEmpty()) {
        return;
    }
    WriteReportFile(QFile::encodeName(name).toStdString(), kind.content(report_));
    folder_ = QFileInfo(name).path();
    TellFile(name);
}

void PrintView::TellFile(const QString &name) {
    // Lines may break behind the folders of a long path.
    QString path = name;
    path.replace(u'/', QStringLiteral("/\u200b"));
    outcome_->setText(tr("The report is in the file %1.").arg(path));
    outcome_->setToolTip(name);
}

/// The name of the file to be written; empty when the user gives none. The question about an existing file
/// is not left to the dialog, as not every desktop's own knows of the ending that is added.
QString PrintView::AskFileName(const ReportFileKind &kind) {
    QFileDialog CD(this, QString(), folder_, QString::fromLatin1(kind.filter));
    CD.setObjectName(QStringLiteral("CD"));
    CD.setAcceptMode(QFileDialog::AcceptSave);
    CD.setOption(QFileDialog::DontConfirmOverwrite);
    while (CD.exec() == QDialog::Accepted) {
        QString name = WithEnding(CD.selectedFiles().value(0), kind);
        if (!QFileInfo::exists(name) ||
            QMessageBox::question(
                this, CD.windowTitle(),
                tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(name).fileName()),
                QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes) {
            return name;
        }
    }
    return {};
}

void PrintView::PrintDirectly() {
    const std::vector<std::string_view> pages = PagesToPrint(report_, Antra());
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageMargins({paperMargin, paperMargin, paperMargin, paperMargin}, QPageLayout::Millimeter);
    printer.setDocName(JobName(horoscope_->state.birth.ChartName));
    printer.setCreator(QGuiApplication::applicationName());
    QPrintDialog dialog(&printer, this);
    dialog.setMinMax(1, static_cast<int>(pages.size()));
    dialog.setFromTo(1, static_cast<int>(pages.size()));
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const WaitCursor waiting;
    PrintOn(printer, pages);
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        TellFile(printer.outputFileName());
    } else {
        outcome_->setText(tr("The report went to the printer %1.").arg(printer.printerName()));
    }
}

} // namespace kelvaro
