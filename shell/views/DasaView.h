#pragma once

#include "horoscope/record/DasaForm.h"
#include "runtime/Moment.h"
#include "shell/views/GridGroup.h"
#include "shell/views/ViewHeading.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include <span>

namespace kelvaro {

/// The window of the Vimshottari dasa: dasas, the bhuktis of a dasa and the antras of a bhukti.
///
/// The three are reckoned each on its own and their dates drift apart: the bhukti of a day may lie in another
/// dasa than the dasa of that day. Bhuktis and antras therefore have a list of sections each.
class DasaView : public HoroscopeView {
    Q_OBJECT

public:
    explicit DasaView(QWidget *parent = nullptr);

    void Refresh(const Horoscope &horoscope) override;

    /// Chooses the periods that hold the present date, each in its own section; the first dasa where no
    /// period holds it.
    void ChooseToday();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    static constexpr int listCount = 3;

    void PlaceLists();
    void FillSections();
    void ChoosePeriodsOfToday();
    void ChooseDasa(int dasa);
    void ChooseBhukti(int bhukti);
    void ShowBhuktiSection(int section);
    void ShowAntraSection(int section);
    void SetHeading(TextGridView &list, const QString &section);
    void LayOut();
    int LinesOfLists() const { return (listCount + listsBeside_ - 1) / listsBeside_; }
    QSize RoomForLists() const;
    QStringList TodaysPeriods(QChar space) const;
    QString TodayText(int width) const;

    DasaForm form_;
    Moment today_;
    ViewHeading *heading_;
    ChartHeading headingOfLists_; ///< without a title
    QLabel *balance_;
    QLabel *todayLine_;
    QPushButton *todayButton_;
    QComboBox *bhuktiSections_;
    QComboBox *antraSections_;
    TextGridView *mshDasa_;
    TextGridView *mshBukti_;
    TextGridView *mshAntra_;
    QLabel *note_;
    GridGroup lists_;
    QScrollArea *scroll_;
    QGridLayout *rows_;
    int listsBeside_ = listCount;         ///< how many lists there is room for beside one another
    bool isChoosing_ = false;             ///< lists are laid out when all of them are chosen
    std::span<const DasaPeriod> bhuktis_; ///< those in the list
};

} // namespace kelvaro
