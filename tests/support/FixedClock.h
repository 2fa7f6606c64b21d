#pragma once

#include <QDateTime>
#include <QMutex>

#include "settings/Clock.h"

namespace sandogh::test {

// A clock that says what the test tells it.
class FixedClock final : public Clock {
public:
    explicit FixedClock(QDateTime now = QDateTime(QDate(2025, 3, 21), QTime(9, 30, 0)))
        : m_now(std::move(now)) {}

    QDateTime now() const override {
        QMutexLocker lock(&m_mutex);
        return m_now;
    }
    void set(const QDateTime& now) {
        QMutexLocker lock(&m_mutex);
        m_now = now;
    }
    void advanceSeconds(qint64 seconds) {
        QMutexLocker lock(&m_mutex);
        m_now = m_now.addSecs(seconds);
    }

private:
    mutable QMutex m_mutex;
    QDateTime m_now;
};

}  // namespace sandogh::test
