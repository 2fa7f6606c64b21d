#pragma once

#include <QMutex>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <atomic>
#include <list>
#include <memory>

#include "data/ConnectionSettings.h"
#include "data/DatabaseOptions.h"
#include "data/DbError.h"
#include "data/Dialect.h"
#include "data/PooledConnection.h"

namespace sandogh {

class ErrorLog;
class MessageService;

// The connections of one Database, kept per thread because a Qt SQL connection may
// only be used by the thread that opened it. A connection goes back to the pool when
// its session ends and is closed when its thread ends or the pool shuts down.
class ConnectionPool : public std::enable_shared_from_this<ConnectionPool> {
public:
    ConnectionPool(ConnectionSettings settings, DatabaseOptions options, MessageService* messages,
                   ErrorLog* errorLog);
    ~ConnectionPool();

    ConnectionPool(const ConnectionPool&) = delete;
    ConnectionPool& operator=(const ConnectionPool&) = delete;

    // An open connection for the calling thread: an idle one (checked when it has been
    // idle long, re-opened once when broken) or a new one. Null with error set when the
    // server cannot be reached.
    PooledConnection* acquire(DbError& error);
    void release(PooledConnection* connection);
    // Before a transaction begins on a server: a connection the server dropped while it
    // was idle or in use by reads (a restart between two sales) is opened again, so that
    // only a transaction cut off in its course fails. False with error set when the
    // server cannot be reached.
    bool ensureAlive(PooledConnection* connection, DbError& error);
    QSqlDatabase database(const PooledConnection* connection) const;

    // Shows the connection failure message of the data routines.
    void reportConnectionFailure() const;
    // A connection that could not be opened: the message of its kind when it has one
    // (a damaged file, a refused permission), recorded in the error log; else the
    // connection message.
    void reportOpenFailure(const DbError& error, const QString& moduleName,
                           const QString& routineName) const;

    // Closes every connection; later releases close theirs.
    void shutdown();
    // Closes the idle connections of the calling thread (at thread end).
    void closeThreadConnections();

    void addOtherDatabase(const QString& name);
    QStringList otherDatabases() const;

    const ConnectionSettings& settings() const { return m_settings; }
    const DatabaseOptions& options() const { return m_options; }
    const Dialect& dialect() const { return *m_dialect; }
    Backend backend() const { return m_settings.backend; }
    MessageService* messages() const { return m_messages; }
    ErrorLog* errorLog() const { return m_errorLog; }

    int physicalConnects() const { return m_connects.load(); }
    int openConnections() const;

private:
    bool open(PooledConnection* connection, DbError& error);
    bool configureSqlite(QSqlDatabase& db, DbError& error);
    bool checkSqliteIntegrity(QSqlDatabase& db, DbError& error);
    bool attachOtherDatabases(PooledConnection* connection, DbError& error);
    bool ping(PooledConnection* connection);
    void close(PooledConnection* connection);
    void discard(PooledConnection* connection);
    void registerThread();

    const ConnectionSettings m_settings;
    const DatabaseOptions m_options;
    const std::unique_ptr<Dialect> m_dialect;
    MessageService* const m_messages;
    ErrorLog* const m_errorLog;
    const QString m_prefix;

    mutable QMutex m_mutex;
    std::list<std::unique_ptr<PooledConnection>> m_connections;
    QStringList m_otherDatabases;
    int m_nextNumber = 0;
    bool m_shutdown = false;
    std::atomic<int> m_connects{0};
    std::atomic<bool> m_integrityChecked{false};
};

}  // namespace sandogh
