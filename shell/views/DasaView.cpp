#include "shell/views/DasaView.h"

#include "drawing/ChartColours.h"
#include "drawing/ChartHeading.h"
#include "horoscope/Horoscope.h"
#include "runtime/MomentText.h"
#include "runtime/Now.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/ParchmentPalette.h"
#include "shell/widgets/SpokenNames.h"

#include <QScopedValueRollback>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <optional>
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

/// The section of a grid that holds a row; -1 where none does.
int SectionOfRow(const TextGrid &grid, std::size_t row) {
    const auto next = std::ranges::upper_bound(grid.sections, row, {}, &TextGrid::Section::firstRow);
    return static_cast<int>(next - grid.sections.begin()) - 1;
}

/// The section of a grid that holds the first of some periods; -1 where there are none.
int SectionOf(Periods periods, Periods all, const TextGrid &grid) {
    return periods.empty() ? -1 : SectionOfRow(grid, static_cast<std::size_t>(periods.data() - all.data()));
}

/// The period of a section's first row.
const DasaPeriod &FirstOf(Periods all, const TextGrid &grid, int section) {
    return all[grid.sections.at(static_cast<std::size_t>(section)).firstRow];
}

/// Selects the row that is marked, or none.
void SelectMarked(TextGridView &list) {
    list.clearSelection();
    list.setCurrentIndex(list.model()->index(list.Rows().MarkedRow(), 0));
}

TextGridView *NewList(const char *name, const QString &spokenName) {
    auto *list = new TextGridView(QString::fromLatin1(name), QStringLiteral("lccc"));
    list->setAccessibleName(spokenName);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    return list;
}

QComboBox *NewSections(const char *name, const QString &spokenName) {
    auto *sections = new QComboBox;
    sections->setObjectName(QString::fromLatin1(name));
    sections->setAccessibleName(spokenName);
    return sections;
}

QLabel *NewLine(const char *name) {
    auto *line = new QLabel;
    line->setObjectName(QString::fromLatin1(name));
    line->setTextFormat(Qt::PlainText);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    line->setAlignment(Qt::AlignCenter);
    line->setWordWrap(true);
    return line;
}

} // namespace

DasaView::DasaView(QWidget *parent)
    : HoroscopeView(parent), heading_(new ViewHeading(tr("Vimshottari Dasa"))),
      balance_(NewLine("Lab_DasaBalanceV")), todayLine_(NewLine("todaysPeriods")),
      todayButton_(new QPushButton(tr("&Today"))),
      bhuktiSections_(NewSections("bhuktiSections", tr("Section of the bhuktis"))),
      antraSections_(NewSections("antraSections", tr("Section of the antras"))),
      mshDasa_(NewList("mshDasa", tr("Dasas"))), mshBukti_(NewList("mshBukti", tr("Bhuktis"))),
      mshAntra_(NewList("mshAntra", tr("Antras"))), note_(NewLine("reckonings")),
      lists_({mshDasa_, mshBukti_, mshAntra_}, GridGroup::Order::Beside, fontSizes, rowsOfList),
      scroll_(new QScrollArea) {
    setAccessibleName(tr("Dasa"));
    todayButton_->setObjectName(QStringLiteral("cmdToday"));
    todayButton_->setIcon(HouseIcon("today", nameColour));
    note_->setText(
        tr("Dasas, bhuktis and antras are three reckonings, whose dates drift apart: dasas count the "
           "days of the chosen year, bhuktis calendar years, months and days, and antras the days "
           "of that year from birth on, at their full length."));

    QPalette quiet = ParchmentPalette();
    quiet.setColor(QPalette::WindowText, figureColour);
    note_->setPalette(quiet);

    auto *content = new QWidget;
    rows_ = new QGridLayout(content);
    rows_->setContentsMargins(margin, margin, margin, margin);
    rows_->setHorizontalSpacing(listDistance);
    rows_->setVerticalSpacing(lineDistance);
    PlaceLists();
    scroll_->setWidget(content);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll_);
    NameFields(*this);

    // A click also brings back what belongs to the row that is chosen already.
    const auto dasa = [this](const QModelIndex &row) { ChooseDasa(row.row()); };
    const auto bhukti = [this](const QModelIndex &row) { ChooseBhukti(row.row()); };
    connect(mshDasa_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, dasa);
    connect(mshDasa_, &QAbstractItemView::clicked, this, dasa);
    connect(mshBukti_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, bhukti);
    connect(mshBukti_, &QAbstractItemView::clicked, this, bhukti);
    connect(bhuktiSections_, &QComboBox::currentIndexChanged, this, &DasaView::ShowBhuktiSection);
    connect(antraSections_, &QComboBox::currentIndexChanged, this, &DasaView::ShowAntraSection);
    connect(todayButton_, &QPushButton::clicked, this, &DasaView::ChooseToday);
}

/// The lists stand beside one another, each below its choice, as many of them as there is room for.
void DasaView::PlaceLists() {
    const auto place = [this](QWidget *widget, int row, int column, int width, Qt::Alignment where) {
        rows_->removeWidget(widget);
        rows_->addWidget(widget, row, column, 1, width, where);
    };
    int row = 0;
    for (QWidget *line : std::initializer_list<QWidget *>{heading_, balance_, todayLine_}) {
        place(line, row++, 0, listsBeside_, {});
    }
    const std::array<std::pair<QWidget *, QWidget *>, listCount> lists{
        {{todayButton_, mshDasa_}, {bhuktiSections_, mshBukti_}, {antraSections_, mshAntra_}}};
    for (int i = 0; i < listCount; ++i) {
        const auto &[choice, list] = lists.at(static_cast<std::size_t>(i));
        const int column = i % listsBeside_;
        const bool isAlone = column == 0 && i + 1 == listCount;
        const int width = isAlone ? listsBeside_ : 1;
        const int listRow = row + 2 * (i / listsBeside_);
        place(choice, listRow, column, width, Qt::AlignHCenter);
        place(list, listRow + 1, column, width, Qt::AlignHCenter | Qt::AlignTop);
    }
    place(note_, row + 2 * LinesOfLists(), 0, listsBeside_, {});
    rows_->setRowStretch(row + 2 * listCount + 1, 1); // below all of them
}

void DasaView::Refresh(const Horoscope &horoscope) {
    form_ = horoscope.forms.Frm_Dasa;
    bhuktis_ = {};
    today_ = DateOf(Now());
    heading_->Show(horoscope.state);
    headingOfLists_ = HeadingOf(horoscope.state, {});
    balance_->setText(QString::fromStdString(form_.Lab_DasaBalanceV));
    FillSections();
    mshBukti_->MakeRoomFor(form_.mshBukti);
    mshAntra_->MakeRoomFor(form_.mshAntra);
    ShowPeriods(form_.dasas, form_.dasas, form_.mshDasa, today_, *mshDasa_);
    SetHeading(*mshDasa_, {});
    mshBukti_->Show(form_.mshBukti, 0, 0);
    mshAntra_->Show(form_.mshAntra, 0, 0);
    ChooseToday();
}

void DasaView::FillSections() {
    for (const auto &[box, grid] :
         {std::pair{bhuktiSections_, &form_.mshBukti}, std::pair{antraSections_, &form_.mshAntra}}) {
        const QSignalBlocker silence(box);
        box->clear();
        for (const TextGrid::Section &section : grid->sections) {
            box->addItem(QString::fromStdString(section.title));
        }
        box->setCurrentIndex(-1);
    }
}

/// Those of the present date, each with its section and, behind a blank or a line break, its dates.
QStringList DasaView::TodaysPeriods(QChar space) const {
    struct Level {
        QString name;
        Periods periods;
        const TextGrid &grid;
    };
    QStringList texts;
    for (const Level &level :
         {Level{tr("Dasa"), form_.dasas, form_.mshDasa}, Level{tr("Bhukthi"), form_.bhuktis, form_.mshBukti},
          Level{tr("Antra"), form_.antras, form_.mshAntra}}) {
        const auto place = PeriodAt(level.periods, today_);
        if (!place) {
            continue;
        }
        const DasaPeriod &period = level.periods[*place];
        const int section = SectionOfRow(level.grid, *place);
        const QString where = section < 0
                                  ? QString()
                                  : tr(" in %1").arg(QString::fromStdString(
                                        level.grid.sections.at(static_cast<std::size_t>(section)).title));
        texts << QStringLiteral("%1 %2%3%4(%5 \u2013 %6)")
                     .arg(level.name, QString::fromStdString(period.lordName), where, space,
                          QString::fromStdString(MonthNameDateText(period.start)),
                          QString::fromStdString(MonthNameDateText(period.end)));
    }
    return texts;
}

/// One line where the width allows it, otherwise a line for each period, and in a narrow window two.
QString DasaView::TodayText(int width) const {
    if (form_.dasas.empty()) {
        return {};
    }
    const QString date = QString::fromStdString(MonthNameDateText(today_));
    if (TodaysPeriods(u' ').isEmpty()) {
        return tr("%1 lies outside the periods").arg(date);
    }
    const auto text = [&](const QString &between, QChar space) {
        return date + QStringLiteral(":  ") + TodaysPeriods(space).join(between);
    };
    const QFontMetrics metrics(todayLine_->font());
    for (const QString &each :
         {text(QStringLiteral("   \u00b7   "), u' '), text(QStringLiteral("\n"), u' ')}) {
        if (metrics.size(0, each).width() <= width) {
            return each;
        }
    }
    return text(QStringLiteral("\n"), u'\n');
}

void DasaView::ChooseToday() {
    {
        const QScopedValueRollback choosing(isChoosing_, true);
        ChoosePeriodsOfToday();
    }
    LayOut();
}

void DasaView::ChoosePeriodsOfToday() {
    const auto dasa = PeriodAt(form_.dasas, today_);
    const auto bhukti = PeriodAt(form_.bhuktis, today_);
    const auto antra = PeriodAt(form_.antras, today_);
    if (!dasa && !bhukti && !antra) {
        mshDasa_->selectRow(0);
        return;
    }
    // A chosen dasa brings its bhuktis and a chosen bhukti its antras, neither of them always today's.
    SelectMarked(*mshDasa_);
    if (bhukti) {
        bhuktiSections_->setCurrentIndex(SectionOfRow(form_.mshBukti, *bhukti));
    }
    SelectMarked(*mshBukti_);
    if (antra) {
        antraSections_->setCurrentIndex(SectionOfRow(form_.mshAntra, *antra));
    }
    SelectMarked(*mshAntra_);
}

void DasaView::ChooseDasa(int dasa) {
    if (dasa < 0) {
        return;
    }
    const auto place = static_cast<std::size_t>(dasa);
    const Periods bhuktis = InDasa(form_.bhuktis, place);
    bhuktiSections_->setCurrentIndex(SectionOf(bhuktis, form_.bhuktis, form_.mshBukti));
    // All bhuktis of a dasa that was nearly over at birth may have been dropped; antras it has.
    if (bhuktis.empty()) {
        antraSections_->setCurrentIndex(SectionOf(InDasa(form_.antras, place), form_.antras, form_.mshAntra));
    }
}

void DasaView::ChooseBhukti(int bhukti) {
    if (bhukti < 0) {
        return;
    }
    const DasaPeriod &period = bhuktis_[static_cast<std::size_t>(bhukti)];
    antraSections_->setCurrentIndex(
        SectionOf(InBhukti(form_.antras, period.dasa, period.bhukti), form_.antras, form_.mshAntra));
}

void DasaView::ShowBhuktiSection(int section) {
    bhuktis_ =
        section < 0 ? Periods() : InDasa(form_.bhuktis, FirstOf(form_.bhuktis, form_.mshBukti, section).dasa);
    ShowPeriods(bhuktis_, form_.bhuktis, form_.mshBukti, today_, *mshBukti_);
    SetHeading(*mshBukti_, bhuktiSections_->currentText());
    LayOut();
    if (!bhuktis_.empty()) {
        mshBukti_->selectRow(std::max(mshBukti_->Rows().MarkedRow(), 0));
    }
}

void DasaView::ShowAntraSection(int section) {
    Periods antras;
    if (section >= 0) {
        const DasaPeriod &first = FirstOf(form_.antras, form_.mshAntra, section);
        antras = InBhukti(form_.antras, first.dasa, first.bhukti);
    }
    ShowPeriods(antras, form_.antras, form_.mshAntra, today_, *mshAntra_);
    SetHeading(*mshAntra_, antraSections_->currentText());
    LayOut();
}

/// A list that leaves the program says which section it is of.
void DasaView::SetHeading(TextGridView &list, const QString &section) {
    ChartHeading heading = headingOfLists_;
    heading.title = list.accessibleName();
    if (!section.isEmpty()) {
        heading.title += QStringLiteral(": ") + section;
    }
    list.SetHeading(heading);
    list.SetCopiedTitle(section);
}

void DasaView::resizeEvent(QResizeEvent *event) {
    HoroscopeView::resizeEvent(event);
    LayOut();
}

/// Too low a window is scrolled, and the scroll bar takes some of the width.
QSize DasaView::RoomForLists() const {
    const QSize window = scroll_->maximumViewportSize() - QSize(2 * margin, 2 * margin);
    int others = 0;
    int lines = 2 * LinesOfLists();
    for (const QLabel *label : std::initializer_list<const QLabel *>{heading_, balance_, todayLine_, note_}) {
        others += label->heightForWidth(window.width());
        ++lines;
    }
    const int choice = std::max(todayButton_->sizeHint().height(), antraSections_->sizeHint().height());
    const int height = window.height() - others - LinesOfLists() * choice - lines * lineDistance;
    const bool isLow = lists_.LeastSize(font().pointSizeF()).height() > height;
    const int bar = isLow ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    return {window.width() - bar - (listsBeside_ - 1) * listDistance, height};
}

void DasaView::LayOut() {
    if (isChoosing_) {
        return;
    }
    const QFont roomy = RoomyFont(linesOfContent, lettersOfContent);
    for (QWidget *widget : std::initializer_list<QWidget *>{heading_, balance_, todayLine_, todayButton_,
                                                            bhuktiSections_, antraSections_, note_}) {
        widget->setFont(roomy);
    }
    const int word = QFontMetrics(roomy).horizontalAdvance(todayButton_->text());
    todayButton_->setMinimumWidth(qRound(word * buttonWidth));
    // The scroll bar that a low window has stands beside it.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    todayLine_->setText(TodayText(scroll_->maximumViewportSize().width() - 2 * margin - bar));

    const double points = font().pointSizeF();
    const int before = listsBeside_;
    for (listsBeside_ = listCount;; --listsBeside_) {
        lists_.SetGridsPerLine(static_cast<std::size_t>(listsBeside_));
        if (listsBeside_ == 1 || lists_.LeastSize(points).width() <= RoomForLists().width()) {
            break;
        }
    }
    if (listsBeside_ != before) {
        PlaceLists();
    }
    lists_.LayOut(points, RoomForLists());
}

} // namespace kelvaro
