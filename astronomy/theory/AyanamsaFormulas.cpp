#include "astronomy/theory/AyanamsaFormulas.h"

#include "astronomy/theory/AngleReduction.h"
#include "runtime/Trigonometry.h"

namespace kelvaro {

double FnFindLahiri(double clockCenturies) {
    const double T = clockCenturies;
    const double node = FnNormalize360((933060 - 6962911 * T + 7.5 * T * T) / 3600);
    const double twiceSun = (2013816 + 259205536 * T) / 3600;
    const double sinNode = Sine(node * pi / 180);
    const double sinTwiceSun = Sine(twiceSun * pi / 180);
    return ((1.27 * sinTwiceSun + 17.23 * sinNode) - (5025.64 + 1.11 * T) * T - 80861.27) / 3600;
}

double FnFindKP(std::int32_t days) {
    return ((3014.33085 / 365.25) * days / 60) / 3600 + 22.3602777777778 + 0.000833333333333333;
}

double FnFindRaman(int year, std::int32_t days) {
    const double sinceNewYear = ((3019.999999999998 / 365.25) * days / 60) / 3600;
    return ((151.0 / 3) * (year - 397)) / 3600 + sinceNewYear;
}

double FnFindCustom(double zeroYear, double progress, int year, std::int32_t days) {
    return ((year - zeroYear) * progress) / 3600 + (((progress * 60) / 365.25) * days / 60) / 3600;
}

} // namespace kelvaro
