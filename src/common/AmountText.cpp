#include "AmountText.h"

#include <charconv>
#include <cmath>
#include <stdexcept>

#include "TextHelpers.h"

namespace sandogh {

namespace {

// Significant digits the value is read to before rounding.
constexpr int kSignificantDigits = 15;
constexpr int kWholeDecimals = 0;
constexpr int kQuantityDecimals = 3;

// Adds one unit in the last place of the digits of intPart followed by frac.
void incrementLastPlace(std::string& intPart, std::string& frac) {
    for (auto it = frac.rbegin(); it != frac.rend(); ++it) {
        if (*it != '9') {
            ++*it;
            return;
        }
        *it = '0';
    }
    for (auto it = intPart.rbegin(); it != intPart.rend(); ++it) {
        if (*it != '9') {
            ++*it;
            return;
        }
        *it = '0';
    }
    intPart.insert(intPart.begin(), '1');
}

std::string withThousands(const std::string& digits) {
    std::string out;
    out.reserve(digits.size() + digits.size() / 3);
    const std::size_t n = digits.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0) {
            out.push_back(',');
        }
        out.push_back(digits[i]);
    }
    return out;
}

// The text with separators gone, digits in ASCII, the Arabic decimal separator
// as "." and no blanks, tabs or line breaks.
std::string cleaned(std::string_view text) {
    const std::string ascii = TextHelpers::toAsciiDigits(AmountText::stripSeparators(text));
    std::string out;
    out.reserve(ascii.size());
    for (std::size_t i = 0; i < ascii.size(); ++i) {
        const char c = ascii[i];
        if (c == '\xD9' && i + 1 < ascii.size() && ascii[i + 1] == '\xAB') {
            out.push_back('.');
            ++i;
        } else if (c != ' ' && c != '\t' && c != '\n' && c != '\r') {
            out.push_back(c);
        }
    }
    return out;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Reads the leading number of a cleaned text. Returns how many characters it
// took (0 when there is no number) and stores the value; a value out of the range
// of a double is reported as nullopt with a non-zero length.
std::size_t leadingNumber(const std::string& s, std::optional<double>& value) {
    std::size_t i = 0;
    bool negative = false;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) {
        negative = s[i] == '-';
        ++i;
    }
    std::string number;
    bool anyDigit = false;
    while (i < s.size() && isDigit(s[i])) {
        number.push_back(s[i++]);
        anyDigit = true;
    }
    if (i < s.size() && s[i] == '.') {
        number.push_back(s[i++]);
        while (i < s.size() && isDigit(s[i])) {
            number.push_back(s[i++]);
            anyDigit = true;
        }
    }
    if (!anyDigit) {
        value = 0.0;
        return 0;
    }
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
        std::size_t j = i + 1;
        std::string exponent = "e";
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) {
            exponent.push_back(s[j++]);
        }
        if (j < s.size() && isDigit(s[j])) {
            while (j < s.size() && isDigit(s[j])) {
                exponent.push_back(s[j++]);
            }
            number += exponent;
            i = j;
        }
    }
    double v = 0.0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), v);
    if (result.ec == std::errc::result_out_of_range) {
        // Too small reads as zero; too large is no usable amount.
        const bool tiny = number.find("e-") != std::string::npos;
        value = tiny ? std::optional<double>(0.0) : std::nullopt;
        return i;
    }
    if (result.ec != std::errc()) {
        value = 0.0;
        return 0;
    }
    value = negative ? -v : v;
    return i;
}

}  // namespace

bool AmountText::isUsable(double value) {
    return std::isfinite(value) && std::fabs(value) < kLimit;
}

std::string AmountText::unreadable() {
    return "ناخوانا";
}

std::string AmountText::refusal(std::string_view typed) {
    // "... is not a proper number or is larger than allowed"
    return "«" + std::string(typed) + "» عدد درستي نيست يا از حد مجاز بزرگتر است";
}

std::string AmountText::formatWhole(double value) {
    return std::isfinite(value) ? format(value, kWholeDecimals) : unreadable();
}

std::string AmountText::formatDecimals(double value) {
    return std::isfinite(value) ? format(value, kQuantityDecimals) : unreadable();
}

std::string AmountText::format(double value, int maxDecimals) {
    if (!std::isfinite(value)) {
        throw std::invalid_argument("an amount must be a finite number");
    }
    if (maxDecimals < 0 || maxDecimals > kMaxDecimals) {
        throw std::out_of_range("an amount is shown with 0.." + std::to_string(kMaxDecimals) +
                                " decimals, not " + std::to_string(maxDecimals));
    }
    const bool negative = std::signbit(value);
    const double magnitude = std::fabs(value);
    if (magnitude == 0.0) {
        return "0";
    }
    // "d.dddddddddddddde+XX": the first kSignificantDigits digits and the exponent.
    char buffer[40];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, magnitude,
                                       std::chars_format::scientific, kSignificantDigits - 1);
    const std::string_view sci(buffer, static_cast<std::size_t>(written.ptr - buffer));
    const std::size_t ePos = sci.find('e');
    std::string digits;
    digits.push_back(sci[0]);
    digits.append(sci.substr(2, ePos - 2));
    std::string_view expText = sci.substr(ePos + 1);
    if (!expText.empty() && expText.front() == '+') {
        expText.remove_prefix(1);
    }
    int exponent = 0;
    std::from_chars(expText.data(), expText.data() + expText.size(), exponent);

    const int intDigits = exponent + 1;
    std::string intPart;
    std::string frac;
    if (intDigits >= kSignificantDigits) {
        intPart =
            digits + std::string(static_cast<std::size_t>(intDigits - kSignificantDigits), '0');
    } else if (intDigits > 0) {
        intPart = digits.substr(0, static_cast<std::size_t>(intDigits));
        frac = digits.substr(static_cast<std::size_t>(intDigits));
    } else {
        intPart = "0";
        frac = std::string(static_cast<std::size_t>(-intDigits), '0') + digits;
    }
    const auto keep = static_cast<std::size_t>(maxDecimals);
    if (frac.size() > keep) {
        const bool roundUp = frac[keep] >= '5';
        frac.resize(keep);
        if (roundUp) {
            incrementLastPlace(intPart, frac);
        }
    }
    while (!frac.empty() && frac.back() == '0') {
        frac.pop_back();
    }
    const std::size_t firstNonZero = intPart.find_first_not_of('0');
    intPart = firstNonZero == std::string::npos ? "0" : intPart.substr(firstNonZero);
    if (intPart == "0" && frac.empty()) {
        return "0";
    }
    std::string out = negative ? "-" : "";
    out += withThousands(intPart);
    if (!frac.empty()) {
        out.push_back('.');
        out += frac;
    }
    return out;
}

std::string AmountText::stripSeparators(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == ',') {
            continue;
        }
        if (text[i] == '\xD9' && i + 1 < text.size() && text[i + 1] == '\xAC') {
            ++i;
            continue;
        }
        out.push_back(text[i]);
    }
    return out;
}

double AmountText::parse(std::string_view text) {
    std::optional<double> value;
    leadingNumber(cleaned(text), value);
    return value.value_or(0.0);
}

std::optional<double> AmountText::parseStrict(std::string_view text) {
    const std::string s = cleaned(text);
    std::optional<double> value;
    const std::size_t used = leadingNumber(s, value);
    if (used == 0 || used != s.size() || !value || !isUsable(*value)) {
        return std::nullopt;
    }
    return value;
}

}  // namespace sandogh
