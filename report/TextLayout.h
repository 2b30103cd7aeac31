#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// The text in lines of up to `width` characters, broken between words, and inside a word that is longer than
/// a line; an empty text has one empty line. What `mostLines`, 1 or more, have no room for is left out, and
/// the last line then ends with "...". Takes no more time than those lines need.
std::vector<std::string> Wrapped(std::string_view text, std::size_t width, std::size_t mostLines);

enum class Align { Left, Right };

/// Where the texts of a table's column stand in a line, in characters. Columns of a table do not overlap.
struct TableColumn {
    std::size_t start;
    std::size_t width;
    Align align = Align::Left;
};

/// A line of a table: each text in its column, cut where it is longer. Texts beyond the last column are left
/// out.
std::string TableLine(std::span<const TableColumn> columns, std::span<const std::string> texts);

} // namespace kelvaro
