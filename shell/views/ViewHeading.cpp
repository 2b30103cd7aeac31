#include "shell/views/ViewHeading.h"

#include "drawing/ChartColours.h"
#include "drawing/ChartHeading.h"

#include <utility>

namespace kelvaro {

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
