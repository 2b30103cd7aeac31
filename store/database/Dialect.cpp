#include "store/database/Dialect.h"

#include "runtime/Texts.h"
#include "store/database/Connection.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kelvaro::store {

namespace {

constexpr std::string_view nameCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";

/// Takes the next word off the front of a statement: a name, a name in brackets or a single sign; empty at
/// the end.
std::string_view TakeWord(std::string_view &rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t\r\n"), rest.size()));
    if (rest.empty()) {
        return {};
    }
    std::size_t length = rest.find_first_not_of(nameCharacters);
    if (rest.front() == '[') {
        const std::size_t bracket = rest.find(']');
        length = bracket == std::string_view::npos ? bracket : bracket + 1;
    } else if (length == 0) {
        length = 1;
    }
    const std::string_view word = rest.substr(0, length);
    rest.remove_prefix(word.size());
    return word;
}

bool IsTableName(std::string_view word) {
    return !word.empty() &&
           (word.front() == '[' || nameCharacters.find(word.front()) != std::string_view::npos);
}

} // namespace

std::string Translated(std::string_view statement) {
    std::string_view rest = statement;
    std::string translated(statement);
    if (SameIgnoringCase(TakeWord(rest), "delete") && TakeWord(rest) == "*") {
        translated[translated.find('*')] = ' ';
    }
    return translated;
}

std::string TableOf(std::string_view statement) {
    constexpr std::array<std::string_view, 3> wordsBeforeTable{"from", "into", "update"};
    std::string_view rest = statement;
    for (std::string_view word = TakeWord(rest); !word.empty(); word = TakeWord(rest)) {
        if (std::ranges::any_of(wordsBeforeTable,
                                [word](std::string_view each) { return SameIgnoringCase(each, word); })) {
            std::string table(TakeWord(rest));
            std::erase_if(table, [](char sign) { return sign == '[' || sign == ']'; });
            return table;
        }
    }
    return {};
}

std::string Quoted(std::string_view text) {
    if (text.find('\'') != std::string_view::npos) {
        throw StoreError("The quote in " + OneLine(text) + " cannot go into the database. Leave it out.");
    }
    std::string quoted = "'";
    quoted.append(text).append("'");
    return quoted;
}

std::optional<WholeRows> AsWholeRows(std::string_view statement) {
    std::string_view rest = statement;
    if (!SameIgnoringCase(TakeWord(rest), "select") || TakeWord(rest) != "*" ||
        !SameIgnoringCase(TakeWord(rest), "from")) {
        return std::nullopt;
    }
    const std::string_view table = TakeWord(rest);
    const std::string_view condition = rest;
    const std::string_view next = TakeWord(rest);
    if (!IsTableName(table) || !(next.empty() || next == ";" || SameIgnoringCase(next, "where") ||
                                 SameIgnoringCase(next, "order"))) {
        return std::nullopt;
    }
    const std::string name(table);
    return WholeRows{name, "select rowid, * from " + name + std::string(condition)};
}

} // namespace kelvaro::store
