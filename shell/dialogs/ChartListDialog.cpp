#include "shell/dialogs/ChartListDialog.h"

#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "horoscope/entry/BirthRemarks.h"
#include "horoscope/entry/BirthStorage.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/MessageBoxes.h"
#include "shell/widgets/SpokenNames.h"
#include "store/charts/ChartStore.h"
#include "ui_ChartListDialog.h"

#include <QScopeGuard>

#include <algorithm>

namespace kelvaro {

ChartListDialog::ChartListDialog(store::Connection &connection, QWidget *parent)
    : QDialog(parent), connection_(connection), controls_(std::make_unique<Ui::Frm_RetriveBirthData>()) {
    controls_->setupUi(this);
    DressButtons(*this);
    NameFields(*this);
    QListWidget *list = controls_->List_VC_ChartName;
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
    controls_->filter->installEventFilter(this);
    controls_->chartDetails->setMinimumHeight(2 * fontMetrics().lineSpacing());
    connect(controls_->filter, &QLineEdit::textChanged, this, &ChartListDialog::Filter);
    connect(list, &QListWidget::currentItemChanged, this, &ChartListDialog::ShowDetails);
    connect(list, &QListWidget::itemEntered, this, &ChartListDialog::ShowDetails);
    // The first click of a double click opens the chart already.
    connect(list, &QListWidget::itemClicked, this, &ChartListDialog::Submit);
    connect(controls_->Cmd_Submit, &QPushButton::clicked, this, &ChartListDialog::Submit);
    connect(controls_->Cmd_Close, &QPushButton::clicked, this, &QDialog::reject);
}

ChartListDialog::~ChartListDialog() = default;

void ChartListDialog::fnFillChart() {
    leftOut_.clear();
    // Who is told of lists elsewhere may stand behind this window.
    store::Connection::Teller before;
    before = connection_.OnRowsLeftOut([this, &before](const std::string &remark) {
        leftOut_ = OneLine(TextOf(remark));
        if (before) {
            before(remark);
        }
    });
    const auto restore = qScopeGuard([this, &before] { connection_.OnRowsLeftOut(before); });
    store::ChartList charts = store::ChartStore(connection_).fnFillChart(DataGen);
    charts_ = std::move(charts.List_VC_ChartName);
    controls_->Lab_Details->setText(TextOf(charts.Lab_Details));
    QListWidget *list = controls_->List_VC_ChartName;
    list->clear();
    for (const store::ListItem &chart : charts_) {
        new QListWidgetItem(OneLine(TextOf(chart.text)), list);
    }
    ShowDetails(nullptr);
}

void ChartListDialog::Choose(std::int32_t chartNumber) {
    controls_->filter->clear();
    QListWidget *list = controls_->List_VC_ChartName;
    const auto chart = std::ranges::find(charts_, chartNumber, &store::ListItem::key);
    list->clearSelection();
    list->setCurrentItem(chart == charts_.end() ? nullptr
                                                : list->item(static_cast<int>(chart - charts_.begin())));
}

/// Hides the charts without that part in their names. Of those that stay, one stays chosen.
void ChartListDialog::Filter(const QString &part) {
    QListWidget *list = controls_->List_VC_ChartName;
    QListWidgetItem *first = nullptr;
    for (int row = 0; row < list->count(); ++row) {
        const QString person = TextOf(store::PersonOf(charts_.at(static_cast<std::size_t>(row)).text));
        const bool isShown = person.contains(part, Qt::CaseInsensitive);
        list->item(row)->setHidden(!isShown);
        first = first == nullptr && isShown ? list->item(row) : first;
    }
    const QListWidgetItem *selected = Selected();
    if (!part.isEmpty() && (selected == nullptr || selected->isHidden())) {
        list->clearSelection();
        list->setCurrentItem(first);
    }
    ShowDetails(Selected());
}

/// Without a box: a row that cannot be read is told when it is opened.
QString ChartListDialog::DetailsOf(const QListWidgetItem *row) const {
    if (row == nullptr) {
        if (charts_.empty()) {
            return leftOut_.isEmpty() ? tr("There are no saved charts.") : QString();
        }
        return controls_->filter->text().isEmpty() ? QString() : tr("No saved chart has this in its name.");
    }
    const auto place = static_cast<std::size_t>(controls_->List_VC_ChartName->row(row));
    try {
        return OneLine(TextOf(ChartAtAGlance(store::ChartStore(connection_).Read(charts_.at(place).key))));
    } catch (const std::exception &) {
        return tr("This chart is damaged. Open it to see what is left of it.");
    }
}

void ChartListDialog::ShowDetails(const QListWidgetItem *row) {
    QStringList details{DetailsOf(row), leftOut_};
    details.removeAll(QString());
    const QString text = details.join(u'\n');
    controls_->chartDetails->setText(text);
    controls_->List_VC_ChartName->setAccessibleDescription(text);
}

QListWidgetItem *ChartListDialog::Selected() const {
    const QList<QListWidgetItem *> selected = controls_->List_VC_ChartName->selectedItems();
    return selected.isEmpty() ? nullptr : selected.front();
}

void ChartListDialog::Submit() {
    const QListWidgetItem *row = Selected();
    if (row == nullptr) {
        ShowNotice(this, NoChartChosen());
        return;
    }
    emit ChartChosen(charts_.at(static_cast<std::size_t>(controls_->List_VC_ChartName->row(row))));
}

bool ChartListDialog::eventFilter(QObject *watched, QEvent *event) {
    QListWidget *list = controls_->List_VC_ChartName;
    if (event->type() == QEvent::KeyPress) {
        const auto *key =
            static_cast<QKeyEvent *>(event); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
        const bool walksList = key->key() == Qt::Key_Down || key->key() == Qt::Key_Up ||
                               key->key() == Qt::Key_PageDown || key->key() == Qt::Key_PageUp;
        if (watched == controls_->filter && walksList) {
            return QCoreApplication::sendEvent(list, event);
        }
        // While no row is chosen the list stands before its first row, so the first step down chooses that
        // one.
        if (watched == list && Selected() == nullptr) {
            list->setCurrentItem(nullptr);
        }
    } else if (watched == list->viewport() && event->type() == QEvent::Leave) {
        ShowDetails(Selected());
    }
    return QDialog::eventFilter(watched, event);
}

void ChartListDialog::keyPressEvent(QKeyEvent *event) {
    if (!IsEnter(*event)) {
        QDialog::keyPressEvent(event);
    } else if (controls_->Cmd_Close->hasFocus()) {
        reject();
    } else {
        Submit();
    }
}

void ChartListDialog::showEvent(QShowEvent *event) {
    QDialog::showEvent(event);
    controls_->filter->setFocus();
    if (QListWidgetItem *selected = Selected()) {
        controls_->List_VC_ChartName->scrollToItem(selected, QAbstractItemView::PositionAtCenter);
    }
}

} // namespace kelvaro
