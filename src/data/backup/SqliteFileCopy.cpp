#include "data/backup/SqliteFileCopy.h"

#include <QAtomicInt>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace sandogh {

namespace {

// A writer holding the database locks it for a few milliseconds per sale; a copy waits
// for it this long before giving up.
constexpr int kBusyTimeoutMs = 30000;

// Runs work on a connection of its own to file, closed afterwards.
template <typename Work>
bool onFile(const QString& file, QString* error, Work work) {
    static QAtomicInt serial;
    const QString name = QStringLiteral("sandogh-file-%1").arg(serial.fetchAndAddRelaxed(1));
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(file);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(kBusyTimeoutMs));
        if (!QFileInfo::exists(file)) {
            if (error != nullptr) {
                *error = QStringLiteral("no database file %1").arg(file);
            }
        } else if (!db.open()) {
            if (error != nullptr) {
                *error = db.lastError().text();
            }
        } else {
            QSqlQuery q(db);
            ok = work(q);
            if (!ok && error != nullptr && error->isEmpty()) {
                *error = q.lastError().text();
            }
            q.finish();
            db.close();
        }
    }
    QSqlDatabase::removeDatabase(name);
    return ok;
}

}  // namespace

bool SqliteFileCopy::snapshot(const QString& source, const QString& target, QString* error) {
    return onFile(source, error, [&target](QSqlQuery& q) {
        if (!q.prepare(QStringLiteral("VACUUM INTO :target"))) {
            return false;
        }
        q.bindValue(QStringLiteral(":target"), target);
        return q.exec();
    });
}

bool SqliteFileCopy::isWhole(const QString& file, QString* error) {
    return onFile(file, error, [error](QSqlQuery& q) {
        if (!q.exec(QStringLiteral("PRAGMA integrity_check")) || !q.next()) {
            return false;
        }
        const QString verdict = q.value(0).toString();
        if (verdict != QLatin1String("ok")) {
            if (error != nullptr) {
                *error = verdict;
            }
            return false;
        }
        return true;
    });
}

bool SqliteFileCopy::checkpoint(const QString& file, QString* error) {
    return onFile(file, error, [](QSqlQuery& q) {
        return q.exec(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    });
}

}  // namespace sandogh
