#include "JalaliCalendar.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <stdexcept>

#include "TextHelpers.h"

namespace sandogh {

namespace {

constexpr int kYearCount = JalaliCalendar::kLastYear - JalaliCalendar::kFirstYear + 1;
constexpr int kMonths = 12;
// Two-digit years are years of this century.
constexpr int kTwoDigitYearBase = 1300;
constexpr int kTwoDigitYearLimit = 100;

struct Tables {
    // Entry of year y at y - kFirstYear: the day before its 1 Farvardin.
    std::array<DaySerial, kYearCount> yearStart{};
    std::array<int, kMonths> monthLength{};
    // Days of the year before the first day of month m, at m - 1.
    std::array<int, kMonths> daysBefore{};
    // Last day of 1580: the end of what the exact conversion accepts.
    DaySerial lastDay = 0;
};

Tables buildTablesOnce() {
    Tables t;
    DaySerial day = JalaliCalendar::kFirstYearEntry;
    for (int y = JalaliCalendar::kFirstYear; y <= JalaliCalendar::kLastYear; ++y) {
        t.yearStart[static_cast<std::size_t>(y - JalaliCalendar::kFirstYear)] = day;
        day += 365;
        if (JalaliCalendar::isLeapYear(y)) {
            ++day;
        }
    }
    t.lastDay = day;
    for (int m = 1; m <= kMonths; ++m) {
        t.monthLength[static_cast<std::size_t>(m - 1)] = m <= 6 ? 31 : (m <= 11 ? 30 : 29);
    }
    int before = 0;
    for (int m = 1; m <= kMonths; ++m) {
        t.daysBefore[static_cast<std::size_t>(m - 1)] = before;
        before += t.monthLength[static_cast<std::size_t>(m - 1)];
    }
    return t;
}

// Function-local static: built on first use, exactly once, even with threads.
const Tables& tables() {
    static const Tables t = buildTablesOnce();
    return t;
}

DaySerial entryOf(const Tables& t, int year) {
    return t.yearStart[static_cast<std::size_t>(year - JalaliCalendar::kFirstYear)];
}

constexpr std::array<std::string_view, 7> kWeekdayNames = {
    "شنبه", "يکشنبه", "دوشنبه", "سه شنبه", "چهارشنبه", "پنج شنبه", "جمعه",
};

// A number as at least two digits, the way "00" formats it: 5 -> "05",
// 394 -> "394", -5 -> "-05".
void appendTwoDigits(std::string& out, std::int64_t value) {
    if (value < 0) {
        out.push_back('-');
        value = -value;
    }
    if (value < 10) {
        out.push_back('0');
    }
    out += std::to_string(value);
}

bool isCorrectedYear(int year) {
    return std::find(std::begin(JalaliCalendar::kCorrectedYears),
                     std::end(JalaliCalendar::kCorrectedYears),
                     year) != std::end(JalaliCalendar::kCorrectedYears);
}

bool isAsciiDigit(char c) {
    return c >= '0' && c <= '9';
}

// Value of a non-empty run of at most four ASCII digits, or -1.
int digitsValue(std::string_view s) {
    if (s.empty() || s.size() > 4 || !std::all_of(s.begin(), s.end(), isAsciiDigit)) {
        return -1;
    }
    int v = 0;
    for (const char c : s) {
        v = v * 10 + (c - '0');
    }
    return v;
}

// Splits "a/b/c" into its three parts; false unless there are exactly two slashes.
bool splitDate(std::string_view text, std::string_view parts[3]) {
    const std::size_t first = text.find('/');
    if (first == std::string_view::npos) {
        return false;
    }
    const std::size_t second = text.find('/', first + 1);
    if (second == std::string_view::npos || text.find('/', second + 1) != std::string_view::npos) {
        return false;
    }
    parts[0] = text.substr(0, first);
    parts[1] = text.substr(first + 1, second - first - 1);
    parts[2] = text.substr(second + 1);
    return true;
}

std::string_view trimBlanks(std::string_view s) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!s.empty() && blank(s.front())) {
        s.remove_prefix(1);
    }
    while (!s.empty() && blank(s.back())) {
        s.remove_suffix(1);
    }
    return s;
}

std::string quoted(std::string_view text) {
    std::string q = "\"";
    q += text;
    q += '"';
    return q;
}

}  // namespace

void JalaliCalendar::buildTables() {
    (void)tables();
}

bool JalaliCalendar::isLeapYear(int year) {
    const double a = std::trunc(static_cast<double>(year - 1073) * 8.0 / 33.0);
    const double b = std::trunc(static_cast<double>(year - 1074) * 8.0 / 33.0);
    return static_cast<long long>(a) - static_cast<long long>(b) == 1;
}

DaySerial JalaliCalendar::yearStart(int year) {
    if (year < kFirstYear || year > kLastYear) {
        throw std::out_of_range("Jalali year " + std::to_string(year) + " is outside " +
                                std::to_string(kFirstYear) + ".." + std::to_string(kLastYear));
    }
    return entryOf(tables(), year);
}

int JalaliCalendar::monthLength(int month) {
    if (!isValidMonth(month)) {
        throw std::out_of_range("month " + std::to_string(month) + " is outside 1..12");
    }
    return tables().monthLength[static_cast<std::size_t>(month - 1)];
}

std::string JalaliCalendar::toJalaliText(DaySerial date) {
    const Tables& t = tables();
    int y = kSearchStartYear;
    while (y < kLastYear) {
        if (entryOf(t, y) > date) {
            break;
        }
        ++y;
    }
    while (y > kFirstYear) {
        if (entryOf(t, y) < date) {
            break;
        }
        --y;
    }
    if (isCorrectedYear(y)) {
        const std::chrono::year_month_day g = PlatformDate::toDate(date);
        if (static_cast<unsigned>(g.month()) == kCorrectionMonth &&
            static_cast<unsigned>(g.day()) == kCorrectionDay) {
            --y;
        }
    }
    std::int64_t d = static_cast<std::int64_t>(date) - entryOf(t, y);
    int m = 1;
    while (m < kMonths && d > t.monthLength[static_cast<std::size_t>(m - 1)]) {
        d -= t.monthLength[static_cast<std::size_t>(m - 1)];
        ++m;
    }
    std::string out = std::to_string(y);
    out.push_back('/');
    appendTwoDigits(out, m);
    out.push_back('/');
    appendTwoDigits(out, d);
    return out;
}

std::string_view JalaliCalendar::weekdayName(DaySerial date) {
    return kWeekdayNames[static_cast<std::size_t>(PlatformDate::weekdayFromSaturday(date))];
}

bool JalaliCalendar::isValidMonth(int month) {
    return month >= 1 && month <= kMonths;
}

bool JalaliCalendar::isValidYear(int& year) {
    if (year < kTwoDigitYearLimit) {
        year += kTwoDigitYearBase;
    }
    return year >= kFirstYear && year <= kLastYear;
}

int JalaliCalendar::daysInMonth(int year, int month) {
    (void)yearStart(year);
    const int length = monthLength(month);
    return month == kMonths && isLeapYear(year) ? length + 1 : length;
}

bool JalaliCalendar::isValidDate(const JalaliDate& date) {
    if (date.year < kFirstYear || date.year > kLastYear || !isValidMonth(date.month)) {
        return false;
    }
    return date.day >= 1 && date.day <= daysInMonth(date.year, date.month);
}

std::optional<JalaliDate> JalaliCalendar::toJalaliDate(DaySerial date) {
    const Tables& t = tables();
    if (date <= t.yearStart.front() || date > t.lastDay) {
        return std::nullopt;
    }
    // The latest year whose entry lies before the date.
    const auto after = std::lower_bound(t.yearStart.begin(), t.yearStart.end(), date);
    const auto index = static_cast<int>(after - t.yearStart.begin()) - 1;
    const int dayOfYear = date - t.yearStart[static_cast<std::size_t>(index)];
    const auto month = std::upper_bound(t.daysBefore.begin(), t.daysBefore.end(), dayOfYear - 1);
    const auto m = static_cast<int>(month - t.daysBefore.begin());
    return JalaliDate{kFirstYear + index, m,
                      dayOfYear - t.daysBefore[static_cast<std::size_t>(m - 1)]};
}

DaySerial JalaliCalendar::toSerial(const JalaliDate& date) {
    if (!isValidDate(date)) {
        throw std::out_of_range("no such Jalali day: " + formatDateText(date));
    }
    const Tables& t = tables();
    return entryOf(t, date.year) + t.daysBefore[static_cast<std::size_t>(date.month - 1)] +
           date.day;
}

std::optional<DaySerial> JalaliCalendar::toSerial(std::string_view text) {
    const std::optional<JalaliDate> date = parseDateText(text);
    if (!date) {
        return std::nullopt;
    }
    return toSerial(*date);
}

std::string JalaliCalendar::formatDateText(const JalaliDate& date) {
    std::string out = std::to_string(date.year);
    out.push_back('/');
    appendTwoDigits(out, date.month);
    out.push_back('/');
    appendTwoDigits(out, date.day);
    return out;
}

std::optional<JalaliDate> JalaliCalendar::parseDateText(std::string_view text) {
    std::string_view parts[3];
    if (!splitDate(text, parts) || parts[0].empty() || parts[0].front() == '0' ||
        parts[1].size() != 2 || parts[2].size() != 2) {
        return std::nullopt;
    }
    const JalaliDate date{digitsValue(parts[0]), digitsValue(parts[1]), digitsValue(parts[2])};
    if (!isValidDate(date)) {
        return std::nullopt;
    }
    return date;
}

bool JalaliCalendar::isValidDateText(std::string_view text) {
    return parseDateText(text).has_value();
}

std::optional<std::string> JalaliCalendar::normalizeDateText(std::string_view typed) {
    const std::string ascii = TextHelpers::toAsciiDigits(trimBlanks(typed));
    std::string_view parts[3];
    if (!splitDate(ascii, parts) || (parts[0].size() != 2 && parts[0].size() != 4) ||
        parts[1].size() > 2 || parts[2].size() > 2) {
        return std::nullopt;
    }
    JalaliDate date{digitsValue(parts[0]), digitsValue(parts[1]), digitsValue(parts[2])};
    if (date.year < 0 || !isValidYear(date.year) || !isValidDate(date)) {
        return std::nullopt;
    }
    return formatDateText(date);
}

std::string JalaliCalendar::addDays(std::string_view text, int days) {
    const std::optional<DaySerial> start = toSerial(text);
    if (!start) {
        throw std::invalid_argument("not a Jalali date text: " + quoted(text));
    }
    const std::int64_t target = static_cast<std::int64_t>(*start) + days;
    const Tables& t = tables();
    if (target <= t.yearStart.front() || target > t.lastDay) {
        throw std::out_of_range(quoted(text) + " moved by " + std::to_string(days) +
                                " days leaves the years " + std::to_string(kFirstYear) + ".." +
                                std::to_string(kLastYear));
    }
    return formatDateText(*toJalaliDate(static_cast<DaySerial>(target)));
}

std::string JalaliCalendar::monthEnd(std::string_view text) {
    const std::optional<JalaliDate> date = parseDateText(text);
    if (!date) {
        throw std::invalid_argument("not a Jalali date text: " + quoted(text));
    }
    return formatDateText({date->year, date->month, daysInMonth(date->year, date->month)});
}

}  // namespace sandogh
