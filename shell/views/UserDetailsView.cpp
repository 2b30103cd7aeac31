#include "shell/views/UserDetailsView.h"

#include "drawing/ChartColours.h"
#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "horoscope/Horoscope.h"
#include "shell/widgets/ParchmentPalette.h"

#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace kelvaro {

namespace {

constexpr int margin = 16;
constexpr int groupDistance = 14;
constexpr int fieldDistance = 6;
constexpr double widestInLetters = 170;
constexpr double linesOfContent = 38;    // that the summary takes up, with its distances
constexpr double lettersOfContent = 150; // that keep its longest texts on one line
constexpr double lettersOfTwoColumns = 120;
constexpr double linesAtMost = 50; // that it may be spread over

enum class Group { Person, Clock, Place, Almanac };

struct Field {
    Group group;
    const char *label;
    const char *name;
    std::string UserDetailsForm::*text;
};

constexpr std::array<Field, 30> fields{{
    {Group::Person, "Name", "txtGName", &UserDetailsForm::txtGName},
    {Group::Person, "Gender", "txtSex", &UserDetailsForm::txtSex},
    {Group::Person, "Date of Birth", "Txt_BC_Date", &UserDetailsForm::Txt_BC_Date},
    {Group::Person, "Time of Birth", "txtTimeOfBirth", &UserDetailsForm::txtTimeOfBirth},
    {Group::Clock, "Standard Time", "txtist", &UserDetailsForm::txtist},
    {Group::Clock, "Local Mean Time", "txtlmt", &UserDetailsForm::txtlmt},
    {Group::Clock, "Greenwich Mean Time", "txtgmt", &UserDetailsForm::txtgmt},
    {Group::Clock, "Sunrise", "txtSunRise", &UserDetailsForm::txtSunRise},
    {Group::Clock, "Sunset", "txtSunSet", &UserDetailsForm::txtSunSet},
    {Group::Clock, "Ishta Ghati", "txtIshtaGhati", &UserDetailsForm::txtIshtaGhati},
    {Group::Clock, "Ayanamsa", "txtAyanamsa", &UserDetailsForm::txtAyanamsa},
    {Group::Place, "City", "txtCity", &UserDetailsForm::txtCity},
    {Group::Place, "Country", "txtCountry", &UserDetailsForm::txtCountry},
    {Group::Place, "Latitude", "txtLatutude", &UserDetailsForm::txtLatutude},
    {Group::Place, "Longitude", "txtLongitude", &UserDetailsForm::txtLongitude},
    {Group::Place, "Time Zone", "txtTimeZone", &UserDetailsForm::txtTimeZone},
    {Group::Almanac, "Lagna", "txtLagna", &UserDetailsForm::txtLagna},
    {Group::Almanac, "Rasi", "txtRasi", &UserDetailsForm::txtRasi},
    {Group::Almanac, "Star", "txtStar", &UserDetailsForm::txtStar},
    {Group::Almanac, "Tithi", "txtTithi", &UserDetailsForm::txtTithi},
    {Group::Almanac, "Paksha", "txtPaksha", &UserDetailsForm::txtPaksha},
    {Group::Almanac, "Karana", "txtKarnam", &UserDetailsForm::txtKarnam},
    {Group::Almanac, "Yoga", "txtYogam", &UserDetailsForm::txtYogam},
    {Group::Almanac, "Week Day", "txtGregorian", &UserDetailsForm::txtGregorian},
    {Group::Almanac, "Vedic Week Day", "txtVedic", &UserDetailsForm::txtVedic},
    {Group::Almanac, "Lunar Date (Krishnadi)", "txtKLunarDate", &UserDetailsForm::txtKLunarDate},
    {Group::Almanac, "Lunar Date (Sukladi)", "txtSLunarDate", &UserDetailsForm::txtSLunarDate},
    {Group::Almanac, "Solar Date", "txtSolarDate", &UserDetailsForm::txtSolarDate},
    {Group::Almanac, "Kaliyuga Year", "txtKaliyugaYear", &UserDetailsForm::txtKaliyugaYear},
    {Group::Almanac, "Ayana", "txtAyana", &UserDetailsForm::txtAyana},
}};

QLabel *TextLabel(const char *name) {
    auto *label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

} // namespace

/// A framed group of fields under its title.
class FieldGroup : public QFrame {
public:
    explicit FieldGroup(const char *title) : rows_(new QGridLayout(this)) {
        setFrameShape(QFrame::StyledPanel);
        setAutoFillBackground(true);
        QPalette colours = ParchmentPalette();
        colours.setColor(QPalette::Window, parchmentColour.lighter(105));
        setPalette(colours);
        rows_->setVerticalSpacing(fieldDistance);
        rows_->setColumnStretch(1, 1);
        QLabel *caption = NewLabel(QString::fromLatin1(title), lineColour);
        QFont bold = caption->font();
        bold.setBold(true);
        caption->setFont(bold);
        rows_->addWidget(caption, 0, 0, 1, 2);
    }

    int FieldCount() const { return rows_->rowCount() - 1; }

    int LabelWidth() const {
        int width = 0;
        for (int row = 1; row < rows_->rowCount(); ++row) {
            width = std::max(width, rows_->itemAtPosition(row, 0)->widget()->sizeHint().width());
        }
        return width;
    }

    /// Makes the texts of all groups stand in line.
    void LayOut(int labelWidth) {
        const int space = fontMetrics().height();
        rows_->setColumnMinimumWidth(0, labelWidth);
        rows_->setContentsMargins(space, space / 2, space, space / 4);
        rows_->setHorizontalSpacing(space);
    }

    QLabel *AddField(const char *title, const char *name) {
        QLabel *text = TextLabel(name);
        const int row = rows_->rowCount();
        rows_->addWidget(NewLabel(QString::fromLatin1(title), figureColour), row, 0, Qt::AlignTop);
        rows_->addWidget(text, row, 1, Qt::AlignTop);
        return text;
    }

private:
    static QLabel *NewLabel(const QString &text, const QColor &colour) {
        auto *label = new QLabel(text);
        QPalette colours = ParchmentPalette();
        colours.setColor(QPalette::WindowText, colour);
        label->setPalette(colours);
        return label;
    }

    QGridLayout *rows_;
};

UserDetailsView::UserDetailsView(QWidget *parent)
    : HoroscopeView(parent),
      heading_(new ViewHeading(tr("Birth Details"))), groups_{new FieldGroup("Person"),
                                                              new FieldGroup("Clock"),
                                                              new FieldGroup("Place"),
                                                              new FieldGroup("Almanac")} {
    setAccessibleName(tr("Birth Details"));
    for (const Field &field : fields) {
        texts_.push_back(
            groups_.at(static_cast<std::size_t>(field.group))->AddField(field.label, field.name));
    }

    auto *content = new QWidget;
    rows_ = new QGridLayout(content);
    rows_->setContentsMargins(margin, margin, margin, margin);
    rows_->setSpacing(groupDistance);
    rows_->addWidget(heading_, 0, 0, 1, 2);
    for (int group = 0; group < 3; ++group) {
        rows_->addWidget(groups_.at(static_cast<std::size_t>(group)), 1 + group, 0);
        rows_->setRowStretch(1 + group, groups_.at(static_cast<std::size_t>(group))->FieldCount() + 1);
    }
    PlaceAlmanac();

    content_ = content;
    auto *scroll = new QScrollArea;
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setAlignment(Qt::AlignHCenter);
    scroll->setFrameShape(QFrame::NoFrame);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);
}

/// The almanac stands beside the other groups, in a narrow window below them.
void UserDetailsView::PlaceAlmanac() {
    const bool isNarrow = width() < fontMetrics().averageCharWidth() * lettersOfTwoColumns;
    rows_->removeWidget(groups_.back());
    rows_->addWidget(groups_.back(), isNarrow ? 4 : 1, isNarrow ? 0 : 1, isNarrow ? 1 : 3, 1);
    rows_->setColumnStretch(0, 1);
    rows_->setColumnStretch(1, isNarrow ? 0 : 1);
}

/// A large window shows larger letters.
void UserDetailsView::resizeEvent(QResizeEvent *event) {
    HoroscopeView::resizeEvent(event);
    const QFont roomy = RoomyFont(linesOfContent, lettersOfContent);
    const QFontMetrics metrics(roomy);
    content_->setFont(roomy);
    content_->setMaximumWidth(qRound(metrics.averageCharWidth() * widestInLetters));
    PlaceAlmanac();
    int labelWidth = 0;
    for (const FieldGroup *group : groups_) {
        labelWidth = std::max(labelWidth, group->LabelWidth());
    }
    for (FieldGroup *group : groups_) {
        group->LayOut(labelWidth);
    }
    LimitHeight();
}

/// Keeps the summary from being spread over a high window. It may always be as high as its texts need, beside
/// the scroll bar that it then has.
void UserDetailsView::LimitHeight() {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int narrowest = std::min(width() - bar, content_->maximumWidth());
    const int spread = qRound(QFontMetrics(content_->font()).height() * linesAtMost);
    content_->setMaximumHeight(std::max(spread, content_->heightForWidth(narrowest)));
}

void UserDetailsView::Refresh(const Horoscope &horoscope) {
    heading_->Show(horoscope.state);
    const UserDetailsForm &form = horoscope.forms.frm_UserDetails;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const QString text = OneLine(TextOf(form.*fields.at(i).text));
        texts_.at(i)->setText(Breakable(text));
        // The name of a label is all that is read aloud of it.
        texts_.at(i)->setAccessibleName(
            QStringLiteral("%1: %2").arg(QString::fromLatin1(fields.at(i).label), text));
    }
    LimitHeight();
}

} // namespace kelvaro
