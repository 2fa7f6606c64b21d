#pragma once

#include <QDateTime>

namespace sandogh {

// Today and the time of day; the system clock in the program, a fixed one in tests.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};

class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

}  // namespace sandogh
