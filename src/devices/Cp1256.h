#pragma once

#include <QByteArray>
#include <QString>

namespace sandogh {

// The Windows Arabic code page 1256, one byte per character, in which the
// card terminal and the pole displays take Persian text. Qt's own converters
// do not offer it, so the upper half of the page is tabled here.
class Cp1256 {
public:
    // Characters outside the page become '?'. The Persian letters that the
    // page lacks take the Arabic form the page has (Persian yeh as Arabic yeh),
    // and Persian and Arabic-Indic digits become ASCII digits, as Windows does.
    static QByteArray encode(const QString& text);
    static QString decode(const QByteArray& bytes);
    // The byte of one character, or '?' when the page has no such character.
    static char encodeChar(char16_t c);
};

}  // namespace sandogh
