#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace sandogh::test {

// Runs the event loop until `done` holds or `waitMs` have passed; the limit
// only stops a broken test from hanging, the assertions are on what happened.
template <typename Done>
bool waitUntil(Done done, int waitMs = 5000) {
    QDeadlineTimer deadline(waitMs);
    while (!done()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(2);
    }
    return true;
}

}  // namespace sandogh::test
