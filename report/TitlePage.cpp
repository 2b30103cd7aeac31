#include "report/TitlePage.h"

#include "report/TextLayout.h"
#include "report/TitleFields.h"

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

void AddOwner(store::Connection &connection, TitleLines &lines) {
    for (const std::string &line : ReadLetterhead(connection).lines) {
        lines.push_back({std::string(indent, ' '), line});
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
    for (const std::string_view line : invocation) {
        pages.AddLine(line);
    }
}

} // namespace

void AddTitlePage(const UserDetailsForm &form, store::Connection &connection, ReportPages &pages) {
    AddInvocation(pages);
    pages.AddBlankLines(betweenGroups);
    pages.AddHeader();
    pages.AddRule('_', ruleWidth);
    TitleLines lines;
    for (const auto &group : fieldGroups) {
        AddGroup(group, form, lines);
    }
    AddBlankLines(2, lines);
    lines.push_back({std::string(ruleWidth, '_'), {}});
    AddOwner(connection, lines);
    LayOut(lines, pages);
}

} // namespace kelvaro
