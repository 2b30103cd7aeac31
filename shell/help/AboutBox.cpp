#include "shell/help/AboutBox.h"

#include "clock/ZoneClock.h"
#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "shell/widgets/HouseIcon.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kelvaro {

namespace {

constexpr int textWidth = 440;
constexpr int margin = 20;
constexpr qsizetype longestRelease = 20; // characters

/// Where the form's remark on the clocks of the birthplace comes from.
QString RecordsOfClocks() {
    if (!HasZoneRecords()) {
        return QObject::tr(
            "The tz database is missing, so the form cannot say what the clocks of a birthplace stood at. "
            "The package tzdata brings it, on Windows the installer of this program.");
    }
    const QString release = OneLine(TextOf(ZoneRecordsRelease()), longestRelease);
    return release.isEmpty()
               ? QObject::tr("the tz database, public domain.")
               : QObject::tr("the tz database, release %1, public domain.").arg(release.toHtmlEscaped());
}

} // namespace

AboutBox::AboutBox(QWidget *parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frm_AboutUs"));
    setWindowTitle(tr("About us"));
    auto *text = new QLabel(
        tr("<h2>Kelvaro Basic</h2><p>Version 2.4</p>"
           "<p>Vedic astrology on the desktop: the whole horoscope of a birth, computed by the program "
           "itself.</p>"
           "<p>Kelvaro Technologies Pvt Ltd<br>www.kelvaro.example<br>support@kelvaro.example</p>"
           "<p><b>Place data:</b> GeoNames, CC BY 4.0; names shortened and made unique, positions rounded to "
           "minutes.<br>https://www.geonames.org<br>https://creativecommons.org/licenses/by/4.0/</p>"
           "<p><b>Zone offsets:</b> the tz database, release 2025b, public domain.</p>"
           "<p><b>Clocks of birthplaces:</b> %1</p>")
            .arg(RecordsOfClocks()));
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextBrowserInteraction);
    text->setFixedWidth(textWidth);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    buttons->button(QDialogButtonBox::Ok)->setIcon(HouseIcon("accept"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(text);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace kelvaro
