#include "TextHelpers.h"

#include <algorithm>
#include <iterator>

namespace sandogh {

namespace {

// Every character handled here is a two-byte UTF-8 sequence with a lead byte of
// 0xD9..0xDB. A continuation byte never equals a lead byte, so matching pairs
// byte by byte cannot cut another character in half.
struct Pair {
    char lead;
    char trail;
};

constexpr Pair kArabicYeh{'\xD9', '\x8A'};
constexpr Pair kAlefMaksura{'\xD9', '\x89'};
constexpr Pair kArabicKaf{'\xD9', '\x83'};
constexpr Pair kPersianYeh{'\xDB', '\x8C'};
constexpr Pair kPersianKeheh{'\xDA', '\xA9'};
// First digit (zero) of each digit block; the other nine follow in the trail byte.
constexpr Pair kPersianZero{'\xDB', '\xB0'};
constexpr Pair kArabicIndicZero{'\xD9', '\xA0'};

bool isPairAt(std::string_view text, std::size_t i, Pair p) {
    return i + 1 < text.size() && text[i] == p.lead && text[i + 1] == p.trail;
}

// Digit 0..9 when a Persian or Arabic-Indic digit starts at i, else -1.
int extendedDigitAt(std::string_view text, std::size_t i) {
    if (i + 1 >= text.size()) {
        return -1;
    }
    for (const Pair zero : {kPersianZero, kArabicIndicZero}) {
        if (text[i] == zero.lead) {
            const int d =
                static_cast<unsigned char>(text[i + 1]) - static_cast<unsigned char>(zero.trail);
            if (d >= 0 && d <= 9) {
                return d;
            }
        }
    }
    return -1;
}

void append(std::string& out, Pair p) {
    out.push_back(p.lead);
    out.push_back(p.trail);
}

}  // namespace

std::string TextHelpers::stripQuotes(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    std::copy_if(text.begin(), text.end(), std::back_inserter(out),
                 [](char c) { return c != '\''; });
    return out;
}

std::string TextHelpers::toPersianLetters(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isPairAt(text, i, kArabicYeh) || isPairAt(text, i, kAlefMaksura)) {
            append(out, kPersianYeh);
            ++i;
        } else if (isPairAt(text, i, kArabicKaf)) {
            append(out, kPersianKeheh);
            ++i;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
}

std::string TextHelpers::toArabicLetters(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isPairAt(text, i, kPersianYeh)) {
            append(out, kArabicYeh);
            ++i;
        } else if (isPairAt(text, i, kPersianKeheh)) {
            append(out, kArabicKaf);
            ++i;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
}

std::string TextHelpers::toAsciiDigits(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int d = extendedDigitAt(text, i);
        if (d >= 0) {
            out.push_back(static_cast<char>('0' + d));
            ++i;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
}

std::string TextHelpers::toPersianDigits(std::string_view text) {
    std::string out;
    out.reserve(text.size() * 2);
    for (const char c : text) {
        if (c >= '0' && c <= '9') {
            out.push_back(kPersianZero.lead);
            out.push_back(
                static_cast<char>(static_cast<unsigned char>(kPersianZero.trail) + (c - '0')));
        } else {
            out.push_back(c);
        }
    }
    return out;
}

std::string TextHelpers::searchKey(std::string_view text) {
    static constexpr std::string_view kZeroWidthNonJoiner = "\xE2\x80\x8C";
    std::string folded = toAsciiDigits(toPersianLetters(text));
    std::string out;
    out.reserve(folded.size());
    for (std::size_t i = 0; i < folded.size(); ++i) {
        if (std::string_view(folded).substr(i, kZeroWidthNonJoiner.size()) == kZeroWidthNonJoiner) {
            i += kZeroWidthNonJoiner.size() - 1;
            continue;
        }
        out.push_back(folded[i]);
    }
    return out;
}

}  // namespace sandogh
