#include "shell/dialogs/ChartListDialog.h"

#include "horoscope/entry/BirthStorage.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/HouseIcon.h"
#include "shell/widgets/MessageBoxes.h"
#include "shell/widgets/TextOf.h"
#include "store/charts/ChartStore.h"
#include "ui_ChartListDialog.h"

namespace kelvaro {

ChartListDialog::ChartListDialog(store::Connection &connection, QWidget *parent)
    : QDialog(parent), connection_(connection), controls_(std::make_unique<Ui::Frm_RetriveBirthData>()) {
    controls_->setupUi(this);
    DressButtons(*this);
    controls_->List_VC_ChartName->installEventFilter(this);
    // The first click of a double click opens the chart already.
    connect(controls_->List_VC_ChartName, &QListWidget::itemClicked, this, &ChartListDialog::Submit);
    connect(controls_->Cmd_Submit, &QPushButton::clicked, this, &ChartListDialog::Submit);
    connect(controls_->Cmd_Close, &QPushButton::clicked, this, &QDialog::reject);
}

ChartListDialog::~ChartListDialog() = default;

void ChartListDialog::fnFillChart() {
    const store::ChartList charts = store::ChartStore(connection_).fnFillChart(DataGen);
    controls_->Lab_Details->setText(TextOf(charts.Lab_Details));
    QListWidget *list = controls_->List_VC_ChartName;
    list->clear();
    for (const store::ListItem &chart : charts.List_VC_ChartName) {
        auto *row = new QListWidgetItem(TextOf(chart.text), list);
        row->setData(Qt::UserRole, chart.key);
    }
}

void ChartListDialog::Submit() {
    const QList<QListWidgetItem *> chosen = controls_->List_VC_ChartName->selectedItems();
    if (chosen.isEmpty()) {
        ShowNotice(this, NoChartChosen());
        return;
    }
    const QListWidgetItem *row = chosen.front();
    emit ChartChosen({row->text().toStdString(), row->data(Qt::UserRole).toInt()});
}

/// While no row is chosen the list stands before its first row, so the first step down chooses that one.
bool ChartListDialog::eventFilter(QObject *watched, QEvent *event) {
    QListWidget *list = controls_->List_VC_ChartName;
    if (watched == list && event->type() == QEvent::KeyPress && list->selectedItems().isEmpty()) {
        list->setCurrentItem(nullptr);
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

} // namespace kelvaro
