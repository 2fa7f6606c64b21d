// Classification of driver errors, as each backend's driver reports them. SQL Server's
// are only ever seen this way here.

#include <gtest/gtest.h>

#include "data/DbError.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

struct ErrorCase {
    const char* name;
    Backend backend;
    const char* nativeCode;
    const char* databaseText;
    QSqlError::ErrorType type;
    bool connectionOpen;
    DbErrorKind kind;
};

void PrintTo(const ErrorCase& c, std::ostream* os) {
    *os << c.name;
}

class DbErrorTest : public ::testing::TestWithParam<ErrorCase> {};

TEST_P(DbErrorTest, Classifies) {
    const ErrorCase& c = GetParam();
    const QSqlError error(QStringLiteral("driver"), QString::fromUtf8(c.databaseText), c.type,
                          QString::fromLatin1(c.nativeCode));
    const DbError e =
        DbError::fromSqlError(error, c.backend, c.connectionOpen, QStringLiteral("SQL"));
    EXPECT_EQ(e.kind, c.kind);
    EXPECT_EQ(e.nativeCode, QString::fromLatin1(c.nativeCode));
    EXPECT_EQ(e.sql, QStringLiteral("SQL"));
    EXPECT_FALSE(e.text().isEmpty());
}

using B = Backend;
using T = QSqlError::ErrorType;
using K = DbErrorKind;

INSTANTIATE_TEST_SUITE_P(
    Cases, DbErrorTest,
    ::testing::Values(
        ErrorCase{"SqlServerPrimaryKey", B::SqlServer, "2627",
                  "Violation of PRIMARY KEY constraint 'PK_Whs_QTYDocH'.", T::StatementError, true,
                  K::KeyConflict},
        ErrorCase{"SqlServerUniqueIndex", B::SqlServer, "2601",
                  "Cannot insert duplicate key row in object 'dbo.Goods' with unique index.",
                  T::StatementError, true, K::KeyConflict},
        ErrorCase{"SqlServerForeignKey", B::SqlServer, "547",
                  "The INSERT statement conflicted with the FOREIGN KEY constraint "
                  "FK_Whs_QTYDocH_Stations.",
                  T::StatementError, true, K::ForeignKey},
        ErrorCase{"SqlServerCheckConstraintIsOther", B::SqlServer, "547",
                  "The INSERT statement conflicted with the CHECK constraint CK_Qty.",
                  T::StatementError, true, K::Other},
        ErrorCase{"SqlServerMissingTable", B::SqlServer, "208", "Invalid object name 'Goodz'.",
                  T::StatementError, true, K::Other},
        ErrorCase{"SqlServerLinkFailure", B::SqlServer, "0",
                  "[FreeTDS][SQL Server]Communication link failure (08S01)", T::StatementError,
                  true, K::ConnectionLost},
        ErrorCase{"SqlServerDeadProcess", B::SqlServer, "20047", "DBPROCESS is dead",
                  T::StatementError, true, K::ConnectionLost},
        ErrorCase{"SqlServerClosedConnection", B::SqlServer, "1", "whatever", T::StatementError,
                  false, K::ConnectionLost},
        ErrorCase{"PostgresUnique", B::PostgreSQL, "23505", "duplicate key value",
                  T::StatementError, true, K::KeyConflict},
        ErrorCase{"PostgresForeignKey", B::PostgreSQL, "23503", "violates foreign key constraint",
                  T::StatementError, true, K::ForeignKey},
        ErrorCase{"PostgresAdminShutdown", B::PostgreSQL, "57P01",
                  "terminating connection due to administrator command", T::StatementError, true,
                  K::ConnectionLost},
        ErrorCase{"PostgresConnectionFailure", B::PostgreSQL, "08006", "connection failure",
                  T::ConnectionError, true, K::ConnectionLost},
        ErrorCase{"PostgresNoCodeAndClosed", B::PostgreSQL, "", "no connection to the server",
                  T::StatementError, false, K::ConnectionLost},
        ErrorCase{"PostgresMissingTable", B::PostgreSQL, "42P01", "relation does not exist",
                  T::StatementError, true, K::Other},
        ErrorCase{"PostgresNotNull", B::PostgreSQL, "23502", "null value in column",
                  T::StatementError, true, K::Other},
        ErrorCase{"SqliteExtendedPrimaryKey", B::SQLite, "1555", "UNIQUE constraint failed: t.id",
                  T::ConnectionError, true, K::KeyConflict},
        ErrorCase{"SqliteExtendedUnique", B::SQLite, "2067", "UNIQUE constraint failed: t.code",
                  T::ConnectionError, true, K::KeyConflict},
        ErrorCase{"SqliteExtendedForeignKey", B::SQLite, "787", "FOREIGN KEY constraint failed",
                  T::ConnectionError, true, K::ForeignKey},
        ErrorCase{"SqlitePlainConstraintUnique", B::SQLite, "19", "UNIQUE constraint failed: t.a",
                  T::StatementError, true, K::KeyConflict},
        ErrorCase{"SqlitePlainConstraintForeignKey", B::SQLite, "19",
                  "FOREIGN KEY constraint failed", T::StatementError, true, K::ForeignKey},
        ErrorCase{"SqlitePlainConstraintNotNull", B::SQLite, "19",
                  "NOT NULL constraint failed: t.a", T::StatementError, true, K::Other},
        ErrorCase{"SqliteSyntax", B::SQLite, "1", "near \"SELEC\": syntax error", T::StatementError,
                  true, K::Other},
        ErrorCase{"SqliteCannotOpen", B::SQLite, "14", "unable to open database file",
                  T::ConnectionError, true, K::ConnectionLost},
        ErrorCase{"SqliteIoError", B::SQLite, "266", "disk I/O error", T::StatementError, true,
                  K::ConnectionLost}),
    [](const auto& p) { return std::string(p.param.name); });

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
