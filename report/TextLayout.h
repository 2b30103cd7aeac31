#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kelvaro {

/// The longest line of the report, in characters.
inline constexpr std::size_t pageWidth = 80;
inline constexpr std::string_view lineEnd = "\r\n";
/// The form feed that stands between two pages.
inline constexpr char pageEnd = '\f';

/// The characters of a UTF-8 text: its code points. A byte that belongs to no code point counts as one.
std::size_t CharacterCount(std::string_view utf8);

/// The first characters of the text, or the whole where it has no more than `count`; a view into it.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

/// The text cut to `width` characters, or padded to them with blanks on the right.
std::string Field(std::string_view text, std::size_t width);

/// The `Field` of the text from its character `start` on, counted from 1. Raises OverflowError for 0.
std::string FieldFrom(std::string_view text, std::size_t start, std::size_t width);

/// The text cut to `width` characters, or padded to them with blanks on the left.
std::string RightField(std::string_view text, std::size_t width);

/// The text cut to `width` characters, or padded to them on both sides; the odd blank goes to the right.
std::string Centred(std::string_view text, std::size_t width);

} // namespace kelvaro
