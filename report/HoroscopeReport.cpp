#include "report/HoroscopeReport.h"

#include "report/ChartPages.h"
#include "report/DasaPages.h"
#include "report/ReportPages.h"
#include "report/TablePages.h"
#include "report/TitlePage.h"

#include <utility>

namespace kelvaro {

std::string ComposeReport(const HoroscopeState &state, const HoroscopeForms &forms,
                          store::Connection &connection, AntraSection antra) {
    ReportPages pages;
    AddTitlePage(forms.frm_UserDetails, connection, pages);
    AddChartsPage(state, forms, connection, pages);
    AddBhavaPage(state, forms, connection, pages);
    AddPlanetsPage(state, forms, pages);
    AddVargasPage(state, forms, pages);
    AddBhuktiPages(forms.Frm_Dasa, pages);
    if (antra == AntraSection::With) {
        AddAntraPages(forms.Frm_Dasa, pages);
    }
    return std::move(pages).Text();
}

} // namespace kelvaro
