#pragma once

#include <QSqlDatabase>
#include <QtGlobal>

namespace sandogh {

// How a desk waits on SQLite while another desk's write transaction holds the file.
// Every write begins IMMEDIATE, so the waiting is done by the busy handler of BEGIN.
// SQLite's own handler (busy_timeout) sleeps longer the longer it has waited (up to
// 100 ms between tries): a desk that has waited long tries rarely and loses the file to
// each newcomer, which starved one desk for 3.6 s among eight. This handler tries
// every millisecond, then twice as often once it has waited kPatientMs, so the
// longest waiter tries most often; it gives up after the timeout (SQLITE_BUSY, the busy
// message), measured on the clock rather than by counting tries.
class SqliteBusyWait {
public:
    static constexpr qint64 kPatientMs = 20;

    // Installs the handler on an open QSQLITE connection; false when the driver's handle is
    // not a SQLite connection.
    static bool install(const QSqlDatabase& db, int timeoutMs);
    // The pause before the next try after waiting waitedMs, in microseconds; 0: give up.
    static int pauseMicroseconds(qint64 waitedMs, int timeoutMs);
};

}  // namespace sandogh
