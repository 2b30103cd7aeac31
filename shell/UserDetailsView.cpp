#include "shell/UserDetailsView.h"

#include "horoscope/Horoscope.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace kelvaro {

namespace {

constexpr int margin = 16;
constexpr int groupDistance = 14;
constexpr double widestInLetters = 170;
constexpr double linesOfContent = 38;    // that the summary takes up, with its distances
constexpr double lettersOfContent = 150; // that keep its longest texts on one line
constexpr double largestFont = 2;        // times the system's size

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
    {Group::Place, "City", "txtCity", &UserDetailsForm::txtCity},
    {Group::Place, "Country", "txtCountry", &UserDetailsForm::txtCountry},
    {Group::Place, "Latitude", "txtLatutude", &UserDetailsForm::txtLatutude},
    {Group::Place, "Longitude", "txtLongitude", &UserDetailsForm::txtLongitude},
    {Group::Place, "Time Zone", "txtTimeZone", &UserDetailsForm::txtTimeZone},
    {Group::Clock, "Standard Time", "txtist", &UserDetailsForm::txtist},
    {Group::Clock, "Local Mean Time", "txtlmt", &UserDetailsForm::txtlmt},
    {Group::Clock, "Greenwich Mean Time", "txtgmt", &UserDetailsForm::txtgmt},
    {Group::Clock, "Sunrise", "txtSunRise", &UserDetailsForm::txtSunRise},
    {Group::Clock, "Sunset", "txtSunSet", &UserDetailsForm::txtSunSet},
    {Group::Clock, "Ishta Ghati", "txtIshtaGhati", &UserDetailsForm::txtIshtaGhati},
    {Group::Clock, "Ayanamsa", "txtAyanamsa", &UserDetailsForm::txtAyanamsa},
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

/// A framed group of fields under its title.
class FieldGroup : public QFrame {
public:
    explicit FieldGroup(const char *title) : rows_(new QGridLayout(this)) {
        setFrameShape(QFrame::StyledPanel);
        setAutoFillBackground(true);
        QPalette colours = palette();
        colours.setColor(QPalette::Window, parchmentColour.lighter(105));
        setPalette(colours);
        rows_->setContentsMargins(margin, margin / 2, margin, margin);
        rows_->setHorizontalSpacing(margin);
        rows_->setVerticalSpacing(margin / 2);
        rows_->setColumnStretch(1, 1);
        QLabel *caption = NewLabel(QString::fromLatin1(title), lineColour);
        QFont bold = caption->font();
        bold.setBold(true);
        caption->setFont(bold);
        rows_->addWidget(caption, 0, 0, 1, 2);
    }

    QLabel *AddField(const char *title, const char *name) {
        QLabel *text = TextLabel(name);
        text->setAccessibleName(QString::fromLatin1(title));
        const int row = rows_->rowCount();
        rows_->addWidget(NewLabel(QString::fromLatin1(title), figureColour), row, 0, Qt::AlignTop);
        rows_->addWidget(text, row, 1, Qt::AlignTop);
        return text;
    }

private:
    static QLabel *NewLabel(const QString &text, const QColor &colour) {
        auto *label = new QLabel(text);
        QPalette colours = label->palette();
        colours.setColor(QPalette::WindowText, colour);
        label->setPalette(colours);
        return label;
    }

    QGridLayout *rows_;
};

} // namespace

UserDetailsView::UserDetailsView(QWidget *parent)
    : HoroscopeView(parent), heading_(new ViewHeading(tr("Birth Details"))) {
    setAccessibleName(tr("Birth Details"));
    const std::array<FieldGroup *, 4> groups{new FieldGroup("Person"), new FieldGroup("Clock"),
                                             new FieldGroup("Place"), new FieldGroup("Almanac")};
    for (const Field &field : fields) {
        texts_.push_back(groups.at(static_cast<std::size_t>(field.group))->AddField(field.label, field.name));
    }

    auto *content = new QWidget;
    auto *layout = new QGridLayout(content);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(groupDistance);
    layout->addWidget(heading_, 0, 0, 1, 2);
    layout->addWidget(groups.at(0), 1, 0);
    layout->addWidget(groups.at(2), 2, 0);
    layout->addWidget(groups.at(1), 3, 0);
    layout->addWidget(groups.at(3), 1, 1, 3, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(4, 1);

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

/// A high window shows larger letters.
void UserDetailsView::resizeEvent(QResizeEvent *event) {
    HoroscopeView::resizeEvent(event);
    const double lines = static_cast<double>(height()) / fontMetrics().height();
    const double letters = static_cast<double>(width()) / fontMetrics().averageCharWidth();
    const double scale = std::min(lines / linesOfContent, letters / lettersOfContent);
    QFont larger = font();
    larger.setPointSizeF(font().pointSizeF() * std::clamp(scale, 1.0, largestFont));
    content_->setFont(larger);
    content_->setMaximumWidth(qRound(QFontMetrics(larger).averageCharWidth() * widestInLetters));
}

void UserDetailsView::Refresh(const Horoscope &horoscope) {
    heading_->Show(horoscope.state);
    const UserDetailsForm &form = horoscope.forms.frm_UserDetails;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        texts_.at(i)->setText(QString::fromStdString(form.*fields.at(i).text));
    }
}

} // namespace kelvaro
