#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sandogh {

// Amounts and quantities as the screens show them, with "," between thousands,
// and the way a shown or typed text is turned back into a number.
//
// The patterns are those of the shop: "##,###" for whole amounts and
// "##,###.###" for quantities and decimal amounts. Digits come from the value
// read to 15 significant digits and are rounded half away from zero (2.5 -> 3,
// 1.0005 -> 1.001), as the old formatting did. Two corners are deliberately not
// copied: the old pattern showed zero as an empty text and a whole number with a
// dangling dot ("12,500."); here zero is "0" and a whole number has no dot, so a
// total of nothing never looks like a missing value.
class AmountText {
public:
    // Most decimals format() accepts.
    static constexpr int kMaxDecimals = 15;
    // Amounts and quantities stay below this magnitude: the amount columns keep 15 digits
    // before the point, a double carries 15 significant digits exactly, and the card
    // terminal's 64-bit amount field is far above it.
    static constexpr double kLimit = 1e15;

    // Finite and below kLimit in magnitude: a value the database and the devices carry.
    static bool isUsable(double value);
    // What a value that is not usable shows in place of its digits (read back from a
    // damaged row, for instance): "ناخوانا", unreadable.
    static std::string unreadable();
    // The message for an amount text that is not a usable number, naming what was typed.
    static std::string refusal(std::string_view typed);

    // "##,###": 1234567.5 -> "1,234,568", -1500 -> "-1,500", 0 -> "0"; unreadable() for
    // infinity and NaN, so that a screen or report showing a damaged value goes on.
    static std::string formatWhole(double value);
    // "##,###.###": 12500 -> "12,500", 1234.5 -> "1,234.5", 0.12345 -> "0.123";
    // unreadable() for infinity and NaN.
    static std::string formatDecimals(double value);
    // Up to maxDecimals decimals (0..kMaxDecimals), trailing zeros dropped. Throws
    // std::invalid_argument for infinity or NaN and std::out_of_range for maxDecimals.
    static std::string format(double value, int maxDecimals);

    // Removes every "," (and the Arabic thousands separator U+066C).
    static std::string stripSeparators(std::string_view text);

    // The numeric value of a shown or typed amount: separators removed, blanks
    // ignored anywhere, Persian and Arabic digits read as digits and the Arabic
    // decimal separator U+066B as ".", then the leading number is taken (sign,
    // digits, decimals, exponent written E or D) and the rest ignored. Empty or
    // non-numeric text, and a number too large for a double, give 0.
    // Hexadecimal and octal prefixes (&H, &O) are not read.
    static double parse(std::string_view text);

    // Like parse(), but the whole text must be one number: std::nullopt for empty
    // text, trailing characters ("nan" and "inf" are no numbers) or a number that is
    // not usable (kLimit or more). For checking what a user typed or a device or file
    // sent before it is used.
    static std::optional<double> parseStrict(std::string_view text);
};

}  // namespace sandogh
