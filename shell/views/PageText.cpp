#include "shell/views/PageText.h"

#include "drawing/ShownText.h"

#include <QObject>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>

namespace kelvaro {

namespace {

constexpr char16_t noBreakSpace = u'\u00a0';
/// A paragraph of a page is laid out in one go, so it is not let grow for ever.
constexpr qsizetype longestLine = 1000;
/// A line takes more time and memory than its letters, and every view has panes of its own.
constexpr int mostLines = 1000;

struct Entity {
    QLatin1String name;
    char16_t character;
};

constexpr std::array<Entity, 14> entities{{{QLatin1String("amp"), u'&'},
                                           {QLatin1String("lt"), u'<'},
                                           {QLatin1String("gt"), u'>'},
                                           {QLatin1String("quot"), u'"'},
                                           {QLatin1String("apos"), u'\''},
                                           {QLatin1String("nbsp"), noBreakSpace},
                                           {QLatin1String("deg"), u'\u00b0'},
                                           {QLatin1String("middot"), u'\u00b7'},
                                           {QLatin1String("copy"), u'\u00a9'},
                                           {QLatin1String("ndash"), u'\u2013'},
                                           {QLatin1String("mdash"), u'\u2014'},
                                           {QLatin1String("hellip"), u'\u2026'},
                                           {QLatin1String("bull"), u'\u2022'},
                                           {QLatin1String("euro"), u'\u20ac'}}};

constexpr std::array<QLatin1String, 3> unseen{QLatin1String("script"), QLatin1String("style"),
                                              QLatin1String("title")};
constexpr std::array<QLatin1String, 9> paragraphs{
    QLatin1String("p"),     QLatin1String("h1"), QLatin1String("h2"),
    QLatin1String("h3"),    QLatin1String("h4"), QLatin1String("h5"),
    QLatin1String("table"), QLatin1String("ul"), QLatin1String("ol")};
constexpr std::array<QLatin1String, 8> lines{QLatin1String("br"),  QLatin1String("div"), QLatin1String("tr"),
                                             QLatin1String("li"),  QLatin1String("dt"),  QLatin1String("dd"),
                                             QLatin1String("pre"), QLatin1String("hr")};
constexpr std::array<QLatin1String, 2> cells{QLatin1String("td"), QLatin1String("th")};

template <class Names> bool IsAmong(const Names &names, QStringView name) {
    return std::ranges::any_of(
        names, [name](QLatin1String each) { return name.compare(each, Qt::CaseInsensitive) == 0; });
}

/// Reads HTML from its beginning to its end, once.
class HtmlReader {
public:
    explicit HtmlReader(QStringView page) : page_(page) {}

    QString Read() {
        while (place_ < page_.size()) {
            const QChar character = page_.at(place_);
            if (character == u'<' && IsMarkup()) {
                ReadMarkup();
            } else if (character == u'&') {
                ReadEntity();
            } else {
                Add(character);
                ++place_;
            }
        }
        return text_;
    }

private:
    bool IsMarkup() const {
        const QChar next = place_ + 1 < page_.size() ? page_.at(place_ + 1) : QChar(u' ');
        return next.isLetter() || next == u'/' || next == u'!' || next == u'?';
    }

    /// The place behind the text that ends something; behind the page where nothing does.
    qsizetype Behind(QLatin1String end) const {
        const qsizetype found = page_.indexOf(end, place_, Qt::CaseInsensitive);
        return found < 0 ? page_.size() : found + end.size();
    }

    void ReadMarkup() {
        if (page_.sliced(place_).startsWith(QLatin1String("<!--"))) {
            place_ = Behind(QLatin1String("-->"));
            return;
        }
        const bool isEnd = page_.at(place_ + 1) == u'/';
        const qsizetype start = place_ + (isEnd ? 2 : 1);
        qsizetype end = start;
        while (end < page_.size() && page_.at(end).isLetterOrNumber()) {
            ++end;
        }
        const QStringView name = page_.sliced(std::min(start, page_.size()), end - start);
        place_ = EndOfTag(end);
        if (IsAmong(unseen, name) && !isEnd) {
            place_ = Behind(QLatin1String("</"));
            while (place_ < page_.size() && !page_.sliced(place_).startsWith(name, Qt::CaseInsensitive)) {
                place_ = Behind(QLatin1String("</"));
            }
            place_ = EndOfTag(place_);
        } else if (IsAmong(paragraphs, name)) {
            Break(2);
        } else if (IsAmong(lines, name)) {
            Break(1);
        } else if (IsAmong(cells, name)) {
            Add(u' ');
        }
    }

    /// The place behind a tag; a ">" within quotes does not end it.
    qsizetype EndOfTag(qsizetype place) const {
        QChar quote;
        for (; place < page_.size(); ++place) {
            const QChar character = page_.at(place);
            if (!quote.isNull()) {
                quote = character == quote ? QChar() : quote;
            } else if (character == u'"' || character == u'\'') {
                quote = character;
            } else if (character == u'>') {
                return place + 1;
            }
        }
        return place;
    }

    void ReadEntity() {
        constexpr qsizetype longest = 10;
        const QStringView rest = page_.sliced(place_ + 1, std::min(longest, page_.size() - place_ - 1));
        const qsizetype end = rest.indexOf(u';');
        const auto character = end < 0 ? std::nullopt : CharacterOf(rest.first(end));
        if (!character) {
            Add(u'&');
            ++place_;
            return;
        }
        for (const char16_t unit : QChar::fromUcs4(*character)) {
            Add(QChar(unit));
        }
        place_ += end + 2;
    }

    static std::optional<char32_t> CharacterOf(QStringView name) {
        if (name.startsWith(u'#')) {
            const bool isHexadecimal = name.sliced(1).startsWith(u'x', Qt::CaseInsensitive);
            bool isNumber = false;
            const uint number = name.sliced(isHexadecimal ? 2 : 1).toUInt(&isNumber, isHexadecimal ? 16 : 10);
            const bool isCharacter =
                isNumber && number <= QChar::LastValidCodePoint && !QChar::isSurrogate(number);
            return isCharacter ? std::optional<char32_t>(number) : std::nullopt;
        }
        const auto *const found =
            std::ranges::find_if(entities, [name](const Entity &each) { return name == each.name; });
        return found == entities.end() ? std::nullopt : std::optional<char32_t>(found->character);
    }

    /// Adds a character; white space of any length is one blank.
    void Add(QChar character) {
        if (character.isSpace() && character != noBreakSpace) {
            isBlankWanted_ = true;
            return;
        }
        if (isBlankWanted_ && !text_.isEmpty() && text_.back() != u'\n') {
            text_ += u' ';
        }
        isBlankWanted_ = false;
        text_ += character;
    }

    /// Ends the line, and for 2 the paragraph, unless it has ended.
    void Break(int most) {
        isBlankWanted_ = false;
        int ended = 0;
        while (ended < most && ended < text_.size() && text_.at(text_.size() - 1 - ended) == u'\n') {
            ++ended;
        }
        if (!text_.isEmpty()) {
            text_ += QString(most - ended, u'\n');
        }
    }

    QStringView page_;
    qsizetype place_ = 0;
    QString text_;
    bool isBlankWanted_ = false;
};

bool IsUnseen(QChar character) {
    const bool isFormat =
        character.category() == QChar::Other_Format && character != u'\u200c' && character != u'\u200d';
    const bool isControl =
        character.category() == QChar::Other_Control && character != u'\n' && character != u'\t';
    return isFormat || isControl;
}

bool EndsLine(QChar character) {
    return character == u'\n' || character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

QString InLines(const QString &text) {
    QString broken;
    qsizetype length = 0;
    int begun = 1; // lines
    for (const QChar character : text) {
        const bool isEnd = EndsLine(character);
        const bool isTooLong = length >= longestLine && !character.isLowSurrogate();
        if (isEnd || isTooLong) {
            if (++begun > mostLines) {
                return broken + QObject::tr("\n\u2026 The page goes on: \"^ Maximize\" shows all of it.");
            }
            broken += u'\n';
            length = 0;
        }
        if (!isEnd) {
            broken += character;
            ++length;
        }
    }
    return broken;
}

QString KindOf(const QString &contentType) {
    return contentType.section(u';', 0, 0).trimmed().toLower();
}

bool IsHtml(const QString &contentType) {
    const QString kind = KindOf(contentType);
    return kind == QLatin1String("text/html") || kind == QLatin1String("application/xhtml+xml");
}

QString Decoded(const QByteArray &page, const QString &contentType) {
    const QString charset =
        contentType.section(QStringLiteral("charset="), 1, 1, QString::SectionCaseInsensitiveSeps)
            .section(u';', 0, 0)
            .remove(u'"')
            .trimmed();
    const auto encoding = QStringConverter::encodingForName(charset.toLatin1().constData());
    return QStringDecoder(encoding.value_or(QStringConverter::Utf8)).decode(page);
}

} // namespace

bool IsTextPage(const QString &contentType) {
    const QString kind = KindOf(contentType);
    return kind.isEmpty() || kind == QLatin1String("text/plain") || IsHtml(contentType);
}

QString TextOfPage(const QByteArray &page, const QString &contentType) {
    const QString decoded = Decoded(page, contentType);
    QString text = IsHtml(contentType) ? HtmlReader(decoded).Read() : decoded;
    text.removeIf(IsUnseen);
    return InLines(Legible(text).trimmed()).trimmed();
}

} // namespace kelvaro
