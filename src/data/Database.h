#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "data/ConnectionSettings.h"
#include "data/DatabaseOptions.h"
#include "data/Dialect.h"
#include "data/Session.h"

namespace sandogh {

class ConnectionPool;
class ErrorLog;
class MessageService;

// The shop database of the program: created once from the connection settings and
// held by the application context. Data routines take a Session from it, which
// behaves like an open connection of their own; underneath, physical connections are
// pooled per thread, kept open between routines and re-opened after a server restart.
//
//   Session session = database.session("mduGoods", "LoadGoods");
//   if (!session) return {};   // the connection message has been shown
//
// Sessions, queries and transactions must end before the Database does.
class Database {
public:
    // The message of every data routine that cannot reach the database.
    static const QString& connectionFailureMessage();

    // messages shows the connection message and LogError's lines (may be null);
    // errorLog records statement failures (may be null: they go to the debug output).
    Database(ConnectionSettings settings, MessageService* messages, ErrorLog* errorLog = nullptr,
             DatabaseOptions options = {});
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // A connection for one data routine of the calling thread. When the server cannot
    // be reached (after one re-open of a broken connection) the connection message is
    // shown once and the session is invalid.
    Session session(const QString& moduleName = {}, const QString& routineName = {});

    // The routines every data routine of the program starts and ends with, under their
    // old names: OpenConnection is session(); CloseConnection is ending the session
    // (Session::CloseConnection() or leaving its scope). OpenSecondConnection gives a
    // session on a connection of its own while the routine holds another, for the
    // screens that keep a second result open.
    Session OpenConnection(const QString& moduleName = {}, const QString& routineName = {}) {
        return session(moduleName, routineName);
    }
    Session OpenSecondConnection(const QString& moduleName = {}, const QString& routineName = {}) {
        return session(moduleName, routineName);
    }

    Backend backend() const;
    const Dialect& dialect() const;
    const ConnectionSettings& settings() const;

    // Another database used through three-part names; on SQLite its file is attached to
    // every connection from the next session on.
    void addOtherDatabase(const QString& name);
    QStringList otherDatabases() const;

    // Physical connections opened so far, re-opens included.
    int physicalConnects() const;
    // Connections held by the pool now, idle or in use.
    int pooledConnections() const;

private:
    std::shared_ptr<ConnectionPool> m_pool;
};

}  // namespace sandogh
