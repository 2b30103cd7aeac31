#include "shell/widgets/ListedChoice.h"

#include "drawing/TextOf.h"
#include "runtime/Texts.h"
#include "shell/widgets/Candidates.h"
#include "shell/widgets/TypeAhead.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>

#include <memory>

namespace kelvaro {

namespace {

int ChosenRow(const QComboBox *box) {
    const QString text = box->currentText();
    if (text.isEmpty()) {
        return -1;
    }
    const int row = box->currentIndex();
    // Of rows with one text the one that was picked counts.
    const bool isPicked = row >= 0 && box->itemText(row) == text;
    return isPicked ? row : box->findText(text, Qt::MatchFixedString);
}

void ChooseRow(QComboBox *box, int row) {
    box->setCurrentIndex(row);
    if (row < 0) {
        box->clearEditText();
    }
}

/// Watches the keys of an open list, which come to its view.
class ListCloser : public QObject {
public:
    explicit ListCloser(QComboBox *box) : QObject(box), box_(box) { box->view()->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::KeyPress) {
            const auto *key =
                static_cast<QKeyEvent *>(event); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
            if (key->key() == Qt::Key_Up && (key->modifiers() & Qt::AltModifier) != 0) {
                box_->hidePopup();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QComboBox *box_;
};

TypeAhead *Prepare(QComboBox *box, int columns) {
    constexpr int listedRows = 12;
    TypeAhead *typeAhead = TypeAhead::Serve(box);
    box->lineEdit()->setMaxLength(static_cast<int>(longestName));
    auto *view = new QListView(box);
    view->setUniformItemSizes(true);
    view->setSpacing(1);
    box->setView(view);
    box->setMaxVisibleItems(listedRows);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(columns);
    LetAltUpClose(box);
    return typeAhead;
}

} // namespace

void PrepareList(QComboBox *box, int columns) {
    Prepare(box, columns);
}

void PrepareListWithCandidates(QComboBox *box, int columns) {
    Candidates::Serve(box, *Prepare(box, columns));
}

void LetAltUpClose(QComboBox *box) {
    new ListCloser(box);
}

QStringList NumbersFromTo(int first, int last, int width) {
    QStringList numbers;
    for (int number = first; number <= last; ++number) {
        numbers << QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
    }
    return numbers;
}

QStringList TextsOf(std::span<const std::string_view> texts) {
    QStringList list;
    for (const std::string_view text : texts) {
        list << TextOf(text);
    }
    return list;
}

std::vector<store::ListItem> RowsOf(const std::vector<store::Zone> &zones) {
    std::vector<store::ListItem> rows;
    rows.reserve(zones.size());
    for (const store::Zone &zone : zones) {
        rows.push_back({zone.text, zone.number});
    }
    return rows;
}

void FillList(QComboBox *box, const std::vector<store::ListItem> &items) {
    box->clear();
    // A box chooses the first row that it gets.
    const QSignalBlocker quiet(box);
    for (const store::ListItem &item : items) {
        box->addItem(TextOf(item.text), item.key);
    }
    ChooseRow(box, -1);
}

void FillList(QComboBox *box, const QStringList &texts) {
    box->clear();
    const QSignalBlocker quiet(box);
    box->addItems(texts);
    ChooseRow(box, -1);
}

void ShowText(QComboBox *box, const std::string &text) {
    const QString shown = TextOf(text);
    if (box->itemText(box->currentIndex()) != shown) {
        box->setCurrentIndex(box->findText(shown, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    }
    box->setEditText(shown);
}

QString ChosenText(const QComboBox *box) {
    return box->itemText(ChosenRow(box));
}

std::int32_t ChosenKey(const QComboBox *box) {
    return box->itemData(ChosenRow(box)).toInt();
}

void ChooseKey(QComboBox *box, std::int32_t key) {
    ChooseRow(box, box->findData(key));
}

void OnChoice(QComboBox *box, const std::function<void()> &chosen) {
    // A pick changes text and row, one of two rows with one text only the row, typing only the text.
    const auto look = [box, chosen, last = std::make_shared<std::int32_t>(ChosenKey(box))] {
        const std::int32_t key = ChosenKey(box);
        if (key != *last) {
            *last = key;
            chosen();
        }
    };
    QObject::connect(box, &QComboBox::currentTextChanged, box, look);
    QObject::connect(box, &QComboBox::currentIndexChanged, box, look);
}

} // namespace kelvaro
