#pragma once

#include <string>
#include <string_view>

namespace sandogh {

// Whole numbers in Persian words, as printed under amounts on receipts. The words
// keep the Arabic letter forms of the stored tables (yeh "ي", kaf "ك").
class PersianWords {
public:
    // Most digits that are spelled; longer numbers read as kVeryLarge.
    static constexpr int kMaxDigits = 15;
    // Text for numbers of more than kMaxDigits digits.
    static constexpr std::string_view kVeryLarge = "بسيار بزرگ";

    // Words of 0..999 ("" for 0); throws std::out_of_range for other values.
    static std::string group(int value);

    // Words of a whole number: "" for 0 (zero amounts print no words), kVeryLarge
    // from 10^15 and for +infinity. A fractional part is rounded half away from
    // zero first. Throws std::invalid_argument for a negative number or NaN.
    static std::string number(double value);

    // Words of a number given as its decimal digits (leading zeros allowed, so
    // that any length can be passed). Throws std::invalid_argument when digits is
    // empty or holds anything but ASCII digits.
    static std::string numberText(std::string_view digits);
};

}  // namespace sandogh
