#include "shell/UserDetailsView.h"

#include "horoscope/Horoscope.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QScrollArea>
#include <QVBoxLayout>

#include <array>

namespace kelvaro {

namespace {

constexpr int margin = 16;
constexpr int groupDistance = 14;
constexpr int widestContent = 1500;

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

QGroupBox *NewGroup(const char *title) {
    auto *box = new QGroupBox(QString::fromLatin1(title));
    box->setStyleSheet(
        QStringLiteral("QGroupBox { border: 1px solid %1; border-radius: 4px; margin-top: 1.1em; "
                       "background: %2; font-weight: 600; }"
                       "QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; "
                       "color: %3; }")
            .arg(parchmentColour.darker(135).name(), parchmentColour.lighter(104).name(), lineColour.name()));
    auto *rows = new QGridLayout(box);
    rows->setContentsMargins(margin, margin, margin, margin);
    rows->setHorizontalSpacing(margin);
    rows->setVerticalSpacing(margin / 2);
    rows->setColumnStretch(1, 1);
    return box;
}

} // namespace

UserDetailsView::UserDetailsView(QWidget *parent)
    : HoroscopeView(parent), heading_(new ViewHeading(tr("Birth Details"))) {
    setAccessibleName(tr("Birth Details"));
    const std::array<QGroupBox *, 4> groups{NewGroup("Person"), NewGroup("Clock"), NewGroup("Place"),
                                            NewGroup("Almanac")};
    const auto add = [&](const Field &field) {
        QGroupBox *group = groups.at(static_cast<std::size_t>(field.group));
        auto *rows = qobject_cast<QGridLayout *>(group->layout());
        auto *label = new QLabel(QString::fromLatin1(field.label));
        QPalette colours = label->palette();
        colours.setColor(QPalette::WindowText, figureColour);
        label->setPalette(colours);
        QLabel *text = TextLabel(field.name);
        text->setAccessibleName(label->text());
        const int row = rows->rowCount();
        rows->addWidget(label, row, 0, Qt::AlignTop);
        rows->addWidget(text, row, 1, Qt::AlignTop);
        texts_.push_back(text);
    };
    for (const Field &field : fields) {
        add(field);
    }

    auto *content = new QWidget;
    content->setMaximumWidth(widestContent);
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

    auto *scroll = new QScrollArea;
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setAlignment(Qt::AlignHCenter);
    scroll->setFrameShape(QFrame::NoFrame);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);
}

void UserDetailsView::Refresh(const Horoscope &horoscope) {
    heading_->Show(horoscope.state);
    const UserDetailsForm &form = horoscope.forms.frm_UserDetails;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        texts_.at(i)->setText(QString::fromStdString(form.*fields.at(i).text));
    }
}

} // namespace kelvaro
