#include "pages/PdfAuthor.h"

namespace kelvaro {

namespace {

/// The text between two others, the first of which is searched from the end.
QByteArray LastBetween(const QByteArray &text, const char *before, const char *after) {
    const qsizetype found = text.lastIndexOf(before);
    if (found < 0) {
        return {};
    }
    const qsizetype start = found + static_cast<qsizetype>(qstrlen(before));
    const qsizetype end = text.indexOf(after, start);
    return end < 0 ? QByteArray() : text.mid(start, end - start).trimmed();
}

/// The number of the object that a dictionary refers to as "/Info 1 0 R".
QByteArray InfoNumber(const QByteArray &trailer) {
    return LastBetween(trailer, "/Info ", " 0 R");
}

/// A text as PDF writes any: in UTF-16, digit by digit.
QByteArray PdfText(const QString &text) {
    QByteArray digits("<FEFF");
    for (const QChar unit : text) {
        digits += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0').toUpper();
    }
    return digits + '>';
}

} // namespace

QByteArray WithAuthor(const QByteArray &document, const QString &author) {
    const QByteArray trailer = LastBetween(document, "trailer", "startxref");
    const QByteArray tableStart = LastBetween(document, "startxref", "%%EOF");
    const QByteArray number = InfoNumber(trailer);
    const qsizetype object = document.indexOf("\n" + number + " 0 obj");
    // The texts of the properties may have ">>" in their letters.
    const qsizetype end = document.indexOf("\n>>\nendobj", object);
    if (number.isEmpty() || object < 0 || end < 0 || !trailer.endsWith(">>")) {
        return document;
    }
    const QByteArray properties = document.mid(object + 1, end - object);
    QByteArray result = document;
    const qsizetype newObject = result.size();
    result += properties + "/Author " + PdfText(author) + "\n>>\nendobj\n";
    const qsizetype newTable = result.size();
    result += "xref\n" + number + " 1\n" + QByteArray::number(newObject).rightJustified(10, '0') +
              " 00000 n \ntrailer\n" + trailer.chopped(2) + "/Prev " + tableStart + "\n>>\nstartxref\n" +
              QByteArray::number(newTable) + "\n%%EOF\n";
    return result;
}

} // namespace kelvaro
