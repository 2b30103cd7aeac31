#include "report/TitleFields.h"

#include "runtime/Texts.h"
#include "store/database/Recordset.h"

namespace kelvaro {

namespace {

/// A field of the letterhead with what parts it from the field before it on its line.
struct OwnerField {
    std::string_view field;
    bool startsLine;
    std::string_view separator;
    std::string_view label;
};

constexpr std::array<OwnerField, 8> ownerFields{{
    {"Name", true, "", ""},
    {"Address", true, "", ""},
    {"Address2", false, ", ", ""},
    {"City", true, "", ""},
    {"Zipcode", false, " - ", ""},
    {"Country", false, ", ", ""},
    {"Phone", false, ", ", "Phone : "},
    {"EMail", true, "", "E-Mail : "},
}};

} // namespace

Letterhead ReadLetterhead(store::Connection &connection) {
    store::Recordset owner;
    owner.Open("select * From personalDetails", connection);
    if (owner.IsEndOfFile()) {
        return {};
    }
    Letterhead letterhead{std::string(Trimmed(owner.Line(ownerFields.front().field))), {}};
    bool startsLine = true;
    for (const OwnerField &field : ownerFields) {
        startsLine = startsLine || field.startsLine;
        const std::string stored = owner.Line(field.field);
        const std::string_view text = Trimmed(stored);
        if (text.empty()) {
            continue;
        }
        if (startsLine) {
            letterhead.lines.emplace_back();
        }
        letterhead.lines.back()
            .append(startsLine ? std::string_view() : field.separator)
            .append(field.label)
            .append(text);
        startsLine = false;
    }
    return letterhead;
}

} // namespace kelvaro
