#pragma once

#include "horoscope/record/ChartForm.h"
#include "store/database/Recordset.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

/// The bodies of a cell in a chart window as a text chart shows them: the first three characters of each,
/// with a blank between ("Sun  12.5" becomes "Sun"). The reducers differ in what parts the bodies of the
/// label: CR LF, two blanks or one blank.
std::string ReduceCellLines(std::string_view label);
std::string ReduceCellPairs(std::string_view label);
std::string ReduceCellBlanks(std::string_view label);

/// The characters of a body's name that they keep.
std::string_view ReducedName(std::string_view name);

/// The text with one blank for every three that stand together; what is left over of a run stays.
std::string TightenBlanks(std::string_view text);

// The drawings below are lines centred on the page. The first twelve fields of the present row are the cells
// 1 to 12; without a row the cells are empty. Each cell shows up to 36 characters of its text, in cuts that
// follow the room in the drawing. They raise StoreError for a row of fewer fields.

/// A drawing by signs, Aries in cell 1, with the title in the middle. A line below it names the signs row by
/// row, in the first three characters of `signNames` (Aries first).
std::vector<std::string> SouthTextChart(const store::Recordset &cells, std::string_view title,
                                        std::span<const std::string, 12> signNames);

/// A drawing by houses, house 1 in cell 1, with the title on a line above. `firstSign` is the sign, 1 to 12,
/// of house 1; each house has its sign number in the corner of its cell. Raises OverflowError for any other
/// sign.
std::vector<std::string> NorthTextChart(const store::Recordset &cells, std::string_view title, int firstSign);

/// What the drawing of a style shows of the cells of the present row: blanks stand for the characters that it
/// has no room for. Empty texts for an unknown style. Raises as the drawings do.
std::array<std::string, 12> CellsShown(const store::Recordset &cells, ChartStyle style);

/// A drawing by signs as in `SouthTextChart`, with the title on a line above.
std::vector<std::string> EastTextChart(const store::Recordset &cells, std::string_view title,
                                       std::span<const std::string, 12> signNames);

} // namespace kelvaro
