#include "data/DbError.h"

namespace sandogh {

namespace {

// SQLite result codes, primary and extended (Qt reports the extended ones).
constexpr int kSqliteConstraint = 19;
constexpr int kSqliteConstraintForeignKey = 787;
constexpr int kSqliteConstraintPrimaryKey = 1555;
constexpr int kSqliteConstraintUnique = 2067;
constexpr int kSqliteConstraintRowId = 2579;
constexpr int kSqlitePerm = 3;
constexpr int kSqliteBusy = 5;
constexpr int kSqliteLocked = 6;
constexpr int kSqliteReadOnly = 8;
constexpr int kSqliteIoErr = 10;
constexpr int kSqliteCorrupt = 11;
constexpr int kSqliteFull = 13;
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
    switch (code & 0xff) {
        case kSqliteBusy:
        case kSqliteLocked:
            return DbErrorKind::Busy;
        case kSqlitePerm:
        case kSqliteReadOnly:
            return DbErrorKind::Permission;
        case kSqliteFull:
            return DbErrorKind::DiskFull;
        case kSqliteCorrupt:
        case kSqliteNotADb:
            return DbErrorKind::Damaged;
        case kSqliteIoErr:
        case kSqliteCantOpen:
            return DbErrorKind::ConnectionLost;
        default:
            return DbErrorKind::Other;
    }
}

DbErrorKind classifyPostgres(const QSqlError& error, bool connectionOpen) {
    const QString state = error.nativeErrorCode();
    if (state == QLatin1String("23505")) {
        return DbErrorKind::KeyConflict;
    }
    if (state == QLatin1String("23503")) {
        return DbErrorKind::ForeignKey;
    }
    // 40001 serialization failure, 40P01 deadlock, 55P03 lock not available.
    if (state == QLatin1String("40001") || state == QLatin1String("40P01") ||
        state == QLatin1String("55P03")) {
        return DbErrorKind::Busy;
    }
    if (state == QLatin1String("42501")) {  // insufficient privilege
        return DbErrorKind::Permission;
    }
    if (state == QLatin1String("53100")) {  // disk full
        return DbErrorKind::DiskFull;
    }
    if (state == QLatin1String("XX001") || state == QLatin1String("XX002")) {
        return DbErrorKind::Damaged;  // data or index corrupted
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
    // 1205 deadlock victim, 1222 lock wait time-out; 229/230/262 permission denied;
    // 1105 filegroup full, 9002 log full; 823/824 I/O or consistency errors.
    if (code == QLatin1String("1205") || code == QLatin1String("1222")) {
        return DbErrorKind::Busy;
    }
    if (code == QLatin1String("229") || code == QLatin1String("230") ||
        code == QLatin1String("262")) {
        return DbErrorKind::Permission;
    }
    if (code == QLatin1String("1105") || code == QLatin1String("9002")) {
        return DbErrorKind::DiskFull;
    }
    if (code == QLatin1String("823") || code == QLatin1String("824")) {
        return DbErrorKind::Damaged;
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

QString DbError::userMessage() const {
    return messageFor(kind);
}

QString DbError::messageFor(DbErrorKind kind) {
    switch (kind) {
        case DbErrorKind::Busy:
            // The database is busy; try again in a moment.
            return QStringLiteral("بانک اطلاعاتي مشغول است؛ چند لحظه بعد دوباره امتحان کنيد");
        case DbErrorKind::ForeignKey:
            // Not saved: one of its codes does not exist in the database.
            return QStringLiteral("اطلاعات ثبت نشد: يکي از کدهاي آن در بانک اطلاعاتي وجود ندارد");
        case DbErrorKind::Permission:
            // No permission to write to the database or its folder.
            return QStringLiteral("اجازه نوشتن در بانک اطلاعاتي يا پوشه آن وجود ندارد");
        case DbErrorKind::DiskFull:
            // The disk is full; nothing was saved.
            return QStringLiteral("ديسک پر است؛ اطلاعات ثبت نشد");
        case DbErrorKind::Damaged:
            // The database file is damaged; restore a backup.
            return QStringLiteral(
                "فايل بانک اطلاعاتي آسيب ديده است؛ نسخه پشتيبان آن را بازگرداني کنيد");
        default:
            return {};
    }
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
