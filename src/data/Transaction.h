#pragma once

#include "data/DbError.h"
#include "data/Session.h"

namespace sandogh {

// A write transaction on a session, for the routines that write several rows as one
// unit. Commit is explicit; a transaction that ends without commit() is rolled back
// explicitly. On SQLite it begins IMMEDIATE, so two writers queue on the busy timeout
// instead of deadlocking on a lock upgrade.
//
//   Transaction tx(session);
//   if (!tx.isActive()) return false;
//   ... statements ...
//   return tx.commit();
//
// A transaction must end before its session; there is at most one per session.
class Transaction {
public:
    explicit Transaction(Session& session, FailureLogging logging = FailureLogging::Log);
    ~Transaction();
    Transaction(Transaction&& other) noexcept;
    Transaction& operator=(Transaction&& other) noexcept;
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // True from a successful begin until commit() or rollback().
    bool isActive() const { return m_active; }
    // False when the commit failed; the failure is reported and the work rolled back.
    bool commit();
    // Undoes the work; false when the server refused (the failure is reported).
    bool rollback();
    const DbError& error() const { return m_error; }

private:
    bool runControl(const QString& sqliteStatement, bool (QSqlDatabase::*operation)(),
                    DbError& error);
    void finish();

    Session::State* m_session = nullptr;
    FailureLogging m_logging = FailureLogging::Log;
    bool m_active = false;
    DbError m_error;
};

}  // namespace sandogh
