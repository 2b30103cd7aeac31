#include "shell/print/PrintView.h"

#include "drawing/ChartColours.h"
#include "drawing/FileName.h"
#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "horoscope/Horoscope.h"
#include "report/ReportFile.h"
#include "shell/print/DirectPrint.h"
#include "shell/print/ReportBox.h"
#include "shell/widgets/FileChoice.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/MessageBoxes.h"

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

constexpr int margin = 16;
constexpr double linesOfContent = 32; // that the options, as large as in the other views, leave room for
constexpr double lettersOfContent = 170;

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

} // namespace

PrintView::PrintView(QWidget *parent)
    : HoroscopeView(parent), heading_(new ViewHeading(tr("Print"))), Op2_(NewOption("Op2", "Without Antra")),
      Op1_(NewOption("Op1", "With Antra")), Op4_(NewOption("Op4", "Generate Horoscope as a Text file")),
      Op3_(NewOption("Op3", "Generate Horoscope as a HTML file")), Op5_(NewOption("Op5", "Print Directly")),
      CoPrt_(new QPushButton(tr("&Print"))), outcome_(new QLabel), options_(new QWidget), Te_(new ReportBox) {
    setAccessibleName(tr("Print"));
    CoPrt_->setObjectName(QStringLiteral("CoPrt"));
    CoPrt_->setIcon(HouseIcon("print", nameColour));
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
    Te_->FitInto(width() - 3 * margin - options_->width());
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
            PrintOut();
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
    const QString name = AskFile(this, {kind.file}, FileNameOf(TextOf(horoscope_->state.birth.ChartName)));
    if (!name.isEmpty()) {
        WriteReportFile(QFile::encodeName(name).toStdString(), kind.content(report_));
        TellFile(name);
    }
}

void PrintView::TellFile(const QString &name) {
    NoteFolderOf(name, this);
    // Lines may break behind the folders of a long path.
    QString path = name;
    path.replace(u'/', QStringLiteral("/\u200b"));
    outcome_->setText(tr("The report is in the file %1.").arg(path));
    outcome_->setToolTip(ToolTipText(name));
}

void PrintView::PrintOut() {
    const auto outcome = PrintDirectly(this, report_, Antra(), TextOf(horoscope_->state.birth.ChartName));
    if (!outcome) {
        return;
    }
    if (outcome->file.isEmpty()) {
        outcome_->setText(tr("The report went to the printer %1.").arg(outcome->printer));
    } else {
        TellFile(outcome->file);
    }
}

} // namespace kelvaro
