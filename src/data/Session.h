#pragma once

#include <QList>
#include <QPair>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <memory>

#include "data/DbError.h"

namespace sandogh {

class ConnectionPool;
class Dialect;
struct PooledConnection;

// Values for the ":name" placeholders of a statement: {{":code", 5}, {":name", text}}.
using SqlBinds = QList<QPair<QString, QVariant>>;

// What a failed statement does besides returning false and keeping its error.
enum class FailureLogging {
    Log,                // LogError: shown and appended to ErrorLog.txt (the default)
    QuietKeyConflicts,  // a key conflict is left to the caller (who retries); others logged
    Quiet,              // nothing; the caller shows its own message
};

// One data routine's hold on a pooled connection. Taken from Database::session(),
// it returns the connection to the pool when it ends. An invalid session (the server
// could not be reached; the message has been shown) makes every statement fail with a
// ConnectionLost error and every single-value helper return its default, so a routine
// returns its empty result without testing anything.
//
// A session belongs to the thread that took it.
class Session {
public:
    Session();
    ~Session();
    Session(Session&& other) noexcept;
    Session& operator=(Session&& other) noexcept;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    bool isValid() const;
    explicit operator bool() const { return isValid(); }

    Backend backend() const;
    const Dialect& dialect() const;
    // The Qt connection itself, for what this class does not offer.
    QSqlDatabase connection() const;
    const QString& moduleName() const;
    const QString& routineName() const;

    // Runs a statement that returns no rows (a change). False on failure.
    bool exec(const QString& sql, const SqlBinds& binds = {},
              FailureLogging logging = FailureLogging::Log);
    // Field 0 of the first row; an invalid QVariant when there is no row or on failure.
    QVariant scalar(const QString& sql, const SqlBinds& binds = {});
    // The same with the Isnull conventions: the fallback for no row, NULL or failure.
    QString scalarText(const QString& sql, const SqlBinds& binds = {},
                       const QString& fallback = {});
    qint64 scalarInt64(const QString& sql, const SqlBinds& binds = {}, qint64 fallback = 0);
    double scalarNumber(const QString& sql, const SqlBinds& binds = {}, double fallback = 0.0);

    // The error of the last failed statement of this session, or of taking the connection.
    const DbError& lastError() const;
    bool inTransaction() const;

    // Hands the connection back before the session ends.
    void release();
    // The same under the old name of the routine that ends every data routine.
    void CloseConnection() { release(); }

    // Internal state shared with the queries and transactions of this session; its
    // address does not change when the session is moved.
    struct State;
    State* state() const { return m_state.get(); }

private:
    friend class Database;
    Session(std::shared_ptr<ConnectionPool> pool, PooledConnection* connection, DbError error,
            QString moduleName, QString routineName);

    std::unique_ptr<State> m_state;
};

struct Session::State {
    std::shared_ptr<ConnectionPool> pool;
    PooledConnection* connection = nullptr;
    QString moduleName;
    QString routineName;
    DbError lastError;
    bool connectionMessageShown = false;

    bool isValid() const { return connection != nullptr; }
    QSqlDatabase database() const;
    // Records a failure and reports it as logging asks. A lost connection marks the
    // connection broken and shows the connection message (once per session).
    void fail(const DbError& error, FailureLogging logging);
    // A prepared statement of this connection for sql, from the cache when it is free.
    // prepared is false when preparing failed (the query holds the error).
    std::shared_ptr<QSqlQuery> statement(const QString& sql, bool& prepared);
    void forgetStatement(const QString& sql);
    // Whether results are read forward only (without keeping the rows read).
    bool forwardOnly() const;
    // After a schema change: prepared plans may name what no longer exists.
    void forgetStatements();
};

}  // namespace sandogh
