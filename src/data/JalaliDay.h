#pragma once

#include <QDate>
#include <QString>

namespace sandogh {

// A platform day as the screens show it: the Jalali date text ("1404/01/05") and the
// Persian name of its weekday.
class JalaliDay {
public:
    // Empty for a day outside the calendar's years.
    static QString dateText(const QDate& day);
    static QString weekdayName(const QDate& day);
};

}  // namespace sandogh
