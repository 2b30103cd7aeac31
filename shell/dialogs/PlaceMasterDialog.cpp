#include "shell/dialogs/PlaceMasterDialog.h"

#include "shell/dialogs/MasterGrid.h"
#include "shell/widgets/FormKeys.h"
#include "shell/widgets/ListedChoice.h"
#include "shell/widgets/TypeAhead.h"
#include "store/masters/CountryMaster.h"

#include <QSignalBlocker>
#include <QTabWidget>

namespace kelvaro {

void PlaceMasterDialog::Begin(Plan plan, store::Connection &connection) {
    plan_ = std::move(plan);
    const auto countries = store::CountryMaster(connection).Countries();
    for (const Tab &tab : plan_.tabs) {
        TypeAhead::Serve(tab.country);
        FillList(tab.country, countries);
        ShowRows(tab);
    }
    TypeAhead::Serve(plan_.edited);
    const auto &[adding, editing, viewing] = plan_.tabs;
    OnChoiceOf(adding.country, [this] { ShowRows(plan_.tabs[0]); });
    // The list chooses none, so the fields of the row before go too.
    OnChoiceOf(editing.country, [this] { FillList(plan_.edited, ShowRows(plan_.tabs[1]).items); });
    OnChoiceOf(viewing.country, [this] { viewed_ = ShowRows(plan_.tabs[2]); });
    OnChoiceOf(plan_.edited, plan_.showEdited);
}

void PlaceMasterDialog::StartIn(std::int32_t countryId) {
    ChooseKey(plan_.tabs.front().country, countryId);
    // The rows of a large country take their time: the other tabs follow when they are looked at.
    connect(findChild<QTabWidget *>(), &QTabWidget::currentChanged, this, [this, countryId] {
        for (const Tab &tab : plan_.tabs) {
            if (tab.country->isVisible() && tab.country->currentText().isEmpty()) {
                ChooseKey(tab.country, countryId);
            }
        }
    });
}

store::MasterRows PlaceMasterDialog::ShowRows(const Tab &tab) const {
    const std::int32_t country = ChosenKey(tab.country);
    store::MasterRows list = country == 0 ? store::MasterRows() : plan_.rowsOf(country);
    tab.grid->Show(plan_.heading, plan_.alignments, list.rows);
    return list;
}

void PlaceMasterDialog::ConcludeAndRefill(const store::Outcome &outcome) {
    if (!Conclude(outcome)) {
        return;
    }
    ShowRows(plan_.tabs[0]);
    viewed_ = ShowRows(plan_.tabs[2]);
    const store::MasterRows edited = ShowRows(plan_.tabs[1]);
    const std::int32_t chosen = ChosenKey(plan_.edited);
    const QSignalBlocker quiet(plan_.edited);
    FillList(plan_.edited, edited.items);
    ChooseKey(plan_.edited, chosen);
}

void PlaceMasterDialog::ListDirections(QComboBox *box, const char *one, const char *other) {
    TypeAhead::Serve(box);
    FillList(box, {QString::fromLatin1(one), QString::fromLatin1(other)});
}

void PlaceMasterDialog::TakeNumbers(std::initializer_list<QLineEdit *> lines) {
    for (QLineEdit *line : lines) {
        TakeDigitsOnly(line);
    }
}

std::int32_t PlaceMasterDialog::KeyIn(const QComboBox *box) {
    return box == nullptr ? 0 : ChosenKey(box);
}

} // namespace kelvaro
