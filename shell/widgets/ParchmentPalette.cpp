#include "shell/widgets/ParchmentPalette.h"

#include "drawing/ChartColours.h"

namespace kelvaro {

namespace {

constexpr QColor paleColour(152, 131, 104); // of what cannot be used
constexpr QColor linkColour(33, 66, 120);

} // namespace

QPalette ParchmentPalette() {
    QPalette colours(parchmentColour.darker(104), parchmentColour);
    colours.setColor(QPalette::WindowText, nameColour);
    colours.setColor(QPalette::Base, parchmentColour.lighter(106));
    colours.setColor(QPalette::AlternateBase, parchmentColour.lighter(102));
    colours.setColor(QPalette::Text, nameColour);
    colours.setColor(QPalette::ButtonText, nameColour);
    colours.setColor(QPalette::PlaceholderText, figureColour);
    colours.setColor(QPalette::Highlight, lineColour);
    colours.setColor(QPalette::HighlightedText, parchmentColour);
    colours.setColor(QPalette::Link, linkColour);
    colours.setColor(QPalette::LinkVisited, linkColour);
    for (const QPalette::ColorRole text : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        colours.setColor(QPalette::Disabled, text, paleColour);
    }
    return colours;
}

} // namespace kelvaro
