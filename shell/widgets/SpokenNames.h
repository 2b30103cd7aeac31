#pragma once

class QWidget;

namespace kelvaro {

/// Lets the fields of a window be read aloud with their names, which are their own or those of the labels
/// that they belong to. Of a box the readers of screens take the text that stands in it for its name, and
/// know nothing of the line in which it is typed: its name goes to its description and to its line. Lists
/// know nothing of their labels.
void NameFields(QWidget &window);

} // namespace kelvaro
