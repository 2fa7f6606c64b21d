#pragma once

#include <QSqlError>
#include <QString>

#include "data/AppError.h"
#include "data/Backend.h"

namespace sandogh {

// What kind of failure a statement met, so that callers can react: re-open after a
// lost connection, allocate the next key after a key conflict.
enum class DbErrorKind {
    None,
    ConnectionLost,  // the server cannot be reached or dropped the connection
    KeyConflict,     // unique or primary key violation: another seat took the key
    ForeignKey,      // the row names a parent that does not exist (or is still referenced)
    Busy,            // another desk holds the lock past the wait, or a deadlock was broken
    Permission,      // the user or the file system refuses the access (a read-only folder)
    DiskFull,        // the disk or the database is full
    Damaged,         // the database file or an index is corrupt
    Other,
};

struct DbError {
    DbErrorKind kind = DbErrorKind::None;
    QString nativeCode;  // SQLSTATE on PostgreSQL, the result code on SQLite, the error number on
                         // SQL Server
    QString databaseText;
    QString driverText;
    QString sql;  // the statement that failed, without its values

    bool isError() const { return kind != DbErrorKind::None; }
    bool isKeyConflict() const { return kind == DbErrorKind::KeyConflict; }
    bool isConnectionLost() const { return kind == DbErrorKind::ConnectionLost; }

    // The description of the error: the server's text, else the driver's.
    QString text() const;
    // What the user is told for the kinds that have a message of their own (busy, foreign
    // key, permission, full disk, damaged); empty for the others.
    QString userMessage() const;
    static QString messageFor(DbErrorKind kind);
    // The error as the error log records it.
    AppError toAppError() const;

    // Classifies a Qt SQL error. connectionOpen: whether the connection is still open
    // after the failure (the drivers close it when the server is gone).
    static DbError fromSqlError(const QSqlError& error, Backend backend, bool connectionOpen,
                                const QString& sql = {});
    static DbErrorKind classify(const QSqlError& error, Backend backend, bool connectionOpen);

    static DbError connectionLost(const QString& text);
};

}  // namespace sandogh
