#include "store/masters/MasterRules.h"

#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "store/database/NameMatch.h"

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

bool BeginsWith(std::string_view text, std::string_view beginning) {
    return SameName(text.substr(0, beginning.size()), beginning);
}

} // namespace kelvaro::store
