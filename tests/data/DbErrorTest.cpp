// Classification of driver errors, as each backend's driver reports them. SQL Server's
// are only ever seen this way here.

#include <gtest/gtest.h>

#include "data/DbError.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

using B = Backend;
using T = QSqlError::ErrorType;
using K = DbErrorKind;

struct ErrorCase {
    Backend backend;
    const char* nativeCode;
    const char* databaseText;
    K kind;
    T type = T::StatementError;
    bool connectionOpen = true;
};

const ErrorCase kCases[] = {
    {B::SqlServer, "2627", "Violation of PRIMARY KEY constraint 'PK_Whs_QTYDocH'.", K::KeyConflict},
    {B::SqlServer, "2601", "Cannot insert duplicate key row with unique index.", K::KeyConflict},
    {B::SqlServer, "547", "conflicted with the FOREIGN KEY constraint FK_H_Stations.",
     K::ForeignKey},
    {B::SqlServer, "547", "conflicted with the CHECK constraint CK_Qty.", K::Other},
    {B::SqlServer, "208", "Invalid object name 'Goodz'.", K::Other},
    {B::SqlServer, "0", "[FreeTDS][SQL Server]Communication link failure (08S01)",
     K::ConnectionLost},
    {B::SqlServer, "20047", "DBPROCESS is dead", K::ConnectionLost},
    {B::SqlServer, "1", "whatever", K::ConnectionLost, T::StatementError, false},
    {B::SqlServer, "1205", "deadlock", K::Busy},
    {B::SqlServer, "229", "permission denied", K::Permission},
    {B::SqlServer, "9002", "log full", K::DiskFull},
    {B::SqlServer, "824", "logical consistency", K::Damaged},
    {B::PostgreSQL, "23505", "duplicate key value", K::KeyConflict},
    {B::PostgreSQL, "23503", "violates foreign key constraint", K::ForeignKey},
    {B::PostgreSQL, "57P01", "terminating connection", K::ConnectionLost},
    {B::PostgreSQL, "08006", "connection failure", K::ConnectionLost, T::ConnectionError},
    {B::PostgreSQL, "", "no connection to the server", K::ConnectionLost, T::StatementError, false},
    {B::PostgreSQL, "42P01", "relation does not exist", K::Other},
    {B::PostgreSQL, "23502", "null value in column", K::Other},
    {B::PostgreSQL, "40P01", "deadlock detected", K::Busy},
    {B::PostgreSQL, "55P03", "lock not available", K::Busy},
    {B::PostgreSQL, "42501", "permission denied", K::Permission},
    {B::PostgreSQL, "53100", "disk full", K::DiskFull},
    {B::PostgreSQL, "XX001", "data corrupted", K::Damaged},
    {B::SQLite, "1555", "UNIQUE constraint failed: t.id", K::KeyConflict, T::ConnectionError},
    {B::SQLite, "2067", "UNIQUE constraint failed: t.code", K::KeyConflict, T::ConnectionError},
    {B::SQLite, "787", "FOREIGN KEY constraint failed", K::ForeignKey, T::ConnectionError},
    {B::SQLite, "19", "UNIQUE constraint failed: t.a", K::KeyConflict},
    {B::SQLite, "19", "FOREIGN KEY constraint failed", K::ForeignKey},
    {B::SQLite, "19", "NOT NULL constraint failed: t.a", K::Other},
    {B::SQLite, "1", "near \"SELEC\": syntax error", K::Other},
    {B::SQLite, "14", "unable to open database file", K::ConnectionLost, T::ConnectionError},
    {B::SQLite, "266", "disk I/O error", K::ConnectionLost},
    {B::SQLite, "10", "disk I/O error", K::ConnectionLost},
    {B::SQLite, "5", "database is locked", K::Busy},
    {B::SQLite, "517", "database is locked", K::Busy},
    {B::SQLite, "6", "database table is locked", K::Busy},
    {B::SQLite, "8", "attempt to write a readonly database", K::Permission},
    {B::SQLite, "3", "access permission denied", K::Permission},
    {B::SQLite, "13", "database or disk is full", K::DiskFull},
    {B::SQLite, "11", "database disk image is malformed", K::Damaged},
    {B::SQLite, "26", "file is not a database", K::Damaged},
};

TEST(DbError, ClassifiesEachBackendsCodes) {
    for (const ErrorCase& c : kCases) {
        SCOPED_TRACE(backendName(c.backend).toStdString() + ' ' + c.nativeCode + ' ' +
                     c.databaseText);
        const QSqlError error(QStringLiteral("driver"), QString::fromUtf8(c.databaseText), c.type,
                              QString::fromLatin1(c.nativeCode));
        const DbError e =
            DbError::fromSqlError(error, c.backend, c.connectionOpen, QStringLiteral("SQL"));
        EXPECT_EQ(e.kind, c.kind);
        EXPECT_EQ(e.nativeCode, QString::fromLatin1(c.nativeCode));
        EXPECT_EQ(e.sql, QStringLiteral("SQL"));
        EXPECT_FALSE(e.text().isEmpty());
        // Faults have a message of their own; a lost connection's is the pool's, key
        // conflicts are retried and other failures go to the error log.
        EXPECT_EQ(DbError::messageFor(e.kind).isEmpty(),
                  e.kind == K::ConnectionLost || e.kind == K::KeyConflict || e.kind == K::Other);
    }
}

TEST(DbErrorRecord, CarriesNumberDescriptionAndSourceToTheLog) {
    const QSqlError error(QStringLiteral("QPSQL: Unable to create query"),
                          QStringLiteral("ERROR:  duplicate key value"), QSqlError::StatementError,
                          QStringLiteral("23505"));
    const AppError logged = DbError::fromSqlError(error, Backend::PostgreSQL, true).toAppError();
    EXPECT_EQ(logged.number, QStringLiteral("23505"));
    EXPECT_EQ(logged.description, QStringLiteral("ERROR:  duplicate key value"));
    EXPECT_EQ(logged.source, QStringLiteral("QPSQL: Unable to create query"));
}

}  // namespace
}  // namespace sandogh
