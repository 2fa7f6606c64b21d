#pragma once

#include <string>
#include <string_view>

namespace sandogh {

// Small helpers for Persian text held as UTF-8. Persian keyboards and older data
// disagree on a few letters and digits: Arabic yeh "ي" (U+064A) and kaf "ك"
// (U+0643) against Persian yeh "ی" (U+06CC) and keheh "ک" (U+06A9), and ASCII
// digits against Persian (U+06F0..U+06F9) and Arabic-Indic (U+0660..U+0669) ones.
class TextHelpers {
public:
    // Removes every single quote ('), as is done to a typed barcode before a lookup.
    static std::string stripQuotes(std::string_view text);

    // Arabic yeh, alef maksura "ى" (U+0649) and Arabic kaf become Persian yeh and keheh.
    static std::string toPersianLetters(std::string_view text);
    // Persian yeh and keheh become Arabic yeh and kaf, the forms of the stored word tables.
    static std::string toArabicLetters(std::string_view text);

    // Persian and Arabic-Indic digits become ASCII digits; everything else is kept.
    static std::string toAsciiDigits(std::string_view text);
    // ASCII digits become Persian digits; everything else is kept.
    static std::string toPersianDigits(std::string_view text);

    // The form every search compares: Persian letters, ASCII digits and no zero-width
    // non-joiner (U+200C), so "چاي" finds "چای" and "۶۲۶۰" finds "6260". Stored text is
    // never rewritten with it; both the typed words and the searched column are folded.
    static std::string searchKey(std::string_view text);
};

}  // namespace sandogh
