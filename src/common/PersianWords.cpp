#include "PersianWords.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace sandogh {

namespace {

using Words = std::array<std::string_view, 10>;

constexpr Words kHundreds = {"",      "يكصد", "دويست", "سيصد",  "چهارصد",
                             "پانصد", "ششصد", "هفتصد", "هشتصد", "نهصد"};
// Index 0 and 1 are unused: tens digit 1 takes a teen word.
constexpr Words kTens = {"", "", "بيست", "سي", "چهل", "پنجاه", "شصت", "هفتاد", "هشتاد", "نود"};
constexpr Words kTeens = {"ده",     "يازده",  "دوازده", "سيزده", "چهارده",
                          "پانزده", "شانزده", "هفده",   "هجده",  "نوزده"};
constexpr Words kUnits = {"", "يك", "دو", "سه", "چهار", "پنج", "شش", "هفت", "هشت", "نه"};

constexpr std::string_view kAnd = " و ";
constexpr int kGroups = 5;
// Scale word of each three-digit group, from the trillions to the units.
constexpr std::array<std::string_view, kGroups> kScales = {" تريليون", " ميليارد", " ميليون",
                                                           " هزار", ""};

// 10^15: the first value with more than kMaxDigits digits.
constexpr double kFirstTooLarge = 1e15;

}  // namespace

std::string PersianWords::group(int value) {
    if (value < 0 || value > 999) {
        throw std::out_of_range("a group of words takes 0..999, not " + std::to_string(value));
    }
    if (value == 0) {
        return {};
    }
    if (value == 100) {
        return std::string(kHundreds[1]);
    }
    const std::string text = std::to_string(value);
    const std::size_t length = text.size();
    const int hundreds = value / 100;
    const int tens = value / 10 % 10;
    const int units = value % 10;

    std::string out(kHundreds[static_cast<std::size_t>(hundreds)]);
    if (tens == 1) {
        out += kAnd;
        out += kTeens[static_cast<std::size_t>(units)];
    } else if (tens >= 2) {
        out += kAnd;
        out += kTens[static_cast<std::size_t>(tens)];
    }
    if (tens != 1 && units != 0) {
        out += kAnd;
        out += kUnits[static_cast<std::size_t>(units)];
    }
    // Without a hundreds word the text starts with a joining word; drop it.
    if (length < 3) {
        out.erase(0, kAnd.size());
    }
    return out;
}

std::string PersianWords::numberText(std::string_view digits) {
    if (digits.empty() ||
        !std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        throw std::invalid_argument("not a whole number in decimal digits: \"" +
                                    std::string(digits) + "\"");
    }
    const std::size_t firstSignificant = digits.find_first_not_of('0');
    if (firstSignificant == std::string_view::npos) {
        return {};
    }
    digits.remove_prefix(firstSignificant);
    if (digits.size() > static_cast<std::size_t>(kMaxDigits)) {
        return std::string(kVeryLarge);
    }
    std::string padded(static_cast<std::size_t>(kMaxDigits) - digits.size(), '0');
    padded += digits;

    std::string out;
    bool written = false;
    for (int g = 0; g < kGroups; ++g) {
        const std::size_t at = static_cast<std::size_t>(g) * 3;
        const int value =
            (padded[at] - '0') * 100 + (padded[at + 1] - '0') * 10 + (padded[at + 2] - '0');
        if (value == 0) {
            continue;
        }
        if (written) {
            out += kAnd;
        }
        out += group(value);
        out += kScales[static_cast<std::size_t>(g)];
        written = true;
    }
    return out;
}

std::string PersianWords::number(double value) {
    if (std::isnan(value)) {
        throw std::invalid_argument("cannot spell a value that is not a number");
    }
    if (value < 0) {
        throw std::invalid_argument("cannot spell a negative amount in words");
    }
    // fabs turns -0.0 into 0.0, whose text has no sign.
    const double whole = std::fabs(std::round(value));
    if (whole >= kFirstTooLarge) {
        return std::string(kVeryLarge);
    }
    char buffer[32];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, whole, std::chars_format::fixed, 0);
    return numberText(std::string_view(buffer, static_cast<std::size_t>(result.ptr - buffer)));
}

}  // namespace sandogh
