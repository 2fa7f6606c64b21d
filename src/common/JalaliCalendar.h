#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "JalaliDate.h"
#include "PlatformDate.h"

namespace sandogh {

// The Jalali (solar Hijri) calendar of the shop: a table of year starts for
// 1280..1580 and a table of month lengths, both built once on first use, and the
// conversions between platform day numbers and Jalali date text "1404/01/05"
// (year unpadded, month and day two ASCII digits), the form kept in every date
// column and compared as text.
//
// Two directions of conversion are offered:
//  - toJalaliText() is the shop's own conversion, kept as it has always been,
//    including the deliberate 20 March correction (see kCorrectedYears); it is
//    what screens show and documents store as "today".
//  - toJalaliDate() / toSerial() / addDays() / monthEnd() are exact inverses of
//    each other on the same tables, without that correction, so that date
//    arithmetic on texts always yields real dates.
class JalaliCalendar {
public:
    static constexpr int kFirstYear = 1280;
    static constexpr int kLastYear = 1580;
    // Table entry of the first year: 20 March 1901, the day before 1 Farvardin 1280.
    static constexpr DaySerial kFirstYearEntry = 445;
    // Upward search of toJalaliText() starts here.
    static constexpr int kSearchStartYear = 1390;
    // Conversion quirk kept on purpose: in these years 20 March is counted from the
    // start of the previous year (20 March 1999 reads as 1376/12/394); stored
    // documents carry such texts, so the conversion must go on producing them.
    static constexpr int kCorrectedYears[] = {1377, 1378};
    static constexpr unsigned kCorrectionMonth = 3;
    static constexpr unsigned kCorrectionDay = 20;
    // An empty date column reads as this mask text.
    static constexpr std::string_view kEmptyDateText = "____/__/__";

    // Fills the year and month tables unless already built; safe from any thread.
    // Every other routine calls it, so calling it up front is only a warm-up.
    static void buildTables();

    // 33-year arithmetic rule with floating-point divisions truncated.
    static bool isLeapYear(int year);
    // Table entry of a year (the day before its 1 Farvardin); throws
    // std::out_of_range outside kFirstYear..kLastYear.
    static DaySerial yearStart(int year);
    // Table length of a month (29 for month 12); throws std::out_of_range outside 1..12.
    static int monthLength(int month);

    // The shop's conversion of a platform date to Jalali text. Dates outside the
    // table give day counts beyond the year (or below 1); they are not rejected.
    static std::string toJalaliText(DaySerial date);
    // Persian name of the weekday of a platform date.
    static std::string_view weekdayName(DaySerial date);

    static bool isValidMonth(int month);
    // A year below 100 is first changed in place to year + 1300.
    static bool isValidYear(int& year);

    // Days in a month of a year: the table length, 30 for month 12 of a leap year.
    // Throws std::out_of_range for a year or month outside the tables.
    static int daysInMonth(int year, int month);
    static bool isValidDate(const JalaliDate& date);

    // Exact conversion of a platform date; std::nullopt outside 1280/01/01..1580/12/end.
    static std::optional<JalaliDate> toJalaliDate(DaySerial date);
    // Platform date of a Jalali day; throws std::out_of_range for an impossible day.
    static DaySerial toSerial(const JalaliDate& date);
    // Platform date of a canonical date text; std::nullopt when it is not one.
    static std::optional<DaySerial> toSerial(std::string_view text);

    // "1404/01/05" from its numbers; no range check.
    static std::string formatDateText(const JalaliDate& date);
    // Reads a canonical date text (exactly as formatDateText writes it) naming a
    // real day; std::nullopt otherwise.
    static std::optional<JalaliDate> parseDateText(std::string_view text);
    static bool isValidDateText(std::string_view text);
    // Reads a date as a user types it: blanks around, Persian or Arabic digits,
    // month and day of one or two digits, a year of one or two digits taken as
    // 13xx (see isValidYear). Returns the canonical text, or std::nullopt when
    // the text does not name a real day.
    static std::optional<std::string> normalizeDateText(std::string_view typed);

    // Canonical date text moved by a number of days. Throws std::invalid_argument
    // when text is not a canonical date text and std::out_of_range when the result
    // leaves the table.
    static std::string addDays(std::string_view text, int days);
    // Last day of the month of a canonical date text; throws std::invalid_argument.
    static std::string monthEnd(std::string_view text);
};

}  // namespace sandogh
