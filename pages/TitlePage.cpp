#include "pages/TitlePage.h"

#include "drawing/PointRuler.h"
#include "drawing/ShownText.h"
#include "drawing/TextOf.h"
#include "pages/PageType.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace kelvaro {

namespace {

// In points.
constexpr double leastGap = 18; // between two parts of the page
constexpr double widestGap = 44;
constexpr double shareAbove = 0.35; // of the room that is left over
constexpr double ornamentWidth = 84;
constexpr double ornamentGap = 8;
constexpr double rule = 0.5;
constexpr double thickRule = 0.9;
constexpr double gapOfColumns = 28;
constexpr double labelGap = 12;
constexpr double fieldGap = 4.5;
constexpr double groupGap = 11;
constexpr double glancePadding = 9;
constexpr double leastGlanceGap = 14;

/// In letters: the longest texts that are shown of the person's and of the owner's.
struct Longest {
    qsizetype person;
    qsizetype owner;
};

/// Tried until the page has room for them. The owner's address should not suffer from a long name.
constexpr std::array<Longest, 6> longestTexts{
    {{255, 255}, {120, 255}, {60, 255}, {30, 255}, {30, 120}, {30, 60}}};

TextStyle InvocationStyle() {
    constexpr double spacing = 106; // percent
    QFont font = SerifFont(10.5);
    font.setLetterSpacing(QFont::PercentageSpacing, spacing);
    return {font, lineColour, 17};
}
TextStyle OwnerNameStyle() {
    return {SerifFont(13, Weight::Bold), nameColour, 18};
}
TextStyle OwnerStyle() {
    return {SerifFont(10), figureColour, 14};
}
TextStyle KickerStyle() {
    return {SansFont(9.5, Weight::Bold), figureColour, 15};
}
TextStyle NameStyle() {
    return {SerifFont(25), lineColour, 31};
}
TextStyle GlanceStyle() {
    return {SerifFont(11.5, Weight::Bold), nameColour, 15.5};
}

struct GlanceEntry {
    QString label;
    QString text;
};
using GlanceEntries = std::array<GlanceEntry, 4>;

/// As wide as the entries need, or with fixed shares of a room that is too narrow for them.
std::array<double, 4> GlanceWidths(const GlanceEntries &entries, double room) {
    constexpr double tolerance = 0.5;
    constexpr std::array<double, 4> shares{0.15, 0.15, 0.27, 0.43};
    std::array<double, 4> widths{};
    std::ranges::transform(entries, widths.begin(), [](const GlanceEntry &entry) {
        return std::max(WidthOf(entry.label, LabelStyle().font), WidthOf(entry.text, GlanceStyle().font)) +
               tolerance;
    });
    if (std::accumulate(widths.begin(), widths.end(), 0.0) > room) {
        std::ranges::transform(shares, widths.begin(), [room](double share) { return share * room; });
    }
    return widths;
}

/// What the first page says, its texts shortened where they are longer than given.
class TitlePage {
public:
    TitlePage(const UserDetailsForm &form, const std::string &dasaBalance, const Letterhead &letterhead,
              Longest longest, double width)
        : form_(form), dasaBalance_(dasaBalance), letterhead_(letterhead), longest_(longest), width_(width) {}

    /// The parts of the page, from top to bottom.
    std::vector<PageBlock> Parts() const {
        std::vector<PageBlock> parts{Invocation()};
        if (!letterhead_.lines.empty()) {
            parts.push_back(Owner());
        }
        parts.push_back(Person());
        parts.push_back(Glance());
        parts.push_back(Fields());
        return parts;
    }

private:
    /// The program's own texts are short, and stay whole.
    QString Shown(const std::string &text) const {
        constexpr qsizetype longestOwn = 60;
        const QString whole = TextOf(text);
        return OneLine(whole, whole.size() <= longestOwn ? longestOwn : longest_.person).simplified();
    }

    PageBlock Invocation() const {
        PageBlock block;
        for (const std::string_view line : invocation) {
            block.AddLines(TextOf(line).simplified(), InvocationStyle(), 0, width_, Qt::AlignHCenter);
        }
        block.Skip(ornamentGap);
        block.AddRule((width_ - ornamentWidth) / 2, ornamentWidth, thickRule);
        return block;
    }

    PageBlock Owner() const {
        PageBlock block;
        bool isName = !letterhead_.name.empty();
        for (const std::string &line : letterhead_.lines) {
            block.AddLines(OneLine(TextOf(line), longest_.owner).simplified(),
                           isName ? OwnerNameStyle() : OwnerStyle(), 0, width_, Qt::AlignHCenter);
            isName = false;
        }
        return block;
    }

    PageBlock Person() const {
        PageBlock block;
        block.AddLines(QStringLiteral("Horoscope"), KickerStyle(), 0, width_, Qt::AlignHCenter);
        block.AddLines(Shown(form_.txtGName), NameStyle(), 0, width_, Qt::AlignHCenter);
        return block;
    }

    /// Lagna, Rasi, Star and the balance of the dasa beside one another between two rules.
    PageBlock Glance() const {
        const GlanceEntries entries{{
            {QStringLiteral("Janma Lagna"), Shown(form_.txtLagna)},
            {QStringLiteral("Janma Rasi"), Shown(form_.txtRasi)},
            {QStringLiteral("Star"), Shown(form_.txtStar)},
            {QStringLiteral("Dasa Balance at Birth"), Shown(dasaBalance_)},
        }};
        const std::array<double, 4> widths = GlanceWidths(entries, width_ - 3 * leastGlanceGap);
        const double gap = (width_ - std::accumulate(widths.begin(), widths.end(), 0.0)) / 3;
        PageBlock block;
        block.AddRule(0, width_, thickRule);
        double left = 0;
        for (std::size_t entry = 0; entry < entries.size(); ++entry) {
            block.MoveTo(glancePadding);
            block.AddLines(entries.at(entry).label, LabelStyle(), left, widths.at(entry));
            block.AddLines(entries.at(entry).text, GlanceStyle(), left, widths.at(entry));
            left += widths.at(entry) + gap;
        }
        block.MoveTo(block.Height() + glancePadding);
        block.AddRule(0, width_, thickRule);
        return block;
    }

    /// The person to the left, calendar and almanac to the right.
    PageBlock Fields() const {
        PageBlock block;
        const double columnWidth = (width_ - gapOfColumns) / 2;
        AddGroup(fieldGroups[0], 0, columnWidth, block);
        block.MoveTo(0);
        AddGroup(fieldGroups[1], columnWidth + gapOfColumns, columnWidth, block);
        block.Skip(groupGap);
        AddGroup(fieldGroups[2], columnWidth + gapOfColumns, columnWidth, block);
        return block;
    }

    void AddGroup(std::span<const LabelledField> group, double left, double width, PageBlock &block) const {
        const double indent = LabelWidth() + labelGap;
        for (const LabelledField &field : group) {
            const double top = block.Top();
            block.AddLines(TextOf(field.label), LabelStyle(), left, width);
            const double belowLabel = block.Top();
            block.MoveTo(top);
            block.AddLines(Shown(form_.*field.text), FieldStyle(), left + indent, width - indent);
            block.MoveTo(std::max(block.Top(), belowLabel));
            block.Skip(fieldGap);
        }
    }

    static double LabelWidth() {
        double width = 0;
        for (const LabelledField &field : labelledFields) {
            width = std::max(width, WidthOf(TextOf(field.label), LabelStyle().font));
        }
        return width;
    }

    const UserDetailsForm &form_;
    const std::string &dasaBalance_;
    const Letterhead &letterhead_;
    Longest longest_;
    double width_;
};

double HeightOf(const std::vector<PageBlock> &parts) {
    double height = 0;
    for (const PageBlock &part : parts) {
        height += part.Height();
    }
    return height;
}

} // namespace

void SetTitlePage(const UserDetailsForm &form, const std::string &dasaBalance, const Letterhead &letterhead,
                  PageSetter &setter) {
    for (const Longest &longest : longestTexts) {
        const auto parts = TitlePage(form, dasaBalance, letterhead, longest, setter.Area().width()).Parts();
        const double gap = (setter.RoomLeft() - HeightOf(parts)) / static_cast<double>(parts.size() - 1);
        if (gap < leastGap && &longest != &longestTexts.back()) {
            continue;
        }
        const double shownGap = std::min(gap, widestGap);
        const double spare = (gap - shownGap) * static_cast<double>(parts.size() - 1);
        setter.Skip(std::max(spare, 0.0) * shareAbove);
        for (const PageBlock &part : parts) {
            setter.AddBlock(part);
            setter.Skip(shownGap);
        }
        return;
    }
}

} // namespace kelvaro
