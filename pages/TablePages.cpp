#include "pages/TablePages.h"

#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "pages/PageType.h"

namespace kelvaro {

namespace {

constexpr double betweenTables = 26;

TableContent WithTotals(TableContent content) {
    if (!content.rows.empty()) {
        content.rows.back().kind = RowKind::Total;
    }
    return content;
}

} // namespace

void SetPlanetsPage(const HoroscopeForms &forms, PageSetter &setter) {
    if (!forms.Frm_PP.mshNirayana.rows.empty()) {
        setter.AddTable(QStringLiteral("Planet Positions"), {},
                        ContentOf(forms.Frm_PP.mshNirayana, QStringLiteral("lhlllcllll")), AirySetting());
        setter.AddNote(QStringLiteral("* Karaka: the Jaimini karakas, ranked by the degrees in the sign.   "
                                      "** Avasthas: the Sayanadi avasthas.   (R): retrograde."));
        setter.Skip(betweenTables);
    }
    if (!forms.Frm_AVargas.mshAshtaVarga.rows.empty()) {
        setter.AddTable(QStringLiteral("Ashta Vargas"), {},
                        WithTotals(ContentOf(forms.Frm_AVargas.mshAshtaVarga, QStringLiteral("lr"))),
                        AirySetting());
        setter.AddNote(QStringLiteral(
            "* These columns stand beside the classical seven; only the last column counts them."));
    }
}

void SetVargasPage(const HoroscopeState &state, const HoroscopeForms &forms, PageSetter &setter) {
    if (!forms.Frm_Vargas.mshVargas.rows.empty()) {
        setter.AddTable(QStringLiteral("Vargas"), {},
                        ContentOf(forms.Frm_Vargas.mshVargas, QStringLiteral("lc")));
        setter.Skip(betweenTables);
    }
    if (!forms.Frm_Dasa.mshDasa.rows.empty()) {
        TableContent dasas = ContentOf(forms.Frm_Dasa.mshDasa, QStringLiteral("lllr"));
        // As the periods on the pages that follow are headed.
        dasas.titles[1] = QStringLiteral("Start");
        dasas.titles[2] = QStringLiteral("End");
        const QString balance = OneLine(TextOf(state.DasaBalanceText)).simplified();
        setter.AddTable(QStringLiteral("Vimshottari Dasa"),
                        QStringLiteral("Dasa Balance at Birth : ") + balance, std::move(dasas));
    }
}

} // namespace kelvaro
