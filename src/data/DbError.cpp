#include "data/DbError.h"

namespace sandogh {

namespace {

// SQLite result codes, primary and extended (Qt reports the extended ones).
constexpr int kSqliteConstraint = 19;
constexpr int kSqliteConstraintForeignKey = 787;
constexpr int kSqliteConstraintPrimaryKey = 1555;
constexpr int kSqliteConstraintUnique = 2067;
constexpr int kSqliteConstraintRowId = 2579;
constexpr int kSqliteIoErr = 10;
constexpr int kSqliteCantOpen = 14;
constexpr int kSqliteNotADb = 26;

DbErrorKind classifySqlite(const QSqlError& error) {
    bool ok = false;
    const int code = error.nativeErrorCode().toInt(&ok);
    if (!ok) {
        return error.type() == QSqlError::ConnectionError ? DbErrorKind::ConnectionLost
                                                          : DbErrorKind::Other;
    }
    switch (code) {
        case kSqliteConstraintPrimaryKey:
        case kSqliteConstraintUnique:
        case kSqliteConstraintRowId:
            return DbErrorKind::KeyConflict;
        case kSqliteConstraintForeignKey:
            return DbErrorKind::ForeignKey;
        case kSqliteConstraint: {
            // Without extended codes only the message tells the constraints apart.
            const QString text = error.databaseText();
            if (text.startsWith(QLatin1String("UNIQUE constraint failed"), Qt::CaseInsensitive) ||
                text.startsWith(QLatin1String("PRIMARY KEY"), Qt::CaseInsensitive)) {
                return DbErrorKind::KeyConflict;
            }
            if (text.startsWith(QLatin1String("FOREIGN KEY"), Qt::CaseInsensitive)) {
                return DbErrorKind::ForeignKey;
            }
            return DbErrorKind::Other;
        }
        default:
            break;
    }
    const int primary = code & 0xff;
    if (primary == kSqliteIoErr || primary == kSqliteCantOpen || primary == kSqliteNotADb) {
        return DbErrorKind::ConnectionLost;
    }
    return DbErrorKind::Other;
}

DbErrorKind classifyPostgres(const QSqlError& error, bool connectionOpen) {
    const QString state = error.nativeErrorCode();
    if (state == QLatin1String("23505")) {
        return DbErrorKind::KeyConflict;
    }
    if (state == QLatin1String("23503")) {
        return DbErrorKind::ForeignKey;
    }
    // Class 08: connection exception; 57P01..57P03: the server shut the session down.
    if (state.startsWith(QLatin1String("08")) || state == QLatin1String("57P01") ||
        state == QLatin1String("57P02") || state == QLatin1String("57P03")) {
        return DbErrorKind::ConnectionLost;
    }
    if (!connectionOpen) {
        return DbErrorKind::ConnectionLost;
    }
    return DbErrorKind::Other;
}

DbErrorKind classifySqlServer(const QSqlError& error, bool connectionOpen) {
    const QString code = error.nativeErrorCode();
    if (code == QLatin1String("2627") || code == QLatin1String("2601")) {
        return DbErrorKind::KeyConflict;
    }
    const QString text = error.databaseText();
    if (code == QLatin1String("547") &&
        text.contains(QLatin1String("FOREIGN KEY"), Qt::CaseInsensitive)) {
        return DbErrorKind::ForeignKey;
    }
    // SQLSTATE 08xxx in the ODBC diagnostics, or FreeTDS's dead-connection numbers.
    if (!connectionOpen || text.contains(QLatin1String("08S01")) ||
        text.contains(QLatin1String("08001")) || text.contains(QLatin1String("08003")) ||
        text.contains(QLatin1String("Communication link failure"), Qt::CaseInsensitive) ||
        code == QLatin1String("20047") || code == QLatin1String("20004") ||
        code == QLatin1String("20006")) {
        return DbErrorKind::ConnectionLost;
    }
    return DbErrorKind::Other;
}

}  // namespace

QString DbError::text() const {
    return databaseText.trimmed().isEmpty() ? driverText : databaseText.trimmed();
}

AppError DbError::toAppError() const {
    return {nativeCode, text(), driverText};
}

DbErrorKind DbError::classify(const QSqlError& error, Backend backend, bool connectionOpen) {
    if (error.type() == QSqlError::NoError) {
        return connectionOpen ? DbErrorKind::None : DbErrorKind::ConnectionLost;
    }
    switch (backend) {
        case Backend::SQLite:
            return classifySqlite(error);
        case Backend::PostgreSQL:
            return classifyPostgres(error, connectionOpen);
        case Backend::SqlServer:
            return classifySqlServer(error, connectionOpen);
    }
    return DbErrorKind::Other;
}

DbError DbError::fromSqlError(const QSqlError& error, Backend backend, bool connectionOpen,
                              const QString& sql) {
    DbError e;
    e.kind = classify(error, backend, connectionOpen);
    e.nativeCode = error.nativeErrorCode();
    e.databaseText = error.databaseText();
    e.driverText = error.driverText();
    e.sql = sql;
    if (e.kind == DbErrorKind::None) {
        // Called for a statement that failed: a failure without a driver error is still one.
        e.kind = DbErrorKind::Other;
    }
    if (e.kind == DbErrorKind::ConnectionLost && e.text().isEmpty()) {
        e.driverText = QStringLiteral("the connection to the database server is closed");
    }
    return e;
}

DbError DbError::connectionLost(const QString& text) {
    DbError e;
    e.kind = DbErrorKind::ConnectionLost;
    e.driverText = text;
    return e;
}

}  // namespace sandogh
