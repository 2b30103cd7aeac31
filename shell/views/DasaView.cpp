#include "shell/views/DasaView.h"

#include "horoscope/Horoscope.h"
#include "runtime/MomentText.h"
#include "runtime/Now.h"
#include "shell/widgets/ChartColours.h"
#include "shell/widgets/HouseIcon.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

namespace kelvaro {

namespace {

constexpr int margin = 12;
constexpr int listDistance = 10;
constexpr int lineDistance = 6;
constexpr GridGroup::FontSizes fontSizes{1.8, 0.85};
constexpr double linesOfContent = 45; // of the window that leave all but the lists as it is
constexpr double lettersOfContent = 140;
constexpr double buttonWidth = 1.7; // times that of its word
constexpr int linesAbove = 4;       // the lists
constexpr int rowsOfList = 10;      // nine periods and the titles

using Periods = std::span<const DasaPeriod>;

/// The period that holds a date, both taken as whole days; periods follow one another.
std::optional<std::size_t> PeriodAt(Periods periods, Moment date) {
    const auto found = std::ranges::find_if(periods, [&](const DasaPeriod &period) {
        return DateOf(period.start) <= date && date < DateOf(period.end);
    });
    if (found == periods.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - periods.begin());
}

/// Shows some of the periods of a list, whose rows the grid has, with that of a date marked.
void ShowPeriods(Periods shown, Periods all, const TextGrid &grid, Moment date, TextGridView &list) {
    const auto first = shown.empty() ? 0 : static_cast<std::size_t>(shown.data() - all.data());
    list.Show(grid, first, shown.size());
    const auto marked = PeriodAt(all, date);
    const bool isShown = marked && *marked >= first && *marked < first + shown.size();
    list.Rows().Mark(isShown ? static_cast<int>(*marked - first) : -1);
}

TextGridView *NewList(const char *name) {
    auto *list = new TextGridView(QString::fromLatin1(name), QStringLiteral("lccc"));
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    return list;
}

} // namespace

DasaView::DasaView(QWidget *parent)
    : HoroscopeView(parent), heading_(new ViewHeading(tr("Vimshottari Dasa"))), balance_(new QLabel),
      todayLine_(new QLabel), todayButton_(new QPushButton(tr("&Today"))), mshDasa_(NewList("mshDasa")),
      mshBukti_(NewList("mshBukti")), mshAntra_(NewList("mshAntra")),
      lists_({mshDasa_, mshBukti_, mshAntra_}, GridGroup::Order::Beside, fontSizes, rowsOfList),
      sections_(new QComboBox) {
    setAccessibleName(tr("Dasa"));
    balance_->setObjectName(QStringLiteral("Lab_DasaBalanceV"));
    balance_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    balance_->setAlignment(Qt::AlignCenter);
    todayLine_->setObjectName(QStringLiteral("todaysPeriods"));
    for (QLabel *line : {balance_, todayLine_}) {
        line->setTextFormat(Qt::PlainText);
    }
    sections_->setObjectName(QStringLiteral("antraSections"));
    sections_->setAccessibleName(tr("Section of the antras"));
    todayButton_->setObjectName(QStringLiteral("cmdToday"));
    todayButton_->setIcon(HouseIcon("today", nameColour));

    auto *line = new QHBoxLayout;
    line->addStretch();
    line->addWidget(todayLine_);
    line->addSpacing(margin);
    line->addWidget(todayButton_);
    line->addStretch();

    auto *content = new QWidget;
    auto *layout = new QGridLayout(content);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setHorizontalSpacing(listDistance);
    layout->setVerticalSpacing(lineDistance);
    layout->addWidget(heading_, 0, 0, 1, 3);
    layout->addWidget(balance_, 1, 0, 1, 3);
    layout->addLayout(line, 2, 0, 1, 3);
    layout->addWidget(sections_, 3, 2, Qt::AlignHCenter);
    layout->addWidget(mshDasa_, 4, 0, Qt::AlignHCenter | Qt::AlignTop);
    layout->addWidget(mshBukti_, 4, 1, Qt::AlignHCenter | Qt::AlignTop);
    layout->addWidget(mshAntra_, 4, 2, Qt::AlignHCenter | Qt::AlignTop);
    layout->setRowStretch(5, 1);
    auto *scroll = new QScrollArea;
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);

    connect(mshDasa_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &row) { ShowBhuktisOf(row.row()); });
    connect(mshBukti_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &row) { ShowAntrasOf(row.row()); });
    connect(sections_, &QComboBox::currentIndexChanged, this, &DasaView::ShowAntraSection);
    connect(todayButton_, &QPushButton::clicked, this, &DasaView::ChooseToday);
}

void DasaView::Refresh(const Horoscope &horoscope) {
    form_ = horoscope.forms.Frm_Dasa;
    bhuktis_ = {};
    today_ = DateOf(Now());
    heading_->Show(horoscope.state);
    balance_->setText(QString::fromStdString(form_.Lab_DasaBalanceV));
    todayLine_->setText(TodayText());
    {
        const QSignalBlocker silence(sections_);
        sections_->clear();
        for (const TextGrid::Section &section : form_.mshAntra.sections) {
            sections_->addItem(QString::fromStdString(section.title));
        }
    }
    ShowPeriods(form_.dasas, form_.dasas, form_.mshDasa, today_, *mshDasa_);
    mshBukti_->Show(form_.mshBukti, 0, 0);
    mshAntra_->Show(form_.mshAntra, 0, 0);
    ChooseToday();
    LayOut();
}

QString DasaView::TodayText() const {
    if (form_.dasas.empty()) {
        return {};
    }
    QStringList lords;
    for (const auto &[name, periods] :
         {std::pair{tr("Dasa"), Periods(form_.dasas)}, std::pair{tr("Bhukthi"), Periods(form_.bhuktis)},
          std::pair{tr("Antra"), Periods(form_.antras)}}) {
        if (const auto place = PeriodAt(periods, today_)) {
            lords << QStringLiteral("%1 %2").arg(name, QString::fromStdString(periods[*place].lordName));
        }
    }
    const QString date = QString::fromStdString(MonthNameDateText(today_));
    return lords.isEmpty() ? tr("%1 lies outside the periods").arg(date)
                           : QStringLiteral("%1:  %2").arg(date, lords.join(QStringLiteral(",  ")));
}

void DasaView::ChooseToday() {
    if (form_.dasas.empty()) {
        return;
    }
    mshDasa_->selectRow(static_cast<int>(PeriodAt(form_.dasas, today_).value_or(0)));
    const int bhukti = std::max(mshBukti_->Rows().MarkedRow(), 0);
    if (bhukti < mshBukti_->Rows().rowCount()) {
        mshBukti_->selectRow(bhukti);
    }
    // The antras are computed on their own: today's may belong to another bhukti than today's bhukti.
    if (const auto antra = PeriodAt(form_.antras, today_)) {
        sections_->setCurrentIndex(SectionOf(form_.antras.at(*antra)));
        mshAntra_->selectRow(mshAntra_->Rows().MarkedRow());
    }
}

void DasaView::ShowBhuktisOf(int dasa) {
    if (dasa < 0) {
        return;
    }
    // All bhuktis of a dasa that was nearly over at birth may have been dropped.
    bhuktis_ = InDasa(form_.bhuktis, static_cast<std::size_t>(dasa));
    ShowPeriods(bhuktis_, form_.bhuktis, form_.mshBukti, today_, *mshBukti_);
    LayOut();
    if (!bhuktis_.empty()) {
        mshBukti_->selectRow(std::max(mshBukti_->Rows().MarkedRow(), 0));
    }
}

void DasaView::ShowAntrasOf(int bhukti) {
    if (bhukti < 0 || form_.antras.empty()) {
        return;
    }
    const int section = SectionOf(bhuktis_[static_cast<std::size_t>(bhukti)]);
    sections_->setCurrentIndex(section);
    ShowAntraSection(section);
}

int DasaView::SectionOf(const DasaPeriod &period) const {
    const Periods antras = InBhukti(form_.antras, period.dasa, period.bhukti);
    const auto section = std::ranges::find(form_.mshAntra.sections,
                                           static_cast<std::size_t>(antras.data() - form_.antras.data()),
                                           &TextGrid::Section::firstRow);
    return static_cast<int>(section - form_.mshAntra.sections.begin());
}

void DasaView::ShowAntraSection(int section) {
    if (section < 0) {
        return;
    }
    const DasaPeriod &first =
        form_.antras.at(form_.mshAntra.sections.at(static_cast<std::size_t>(section)).firstRow);
    ShowPeriods(InBhukti(form_.antras, first.dasa, first.bhukti), form_.antras, form_.mshAntra, today_,
                *mshAntra_);
    LayOut();
}

void DasaView::resizeEvent(QResizeEvent *event) {
    HoroscopeView::resizeEvent(event);
    LayOut();
}

int DasaView::HeightOfLists() const {
    const int lines = heading_->sizeHint().height() + balance_->sizeHint().height() +
                      todayButton_->sizeHint().height() + sections_->sizeHint().height();
    return height() - lines - 2 * margin - linesAbove * lineDistance;
}

void DasaView::LayOut() {
    const QFont roomy = RoomyFont(linesOfContent, lettersOfContent);
    for (QWidget *widget :
         std::initializer_list<QWidget *>{heading_, balance_, todayLine_, todayButton_, sections_}) {
        widget->setFont(roomy);
    }
    const int word = QFontMetrics(roomy).horizontalAdvance(todayButton_->text());
    todayButton_->setMinimumWidth(qRound(word * buttonWidth));
    // Too narrow a window is scrolled.
    lists_.LayOut(font().pointSizeF(), QSize(width() - 2 * margin - 2 * listDistance, HeightOfLists()));
}

} // namespace kelvaro
