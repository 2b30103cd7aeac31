#pragma once

#include "horoscope/record/DasaForm.h"
#include "runtime/Moment.h"
#include "shell/views/GridGroup.h"
#include "shell/views/ViewHeading.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include <span>

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
    /// The section of the antras of a bhukti, or the one that holds an antra.
    int SectionOf(const DasaPeriod &period) const;

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
    std::span<const DasaPeriod> bhuktis_; ///< those in the list
};

} // namespace kelvaro
