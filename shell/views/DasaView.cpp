#include "shell/views/DasaView.h"

#include "horoscope/Horoscope.h"
#include "runtime/MomentText.h"
#include "runtime/Now.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace kelvaro {

namespace {

constexpr int margin = 12;
constexpr int listDistance = 10;
constexpr int lineDistance = 6;
constexpr std::size_t fromColumn = 1;
constexpr std::size_t toColumn = 2;
constexpr GridGroup::FontSizes fontSizes{1.8, 0.85};
constexpr double linesOfContent = 45; // of the window that leave all but the lists as it is
constexpr double lettersOfContent = 140;
constexpr double buttonWidth = 1.7; // times that of its word
constexpr int linesAbove = 4;       // the lists
constexpr int rowsOfList = 10;      // nine periods and the titles

/// Where a section of a grid begins and how many rows it has.
struct Rows {
    std::size_t first = 0;
    std::size_t count = 0;
};

Rows RowsOf(const TextGrid &grid, std::size_t section) {
    const std::size_t first = grid.sections.at(section).firstRow;
    const std::size_t end =
        section + 1 < grid.sections.size() ? grid.sections.at(section + 1).firstRow : grid.rows.size();
    return {first, end - first};
}

std::optional<std::size_t> SectionNamed(const TextGrid &grid, const std::string &title) {
    const auto found = std::ranges::find(grid.sections, title, &TextGrid::Section::title);
    if (found == grid.sections.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - grid.sections.begin());
}

/// The row whose period holds a date; periods follow one another.
std::optional<std::size_t> RowAt(const TextGrid &grid, Moment date) {
    const auto holds = [&](const std::vector<std::string> &row) {
        return ReadMoment(row.at(fromColumn)) <= date && date < ReadMoment(row.at(toColumn));
    };
    const auto found = std::ranges::find_if(grid.rows, holds);
    if (found == grid.rows.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - grid.rows.begin());
}

int RowWithin(const std::optional<std::size_t> &row, const Rows &rows) {
    return row && *row >= rows.first && *row < rows.first + rows.count ? static_cast<int>(*row - rows.first)
                                                                       : -1;
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
    sections_->setObjectName(QStringLiteral("antraSections"));
    sections_->setAccessibleName(tr("Section of the antras"));
    todayButton_->setObjectName(QStringLiteral("cmdToday"));

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
    mshDasa_->Show(form_.mshDasa);
    mshDasa_->Rows().Mark(RowWithin(RowAt(form_.mshDasa, today_), {0, form_.mshDasa.rows.size()}));
    mshBukti_->Show(form_.mshBukti, 0, 0);
    mshAntra_->Show(form_.mshAntra, 0, 0);
    ChooseToday();
    LayOut();
}

QString DasaView::TodayText() const {
    if (form_.mshDasa.rows.empty()) {
        return {};
    }
    QStringList lords;
    for (const auto &[name, grid] :
         {std::pair{tr("Dasa"), &form_.mshDasa}, std::pair{tr("Bhukthi"), &form_.mshBukti},
          std::pair{tr("Antra"), &form_.mshAntra}}) {
        if (const auto row = RowAt(*grid, today_)) {
            QString lord = QString::fromStdString(grid->rows.at(*row).front());
            if (grid == &form_.mshBukti) {
                lord.chop(lord.endsWith(QStringLiteral(" Dasa")) ? 5 : 0);
            }
            lords << QStringLiteral("%1 %2").arg(name, lord);
        }
    }
    const QString date = QString::fromStdString(MonthNameDateText(today_));
    return lords.isEmpty() ? tr("%1 lies outside the periods").arg(date)
                           : QStringLiteral("%1:  %2").arg(date, lords.join(QStringLiteral(",  ")));
}

void DasaView::ChooseToday() {
    if (form_.mshDasa.rows.empty()) {
        return;
    }
    const std::size_t dasa = RowAt(form_.mshDasa, today_).value_or(0);
    mshDasa_->selectRow(static_cast<int>(dasa));
    const int bhukti = std::max(mshBukti_->Rows().MarkedRow(), 0);
    if (bhukti < mshBukti_->Rows().rowCount()) {
        mshBukti_->selectRow(bhukti);
    }
    // The antras are a reckoning of their own: today's may belong to another bhukti than today's bhukti.
    if (const auto antra = RowAt(form_.mshAntra, today_)) {
        const auto section =
            std::ranges::upper_bound(form_.mshAntra.sections, *antra, {}, &TextGrid::Section::firstRow);
        sections_->setCurrentIndex(static_cast<int>(section - form_.mshAntra.sections.begin()) - 1);
        mshAntra_->selectRow(mshAntra_->Rows().MarkedRow());
    }
}

void DasaView::ShowBhuktisOf(int dasa) {
    if (dasa < 0) {
        return;
    }
    const std::string title = form_.mshDasa.rows.at(static_cast<std::size_t>(dasa)).front() + " Dasa";
    // All bhuktis of a dasa that was nearly over at birth may have been dropped.
    const auto section = SectionNamed(form_.mshBukti, title);
    const Rows rows = section ? RowsOf(form_.mshBukti, *section) : Rows{};
    firstBhukti_ = rows.first;
    mshBukti_->Show(form_.mshBukti, rows.first, rows.count);
    mshBukti_->Rows().Mark(RowWithin(RowAt(form_.mshBukti, today_), rows));
    LayOut();
    if (rows.count > 0) {
        mshBukti_->selectRow(std::max(mshBukti_->Rows().MarkedRow(), 0));
    }
}

void DasaView::ShowAntrasOf(int bhukti) {
    const QModelIndex dasa = mshDasa_->currentIndex();
    if (bhukti < 0 || !dasa.isValid()) {
        return;
    }
    const std::string &dasaLord = form_.mshDasa.rows.at(static_cast<std::size_t>(dasa.row())).front();
    std::string lord = form_.mshBukti.rows.at(firstBhukti_ + static_cast<std::size_t>(bhukti)).front();
    lord.resize(lord.size() - std::string_view(" Dasa").size());
    if (const auto section = SectionNamed(form_.mshAntra, dasaLord + " Dasa, " + lord + " Bhukthi")) {
        sections_->setCurrentIndex(static_cast<int>(*section));
        ShowAntraSection(static_cast<int>(*section));
    }
}

void DasaView::ShowAntraSection(int section) {
    if (section < 0) {
        return;
    }
    const Rows rows = RowsOf(form_.mshAntra, static_cast<std::size_t>(section));
    mshAntra_->Show(form_.mshAntra, rows.first, rows.count);
    mshAntra_->Rows().Mark(RowWithin(RowAt(form_.mshAntra, today_), rows));
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
