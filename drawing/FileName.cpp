#include "drawing/FileName.h"

#include "drawing/ShownText.h"

#include <QRegularExpression>

namespace kelvaro {

QString FileNameOf(const QString &chartName) {
    constexpr qsizetype mostCharacters = 60;
    // Of all file systems that a report may be carried to.
    static const QRegularExpression refused(QStringLiteral(R"([/\\:*?"<>|])"));
    static const QRegularExpression ends(QStringLiteral(R"(^[\s.]+|[\s.]+$)"));
    QString name = chartName.left(mostCharacters);
    if (!name.isEmpty() && name.back().isHighSurrogate()) {
        name.chop(1);
    }
    name = OneLine(name, mostCharacters).replace(refused, QStringLiteral("_")).remove(ends);
    return name.isEmpty() ? QStringLiteral("Horoscope") : name;
}

} // namespace kelvaro
