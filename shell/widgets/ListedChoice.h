#pragma once

#include "store/masters/PlaceLists.h"

#include <QComboBox>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

/// A combo box takes any text. These tell which row of its list it names, whether it was picked, completed or
/// typed; a text that names none counts as no choice.

/// Lets a box complete what is typed, at a fixed width of so many characters, whatever stands in its list,
/// which may be thousands of rows long. A name that is typed has at most 255 characters.
void PrepareList(QComboBox *box, int columns);

/// The same, and the rows that begin with what is typed show below the box.
void PrepareListWithCandidates(QComboBox *box, int columns);

/// Alt+Up closes the open list of a box, as Alt+Down does.
void LetAltUpClose(QComboBox *box);

/// "05" to "12", say: all of one width.
QStringList NumbersFromTo(int first, int last, int width);

QStringList TextsOf(std::span<const std::string_view> texts);

/// The rows of a list of zones.
std::vector<store::ListItem> RowsOf(const std::vector<store::Zone> &zones);

/// Puts rows with their keys into the list and chooses none.
void FillList(QComboBox *box, const std::vector<store::ListItem> &items);

/// Puts rows without keys into the list and chooses none.
void FillList(QComboBox *box, const QStringList &texts);

/// Chooses the row of that text; another text stands in the box without a row.
void ShowText(QComboBox *box, const std::string &text);

/// The text of the chosen row; empty where none is chosen.
QString ChosenText(const QComboBox *box);

/// The key of the chosen row; 0 where none is chosen.
std::int32_t ChosenKey(const QComboBox *box);

/// Chooses the row of that key; none for a key without a row.
void ChooseKey(QComboBox *box, std::int32_t key);

/// Calls back whenever the key of the chosen row has become another one.
void OnChoice(QComboBox *box, const std::function<void()> &chosen);

} // namespace kelvaro
