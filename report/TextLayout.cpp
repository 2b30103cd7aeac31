#include "report/TextLayout.h"

#include "runtime/RuntimeError.h"

#include <algorithm>

namespace kelvaro {

namespace {

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The bytes that a lead byte announces, itself included; 1 for a byte that leads nothing.
std::size_t AnnouncedLength(char byte) {
    const auto lead = static_cast<unsigned char>(byte);
    if (lead >= 0xF0U && lead < 0xF8U) {
        return 4;
    }
    if (lead >= 0xE0U && lead < 0xF0U) {
        return 3;
    }
    return lead >= 0xC0U && lead < 0xE0U ? 2 : 1;
}

/// The bytes of the first character of a text that is not empty.
std::size_t FirstCharacterLength(std::string_view text) {
    const std::size_t length = AnnouncedLength(text.front());
    if (length > text.size()) {
        return 1;
    }
    for (const char byte : text.substr(1, length - 1)) {
        if (!IsContinuation(byte)) {
            return 1;
        }
    }
    return length;
}

/// The text behind its first characters; empty where it has no more than these.
std::string_view Behind(std::string_view text, std::size_t characters) {
    for (; characters > 0 && !text.empty(); --characters) {
        text.remove_prefix(FirstCharacterLength(text));
    }
    return text;
}

std::string Padded(std::size_t left, std::string_view text, std::size_t right) {
    std::string padded(left, ' ');
    padded.append(text).append(right, ' ');
    return padded;
}

} // namespace

std::size_t CharacterCount(std::string_view utf8) {
    std::size_t count = 0;
    for (; !utf8.empty(); ++count) {
        utf8.remove_prefix(FirstCharacterLength(utf8));
    }
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    return text.substr(0, text.size() - Behind(text, count).size());
}

std::string Field(std::string_view text, std::size_t width) {
    const std::string_view shown = FirstCharacters(text, width);
    return Padded(0, shown, width - CharacterCount(shown));
}

std::string FieldFrom(std::string_view text, std::size_t start, std::size_t width) {
    if (start == 0) {
        throw OverflowError("Overflow: the characters of a text are counted from 1");
    }
    return Field(Behind(text, start - 1), width);
}

std::string RightField(std::string_view text, std::size_t width) {
    const std::string_view shown = FirstCharacters(text, width);
    return Padded(width - CharacterCount(shown), shown, 0);
}

std::string Centred(std::string_view text, std::size_t width) {
    const std::string_view shown = FirstCharacters(text, width);
    const std::size_t room = width - CharacterCount(shown);
    return Padded(room / 2, shown, room - room / 2);
}

std::vector<std::string> Wrapped(std::string_view text, std::size_t width, std::size_t mostLines) {
    constexpr std::string_view leftOut = "...";
    std::vector<std::string> lines;
    do {
        std::string_view line = FirstCharacters(text, width);
        std::string_view rest = text.substr(line.size());
        if (!rest.empty() && lines.size() + 1 == mostLines) {
            lines.push_back(std::string(FirstCharacters(line, width - leftOut.size())).append(leftOut));
            return lines;
        }
        const auto blank = text.substr(0, line.size() + 1).rfind(' ');
        if (!rest.empty() && blank != std::string_view::npos && blank > 0) {
            line = text.substr(0, blank);
            rest = text.substr(blank + 1);
        }
        lines.emplace_back(line);
        text = rest;
    } while (!text.empty());
    return lines;
}

std::string TableLine(std::span<const TableColumn> columns, std::span<const std::string> texts) {
    std::string line;
    std::size_t end = 0; // in characters; a text may have more bytes
    for (std::size_t i = 0; i < std::min(columns.size(), texts.size()); ++i) {
        const TableColumn &column = columns[i];
        line.append(column.start - end, ' ');
        line +=
            column.align == Align::Left ? Field(texts[i], column.width) : RightField(texts[i], column.width);
        end = column.start + column.width;
    }
    return line;
}

} // namespace kelvaro
