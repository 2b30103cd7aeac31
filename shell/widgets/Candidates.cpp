#include "shell/widgets/Candidates.h"

#include "shell/widgets/TypeAhead.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace kelvaro {

void Candidates::Serve(QComboBox *box, const TypeAhead &typing) {
    auto *list = new Candidates(box);
    connect(&typing, &TypeAhead::Typed, list, &Candidates::ShowFor);
}

Candidates::Candidates(QComboBox *box) : QListWidget(box->window()), box_(box) {
    setObjectName(box->objectName() + QStringLiteral("_candidates"));
    setAccessibleName(tr("Candidates"));
    setFocusPolicy(Qt::NoFocus);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAutoFillBackground(true);
    hide();
    box->installEventFilter(this);
    connect(box, &QComboBox::currentIndexChanged, this, &Candidates::Mark);
    connect(this, &QListWidget::itemClicked, this, &Candidates::Pick);
}

bool Candidates::eventFilter(QObject *watched, QEvent *event) {
    // The list watches its own scroll bars, too, which hide when fewer rows are left.
    if (watched != box_) {
        return QListWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide) {
        hide();
    } else if (event->type() == QEvent::KeyPress && isVisible()) {
        const auto *key =
            static_cast<QKeyEvent *>(event); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
        if (key->key() == Qt::Key_Escape) {
            hide();
            return true;
        }
    }
    return QListWidget::eventFilter(watched, event);
}

void Candidates::ShowFor(const QString &typed) {
    hide();
    clear();
    if (typed.isEmpty()) {
        return;
    }
    const QAbstractItemModel *rows = box_->model();
    for (const QModelIndex &row :
         rows->match(rows->index(0, box_->modelColumn()), Qt::DisplayRole, typed, -1, Qt::MatchStartsWith)) {
        auto *item = new QListWidgetItem(row.data().toString(), this);
        item->setData(Qt::UserRole, row.row());
    }
    if (count() > 0) {
        setGeometry(Place());
        raise();
        show();
        Mark();
    }
}

/// Marks the row that stands in the box. With another row the box has left what was typed.
void Candidates::Mark() {
    if (!isVisible()) {
        return;
    }
    for (int row = 0; row < count(); ++row) {
        if (item(row)->data(Qt::UserRole) == box_->currentIndex()) {
            setCurrentRow(row);
            return;
        }
    }
    if (box_->currentIndex() >= 0) {
        hide();
    }
}

void Candidates::Pick(const QListWidgetItem *row) {
    const int picked = row->data(Qt::UserRole).toInt();
    hide();
    box_->setCurrentIndex(picked);
    box_->lineEdit()->selectAll();
    emit box_->activated(picked);
}

/// Below the box, as many rows as there are and the window has room for.
QRect Candidates::Place() const {
    constexpr int mostRows = 8;
    const QPoint corner = box_->mapTo(box_->window(), QPoint(0, box_->height()));
    const int wanted = std::min(count(), mostRows) * sizeHintForRow(0) + 2 * frameWidth();
    return {corner, QSize(box_->width(), std::min(wanted, box_->window()->height() - corner.y()))};
}

} // namespace kelvaro
