#include "shell/dialogs/ClockSurveyDialog.h"

#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "shell/widgets/HouseIcon.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace kelvaro {

namespace {

constexpr int listWidth = 520;
constexpr int linesOfRemark = 5;

QString SummaryOf(const ClockSurvey &survey) {
    const auto all = survey.agreeing + survey.differing.size() + survey.unknown.size();
    if (all == 0) {
        return QObject::tr("There are no saved charts.");
    }
    return QObject::tr(
               "Saved charts: %1. Agreeing with the records: %2, differing: %3, not to be checked: %4.")
        .arg(all)
        .arg(survey.agreeing)
        .arg(survey.differing.size())
        .arg(survey.unknown.size());
}

QLabel *PlainLabel(const QString &text) {
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

ClockSurveyDialog::ClockSurveyDialog(store::Connection &connection, QWidget *parent)
    : QDialog(parent), survey_(SurveyClocks(connection)), charts_(new QListWidget), remark_(PlainLabel({})) {
    setObjectName(QStringLiteral("frm_ClockSurvey"));
    setWindowTitle(tr("Time Zones of Saved Charts"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton *open = buttons->addButton(tr("&Open"), QDialogButtonBox::AcceptRole);
    charts_->setObjectName(QStringLiteral("lstCharts"));
    charts_->setAccessibleName(tr("Charts to look at"));
    charts_->setMinimumWidth(listWidth);
    remark_->setObjectName(QStringLiteral("lblRemark"));
    remark_->setMinimumHeight(linesOfRemark * fontMetrics().lineSpacing());
    remark_->setAlignment(Qt::AlignTop);
    List(survey_.differing, true);
    List(survey_.unknown, false);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(PlainLabel(SummaryOf(survey_)));
    layout->addWidget(charts_, 1);
    layout->addWidget(remark_);
    layout->addWidget(buttons);
    open->setIcon(HouseIcon("open"));
    buttons->button(QDialogButtonBox::Close)->setIcon(HouseIcon("close"));
    open->setDefault(true);
    open->setEnabled(charts_->count() > 0);
    connect(charts_, &QListWidget::currentRowChanged, this, &ClockSurveyDialog::ShowRemark);
    connect(charts_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    charts_->setCurrentRow(0);
    charts_->setFocus();
}

const store::ListItem *ClockSurveyDialog::Chosen() const {
    const int row = charts_->currentRow();
    return result() == QDialog::Accepted && row >= 0 ? &listed_.at(static_cast<std::size_t>(row)).chart
                                                     : nullptr;
}

void ClockSurveyDialog::List(const std::vector<DoubtfulClock> &clocks, bool areWrong) {
    const QIcon icon = HouseIcon(areWrong ? "zone" : "help");
    for (const DoubtfulClock &clock : clocks) {
        auto *row = new QListWidgetItem(icon, OneLine(TextOf(clock.chart.text)), charts_);
        row->setData(Qt::AccessibleDescriptionRole, TextOf(clock.remark));
        listed_.push_back(clock);
    }
}

void ClockSurveyDialog::ShowRemark() {
    const int row = charts_->currentRow();
    remark_->setText(row < 0 ? QString()
                             : MessageText(TextOf(listed_.at(static_cast<std::size_t>(row)).remark)));
}

} // namespace kelvaro
