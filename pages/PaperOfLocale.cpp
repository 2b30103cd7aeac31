#include "pages/PaperOfLocale.h"

#include <algorithm>
#include <array>

namespace kelvaro {

namespace {

constexpr std::array<QLocale::Territory, 15> letterTerritories{
    QLocale::Belize,       QLocale::Canada,      QLocale::Chile,
    QLocale::Colombia,     QLocale::CostaRica,   QLocale::ElSalvador,
    QLocale::Guatemala,    QLocale::Mexico,      QLocale::Nicaragua,
    QLocale::Panama,       QLocale::Philippines, QLocale::PuertoRico,
    QLocale::UnitedStates, QLocale::Venezuela,   QLocale::DominicanRepublic};

} // namespace

QPageSize::PageSizeId PaperOf(QLocale::Territory territory) {
    return std::ranges::find(letterTerritories, territory) != letterTerritories.end() ? QPageSize::Letter
                                                                                      : QPageSize::A4;
}

QPageSize::PageSizeId UsualPaper() {
    for (const char *variable : {"LC_ALL", "LC_PAPER", "LANG"}) {
        const QString locale = qEnvironmentVariable(variable);
        if (!locale.isEmpty()) {
            return PaperOf(QLocale(locale).territory());
        }
    }
    return PaperOf(QLocale::system().territory());
}

} // namespace kelvaro
