#include "report/TitlePage.h"

#include "report/TextLayout.h"
#include "runtime/Texts.h"
#include "store/database/Recordset.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace kelvaro {

namespace {

constexpr std::size_t indent = 5;
constexpr std::size_t labelWidth = 22;
constexpr std::size_t ruleWidth = 70;
constexpr std::size_t betweenGroups = 3;

struct LabelledField {
    std::string_view label;
    std::string UserDetailsForm::*text;
};

constexpr std::array<LabelledField, 29> labelledFields{{
    {"Name", &UserDetailsForm::txtGName},
    {"Sex", &UserDetailsForm::txtSex},
    {"Date of Birth", &UserDetailsForm::Txt_BC_Date},
    {"Time of Birth", &UserDetailsForm::txtTimeOfBirth},
    {"LMT", &UserDetailsForm::txtlmt},
    {"GMT", &UserDetailsForm::txtgmt},
    {"Time Zone", &UserDetailsForm::txtTimeZone},
    {"Ishta Ghati", &UserDetailsForm::txtIshtaGhati},
    {"Birth County", &UserDetailsForm::txtCountry},
    {"Birth City", &UserDetailsForm::txtCity},
    {"Latitude", &UserDetailsForm::txtLatutude},
    {"Longitude", &UserDetailsForm::txtLongitude},
    {"Sun Rise", &UserDetailsForm::txtSunRise},
    {"Sun Set", &UserDetailsForm::txtSunSet},
    {"Ayanamsa", &UserDetailsForm::txtAyanamsa},

    {"Vedic Day", &UserDetailsForm::txtVedic},
    {"Gregorian Day", &UserDetailsForm::txtGregorian},
    {"Solar Date", &UserDetailsForm::txtSolarDate},
    {"Lunar Sukladi Date", &UserDetailsForm::txtSLunarDate},
    {"Lunar Krishnadi Date", &UserDetailsForm::txtKLunarDate},
    {"Kaliyuga Year", &UserDetailsForm::txtKaliyugaYear},
    {"Ayana", &UserDetailsForm::txtAyana},

    {"Janma Lagna", &UserDetailsForm::txtLagna},
    {"Janma Rasi", &UserDetailsForm::txtRasi},
    {"Star", &UserDetailsForm::txtStar},
    {"Tithi", &UserDetailsForm::txtTithi},
    {"Paksha", &UserDetailsForm::txtPaksha},
    {"Yogam", &UserDetailsForm::txtYogam},
    {"Karnam", &UserDetailsForm::txtKarnam},
}};

constexpr std::span<const LabelledField> allFields(labelledFields);
constexpr std::array<std::span<const LabelledField>, 3> groups{
    allFields.subspan(0, 15), allFields.subspan(15, 7), allFields.subspan(22, 7)};

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

/// A text that is too long for its line goes on under its own beginning.
void AddContinued(std::string_view head, std::string_view text, ReportPages &pages) {
    const std::size_t start = CharacterCount(head);
    const std::size_t width = pageWidth - start;
    const std::size_t characters = CharacterCount(text);
    std::string line(head);
    for (std::size_t shown = 0; shown == 0 || shown < characters; shown += width) {
        pages.AddLine(line + FieldFrom(text, shown + 1, width));
        line.assign(start, ' ');
    }
}

void AddInvocation(ReportPages &pages) {
    pages.AddBlankLines(2);
    pages.AddLine("                         AUM GANESHAYA NAMAH");
    pages.AddLine("           JANANI JANMA SOUKHYANAM VARDHINEE KULA SAMPADAM");
    pages.AddLine("           PADAVI POORVA PUNYANAM  LIKHYATE  JANMA PATRIKA");
}

void AddGroup(std::span<const LabelledField> group, const UserDetailsForm &form, ReportPages &pages) {
    for (const auto &[label, text] : group) {
        std::string head(indent, ' ');
        head.append(Field(label, labelWidth)).append(": ");
        AddContinued(head, form.*text, pages);
    }
}

/// Fields that are empty are left out, with their labels and separators.
void AddOwner(store::Connection &connection, ReportPages &pages) {
    store::Recordset owner;
    owner.Open("select * From personalDetails", connection);
    if (owner.IsEndOfFile()) {
        return;
    }
    const std::string margin(indent, ' ');
    std::string line;
    const auto endLine = [&] {
        if (!line.empty()) {
            AddContinued(margin, line, pages);
            line.clear();
        }
    };
    for (const OwnerField &field : ownerFields) {
        if (field.startsLine) {
            endLine();
        }
        const std::string stored = owner.Text(field.field);
        const std::string_view text = Trimmed(stored);
        if (!text.empty()) {
            line.append(line.empty() ? std::string_view() : field.separator).append(field.label).append(text);
        }
    }
    endLine();
}

} // namespace

void AddTitlePage(const UserDetailsForm &form, store::Connection &connection, ReportPages &pages) {
    AddInvocation(pages);
    pages.AddBlankLines(betweenGroups);
    pages.AddHeader();
    pages.AddRule('_', ruleWidth);
    for (const auto &group : groups) {
        pages.AddBlankLines(betweenGroups);
        AddGroup(group, form, pages);
    }
    pages.AddBlankLines(2);
    pages.AddRule('_', ruleWidth);
    AddOwner(connection, pages);
}

} // namespace kelvaro
