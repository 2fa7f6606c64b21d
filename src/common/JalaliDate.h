#pragma once

namespace sandogh {

// A Jalali day as three numbers; JalaliCalendar turns it into and out of text.
struct JalaliDate {
    int year = 0;
    int month = 0;
    int day = 0;

    friend bool operator==(const JalaliDate&, const JalaliDate&) = default;
};

}  // namespace sandogh
