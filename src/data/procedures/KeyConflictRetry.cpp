#include "data/procedures/KeyConflictRetry.h"

#include <QRandomGenerator>
#include <QThread>

#include "data/Dialect.h"
#include "data/Session.h"

namespace sandogh::procedures {

namespace {

const QString kSavepoint = QStringLiteral("sandogh_key");

}  // namespace

QString KeyConflictRetry::savepointSql(const Session& session) {
    return session.backend() == Backend::SqlServer
               ? QStringLiteral("SAVE TRANSACTION ") + kSavepoint
               : QStringLiteral("SAVEPOINT ") + kSavepoint;
}

QString KeyConflictRetry::rollbackToSavepointSql(const Session& session) {
    return session.backend() == Backend::SqlServer
               ? QStringLiteral("ROLLBACK TRANSACTION ") + kSavepoint
               : QStringLiteral("ROLLBACK TO SAVEPOINT ") + kSavepoint;
}

QString KeyConflictRetry::releaseSavepointSql(const Session& session) {
    // T-SQL has no release: the savepoint simply stays behind until the transaction ends.
    return session.backend() == Backend::SqlServer
               ? QString()
               : QStringLiteral("RELEASE SAVEPOINT ") + kSavepoint;
}

qint64 KeyConflictRetry::run(Session& session, const Attempt& attempt, int attempts,
                             DbError* lastError) {
    DbError error;
    for (int i = 0; i < attempts; ++i) {
        const bool guarded = session.inTransaction();
        if (guarded && !session.exec(savepointSql(session))) {
            error = session.lastError();
            break;
        }
        error = {};
        const qint64 key = attempt(error);
        if (key > 0 && !error.isError()) {
            const QString release = releaseSavepointSql(session);
            if (guarded && !release.isEmpty() && !session.exec(release)) {
                error = session.lastError();
                break;
            }
            if (lastError != nullptr) {
                *lastError = {};
            }
            return key;
        }
        if (guarded) {
            // Undo the failed attempt only; what the transaction wrote before it stays.
            session.exec(rollbackToSavepointSql(session), {}, FailureLogging::Quiet);
            const QString release = releaseSavepointSql(session);
            if (!release.isEmpty()) {
                session.exec(release, {}, FailureLogging::Quiet);
            }
        }
        if (!error.isKeyConflict()) {
            break;
        }
        if (i + 1 < attempts) {
            QThread::msleep(QRandomGenerator::global()->bounded(1u, 4u * unsigned(i + 1)));
        }
    }
    if (error.isKeyConflict() && session.state() != nullptr && session.isValid()) {
        // Every attempt met a seat that was faster: report the last conflict as any
        // other failure.
        session.state()->fail(error, FailureLogging::Log);
    }
    if (lastError != nullptr) {
        *lastError = error;
    }
    return 0;
}

}  // namespace sandogh::procedures
