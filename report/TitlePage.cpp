#include "report/TitlePage.h"

#include "report/TextLayout.h"
#include "runtime/Texts.h"
#include "store/database/Recordset.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// A line of the page: a text behind what stands before it. A text that is too long goes on under its own
/// beginning.
struct TitleLine {
    std::string head;
    std::string text;
};

using TitleLines = std::vector<TitleLine>;

void AddBlankLines(std::size_t count, TitleLines &lines) {
    lines.insert(lines.end(), count, {});
}

void AddGroup(std::span<const LabelledField> group, const UserDetailsForm &form, TitleLines &lines) {
    AddBlankLines(betweenGroups, lines);
    for (const auto &[label, text] : group) {
        std::string head(indent, ' ');
        lines.push_back({head.append(Field(label, labelWidth)).append(": "), form.*text});
    }
}

/// Fields that are empty are left out, with their labels and separators.
void AddOwner(store::Connection &connection, TitleLines &lines) {
    store::Recordset owner;
    owner.Open("select * From personalDetails", connection);
    if (owner.IsEndOfFile()) {
        return;
    }
    bool startsLine = true;
    for (const OwnerField &field : ownerFields) {
        startsLine = startsLine || field.startsLine;
        const std::string stored = owner.Line(field.field);
        const std::string_view text = Trimmed(stored);
        if (text.empty()) {
            continue;
        }
        if (startsLine) {
            lines.push_back({std::string(indent, ' '), {}});
        }
        lines.back()
            .text.append(startsLine ? std::string_view() : field.separator)
            .append(field.label)
            .append(text);
        startsLine = false;
    }
}

/// Each line in its turn, with the lines that its text goes on in as long as the page has room for them: no
/// name, however long, drives what stands below it off the page.
void LayOut(const TitleLines &lines, ReportPages &pages) {
    std::size_t spare = pages.LinesLeft() - lines.size();
    for (const TitleLine &line : lines) {
        const std::size_t start = CharacterCount(line.head);
        const auto texts = Wrapped(line.text, pageWidth - start, 1 + spare);
        spare -= texts.size() - 1;
        std::string head = line.head;
        for (const std::string &text : texts) {
            pages.AddLine(head + text);
            head.assign(start, ' ');
        }
    }
}

void AddInvocation(ReportPages &pages) {
    pages.AddBlankLines(2);
    pages.AddLine("                         AUM GANESHAYA NAMAH");
    pages.AddLine("           JANANI JANMA SOUKHYANAM VARDHINEE KULA SAMPADAM");
    pages.AddLine("           PADAVI POORVA PUNYANAM  LIKHYATE  JANMA PATRIKA");
}

} // namespace

void AddTitlePage(const UserDetailsForm &form, store::Connection &connection, ReportPages &pages) {
    AddInvocation(pages);
    pages.AddBlankLines(betweenGroups);
    pages.AddHeader();
    pages.AddRule('_', ruleWidth);
    TitleLines lines;
    for (const auto &group : groups) {
        AddGroup(group, form, lines);
    }
    AddBlankLines(2, lines);
    lines.push_back({std::string(ruleWidth, '_'), {}});
    AddOwner(connection, lines);
    LayOut(lines, pages);
}

} // namespace kelvaro
