#include "shell/views/ViewHeading.h"

#include "shell/widgets/ChartColours.h"
#include "shell/widgets/ShownText.h"
#include "shell/widgets/TextOf.h"

#include <utility>

namespace kelvaro {

namespace {

constexpr qsizetype longestPart = 60; // letters of a name or a place

} // namespace

ChartHeading HeadingOf(const HoroscopeState &state, const QString &title) {
    const auto text = [](const std::string &field) { return Breakable(OneLine(TextOf(field), longestPart)); };
    const auto twoDigits = [&](const std::string &field) { return text(field).rightJustified(2, u'0'); };
    QStringList place{text(state.birth.BirthCity), text(state.birth.BirthCountry)};
    place.removeAll(QString());
    return {title, text(state.birth.ChartName),
            QStringLiteral("%1/%2/%3  %4:%5")
                .arg(twoDigits(state.birth.BirthDay), text(state.birth.BirthMonth),
                     text(state.birth.BirthYear), twoDigits(state.birth.BirthHour),
                     twoDigits(state.birth.BirthMinute)),
            place.join(QStringLiteral(", "))};
}

ViewHeading::ViewHeading(QString title, QWidget *parent) : QLabel(parent), title_(std::move(title)) {
    setTextFormat(Qt::RichText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
}

void ViewHeading::Show(const HoroscopeState &state) {
    const ChartHeading heading = HeadingOf(state, title_);
    // Lines break between words and behind a stroke; a date is to stay whole.
    QString moment = heading.moment;
    moment.replace(u'/', QStringLiteral("/\u2060")).replace(QStringLiteral("  "), QStringLiteral("\u00a0"));
    QStringList whose{heading.name, moment, heading.place};
    whose.removeAll(QString());
    for (QString &part : whose) {
        part = part.toHtmlEscaped();
    }
    setText(QStringLiteral("<span style='font-size:x-large; font-weight:600; color:%1'>%2</span><br>"
                           "<span style='color:%3'>%4</span>")
                .arg(lineColour.name(), heading.title.toHtmlEscaped(), figureColour.name(),
                     whose.join(QStringLiteral(" &nbsp;&nbsp;&middot;&nbsp;&nbsp; "))));
}

} // namespace kelvaro
