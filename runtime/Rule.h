#pragma once

#include "runtime/Notice.h"
#include "runtime/Numbers.h"
#include "runtime/Texts.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace kelvaro {

/// What a form asks of its fields: when it is broken, what is told then, and the control that takes the
/// focus.
template <typename Fields> struct Rule {
    bool (*isBroken)(const Fields &);
    std::string_view message;
    std::string_view focus; ///< name of the control; empty where the focus stays
};

/// Whether a text of the fields is blank.
template <auto text, typename Fields> bool LacksText(const Fields &fields) {
    return IsBlank(fields.*text);
}

/// Whether a text of the fields is no decimal number.
template <auto text, typename Fields> bool LacksNumber(const Fields &fields) {
    return !IsNumber(fields.*text);
}

/// Whether a text of the fields is longer than a name may be.
template <auto text, typename Fields> bool IsTooLong(const Fields &fields) {
    return CharactersIn(fields.*text) > longestName;
}

inline constexpr std::string_view nameTooLong = "A name has at most 255 characters.";

/// What the first broken rule tells; nothing where all are kept. A rule may rely on those before it.
template <typename Fields>
std::optional<Notice> FirstBroken(std::type_identity_t<std::span<const Rule<Fields>>> rules,
                                  const Fields &fields) {
    for (const Rule<Fields> &rule : rules) {
        if (rule.isBroken(fields)) {
            return Notice{std::string(rule.message), Notice::Icon::Information, std::string(rule.focus)};
        }
    }
    return std::nullopt;
}

} // namespace kelvaro
