#pragma once

#include <QString>

namespace sandogh {

// Whole numbers held as digit text (barcodes of 13 digits and more), worked on as text
// so that no digit is lost to a 64-bit or floating point conversion.
class DigitText {
public:
    // The numeric value a text starts with, as the proposed barcode takes it: leading
    // blanks skipped, then the digits up to the first other character, without leading
    // zeros; "0" when there is none ("abc", "", "000").
    static QString leadingNumber(const QString& text);
    // A number of digit text plus one: "6260000000009" -> "6260000000010", "999" -> "1000".
    // Characters other than ASCII digits are taken as the end of the number.
    static QString plusOne(const QString& digits);
};

}  // namespace sandogh
