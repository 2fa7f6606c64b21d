#pragma once

#include <QStringList>

namespace sandogh {

// How the pooled connections of a Database behave.
struct DatabaseOptions {
    // A pooled connection idle at least this long is checked with a cheap round trip
    // before it is handed out; 0 checks on every hand-out. A scan of many barcodes in a
    // row therefore neither connects nor checks.
    int idleCheckMs = 1000;
    // SQLite: how long a writer waits for another writer's transaction.
    int sqliteBusyTimeoutMs = 5000;
    // Servers: how long opening a connection may take.
    int connectTimeoutSeconds = 5;
    // SQLite: open the database file even when it does not exist yet (it is created).
    // Otherwise a missing file is a connection failure, as a missing catalog is.
    bool createSqliteFile = false;
    // Other databases used through three-part names (the scale vendors'); on SQLite
    // they are the files <folder>/<name>.sqlite attached to every connection.
    QStringList otherDatabases;
};

}  // namespace sandogh
