#include "drawing/HouseFonts.h"

#include <QFontDatabase>
#include <QString>
#include <QStringList>

/// The fonts lie in a static library, whose resources the linker leaves out unless they are asked for. The
/// macro wants to stand outside of all namespaces.
static void LoadFonts() {
    Q_INIT_RESOURCE(fonts);
}

namespace kelvaro {

namespace {

/// The family of some files of fonts, made known to the application.
QString FamilyIn(std::initializer_list<const char *> files) {
    LoadFonts();
    QString family;
    for (const char *file : files) {
        const int font =
            QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/%1.otf").arg(QLatin1String(file)));
        family = QFontDatabase::applicationFontFamilies(font).value(0, family);
    }
    return family;
}

const QString &SerifFamily() {
    static const QString family = FamilyIn({"LinLibertine_R", "LinLibertine_RB"});
    return family;
}

const QString &SansFamily() {
    static const QString family = FamilyIn({"LinBiolinum_R", "LinBiolinum_RB"});
    return family;
}

QFont HouseFont(const QString &family, QFont::StyleHint likeness, double points) {
    // Letters that are set apart have no ligatures; this is the least that sets them apart.
    constexpr double leastSpacing = 100.02; // percent
    QFont font(family);
    font.setStyleHint(likeness);
    font.setPointSizeF(points);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::PercentageSpacing, leastSpacing);
    return font;
}

} // namespace

QFont SerifFont(double points, Weight weight) {
    QFont font = HouseFont(SerifFamily(), QFont::Serif, points);
    font.setBold(weight == Weight::Bold);
    return font;
}

QFont SansFont(double points, Weight weight) {
    QFont font = HouseFont(SansFamily(), QFont::SansSerif, points);
    font.setBold(weight == Weight::Bold);
    return font;
}

} // namespace kelvaro
