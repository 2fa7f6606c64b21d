#pragma once

#include <QtGlobal>
#include <functional>

#include "data/DbError.h"

namespace sandogh {

class Session;

namespace procedures {

// Keys that the program allocates itself (document codes, parameter counters, voucher
// codes, serial numbers) are the column's largest value plus one, taken by the statement
// that writes the row. Two seats doing so at the same moment compute the same key; the
// key constraint lets one of them through and fails the other with a KeyConflict (on
// PostgreSQL once the first has committed). run() then tries again with a fresh key.
//
// Inside a transaction every attempt runs under a savepoint, so a failed one is undone
// alone and the transaction stays usable (PostgreSQL refuses every further statement
// of a transaction after an error until the failure is rolled back).
//
//   qint64 code = KeyConflictRetry::run(session, [&](DbError& error) {
//       return ReturningInsert::run(session, sql, binds, error);
//   });
class KeyConflictRetry {
public:
    // Enough for a handful of cash desks saving in the same instant; between attempts
    // the loser waits a few random milliseconds, longer each time, so that two seats do
    // not meet again on the next key.
    static constexpr int kAttempts = 10;

    // One attempt: allocates a key and writes its row; returns the key (> 0), or 0 with
    // the error of the statement that failed. Its statements report key conflicts quietly
    // (FailureLogging::QuietKeyConflicts): the conflict that ends the last attempt is
    // reported here, any other failure by the statement itself.
    using Attempt = std::function<qint64(DbError& error)>;

    // The key of the first attempt that succeeds, or 0 when one fails for another reason
    // than a key conflict or all of them meet one. lastError (may be null) receives the
    // failure.
    static qint64 run(Session& session, const Attempt& attempt, int attempts = kAttempts,
                      DbError* lastError = nullptr);

    // The savepoint statements of the session's backend (empty outside a transaction is
    // the caller's business).
    static QString savepointSql(const Session& session);
    static QString rollbackToSavepointSql(const Session& session);
    static QString releaseSavepointSql(const Session& session);
};

}  // namespace procedures
}  // namespace sandogh
