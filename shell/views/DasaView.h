#pragma once

#include "horoscope/record/HoroscopeForms.h"
#include "runtime/Moment.h"
#include "shell/views/GridGroup.h"
#include "shell/views/ViewHeading.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace kelvaro {

/// The window of the Vimshottari dasa: dasas, the bhuktis of the chosen dasa and the antras of a chosen
/// section.
class DasaView : public HoroscopeView {
    Q_OBJECT

public:
    explicit DasaView(QWidget *parent = nullptr);

    void Refresh(const Horoscope &horoscope) override;

    /// Chooses the periods that hold the present date, where there are any.
    void ChooseToday();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void ShowBhuktisOf(int dasa);
    void ShowAntrasOf(int bhukti);
    void ShowAntraSection(int section);
    void LayOut();
    int HeightOfLists() const;
    QString TodayText() const;

    DasaForm form_;
    Moment today_;
    ViewHeading *heading_;
    QLabel *balance_;
    QLabel *todayLine_;
    QPushButton *todayButton_;
    TextGridView *mshDasa_;
    TextGridView *mshBukti_;
    TextGridView *mshAntra_;
    GridGroup lists_;
    QComboBox *sections_;
    std::size_t firstBhukti_ = 0; ///< row of the grid that stands first in the list
};

} // namespace kelvaro
