#include "data/SqliteBusyWait.h"

#include <sqlite3.h>

#include <QSqlDriver>
#include <QVariant>
#include <chrono>
#include <cstdint>
#include <thread>

namespace sandogh {

namespace {

using Clock = std::chrono::steady_clock;

// The start of the wait in progress on this thread: a connection is used by one thread
// at a time, and a wait ends before its statement returns.
thread_local Clock::time_point t_waitStart;

int busyHandler(void* timeout, int tries) {
    if (tries == 0) {
        t_waitStart = Clock::now();
    }
    const qint64 waited =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - t_waitStart).count();
    const int pause = SqliteBusyWait::pauseMicroseconds(
        waited, static_cast<int>(reinterpret_cast<std::intptr_t>(timeout)));
    if (pause <= 0) {
        return 0;
    }
    // The busy handler is SQLite's only way to wait for the write lock; the wait is
    // bounded by the timeout and the screen's thread never saves while a sale is typed.
    std::this_thread::sleep_for(std::chrono::microseconds(pause));
    return 1;
}

}  // namespace

int SqliteBusyWait::pauseMicroseconds(qint64 waitedMs, int timeoutMs) {
    if (waitedMs >= timeoutMs) {
        return 0;
    }
    return waitedMs < kPatientMs ? 1000 : 500;
}

bool SqliteBusyWait::install(const QSqlDatabase& db, int timeoutMs) {
    const QVariant handle = db.driver() != nullptr ? db.driver()->handle() : QVariant();
    if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0) {
        return false;
    }
    sqlite3* connection = *static_cast<sqlite3* const*>(handle.constData());
    return connection != nullptr &&
           sqlite3_busy_handler(connection, busyHandler,
                                reinterpret_cast<void*>(static_cast<std::intptr_t>(timeoutMs))) ==
               SQLITE_OK;
}

}  // namespace sandogh
