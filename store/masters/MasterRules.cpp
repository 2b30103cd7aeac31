#include "store/masters/MasterRules.h"

#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"

namespace kelvaro::store {

bool IsNumber(std::string_view text) {
    try {
        NumberFromText(text);
        return true;
    } catch (const ConversionError &) {
        return false;
    }
}

bool IsWithin(std::string_view text, double lowest, double highest) {
    const double number = NumberFromText(text);
    return number >= lowest && number <= highest;
}

} // namespace kelvaro::store
