#include "pages/HoroscopePages.h"

#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "pages/ChartPages.h"
#include "pages/PageSetter.h"
#include "pages/PeriodPages.h"
#include "pages/TablePages.h"
#include "pages/TitlePage.h"
#include "pages/VargaCharts.h"
#include "report/TitleFields.h"

#include <utility>

namespace kelvaro {

namespace {

std::vector<Page> PagesOf(const HoroscopeState &state, const HoroscopeForms &forms,
                          const Letterhead &letterhead, const PageOptions &options) {
    PageSetter setter(QPageSize(options.paper).size(QPageSize::Point));
    SetTitlePage(forms.frm_UserDetails, state.DasaBalanceText, letterhead, setter);
    setter.OpenPage();
    SetChartsPage(state, forms, setter);
    setter.OpenPage();
    SetBhavaPage(state, forms, setter);
    setter.OpenPage();
    SetPlanetsPage(forms, setter);
    setter.OpenPage();
    SetVargasPage(state, forms, setter);
    if (options.hasVargaCharts && HasVargaCharts(state, forms)) {
        setter.OpenPage();
        SetVargaCharts(state, forms, setter);
    }
    SetBhuktiPages(forms.Frm_Dasa, setter);
    if (options.antra == AntraSection::With) {
        SetAntraPages(forms.Frm_Dasa, setter);
    }
    return std::move(setter).Finish(TextOf(state.birth.ChartName));
}

} // namespace

HoroscopePages::HoroscopePages(QSizeF paper, QString title, QString author, std::vector<Page> pages)
    : paper_(paper), title_(std::move(title)), author_(std::move(author)), pages_(std::move(pages)) {}

void HoroscopePages::Paint(int page, QPainter &painter) const {
    PaintPage(pages_.at(static_cast<std::size_t>(page)), painter);
}

HoroscopePages ComposePages(const HoroscopeState &state, const HoroscopeForms &forms,
                            store::Connection &connection, const PageOptions &options) {
    const Letterhead letterhead = ReadLetterhead(connection);
    const QString author = letterhead.name.empty() ? QStringLiteral("Kelvaro Basic")
                                                   : OneLine(TextOf(letterhead.name)).simplified();
    const QString name = OneLine(TextOf(state.birth.ChartName)).simplified();
    const QString title =
        name.isEmpty() ? QStringLiteral("Horoscope") : QStringLiteral("Horoscope of ") + name;
    return {QPageSize(options.paper).size(QPageSize::Point), title, author,
            PagesOf(state, forms, letterhead, options)};
}

} // namespace kelvaro
