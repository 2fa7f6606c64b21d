#include "data/ConnectionPool.h"

#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>
#include <QSqlQuery>
#include <vector>

#include "data/Database.h"
#include "data/ErrorLog.h"
#include "data/SqliteBusyWait.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

std::atomic<int> g_nextPoolId{0};

// The pools a thread has connections in, so that the thread closes them as it ends:
// the connections may not be closed from any other thread.
struct ThreadPools {
    std::vector<std::weak_ptr<ConnectionPool>> pools;
    ~ThreadPools() {
        for (const auto& weak : pools) {
            if (const auto pool = weak.lock()) {
                pool->closeThreadConnections();
            }
        }
    }
};
thread_local ThreadPools t_threadPools;

DbError openError(const QSqlDatabase& db, Backend backend) {
    DbError error = DbError::fromSqlError(db.lastError(), backend, false);
    error.kind = DbErrorKind::ConnectionLost;
    return error;
}

}  // namespace

ConnectionPool::ConnectionPool(ConnectionSettings settings, DatabaseOptions options,
                               MessageService* messages, ErrorLog* errorLog)
    : m_settings(std::move(settings))
    , m_options(std::move(options))
    , m_dialect(Dialect::create(m_settings.backend))
    , m_messages(messages)
    , m_errorLog(errorLog)
    , m_prefix(QStringLiteral("sandogh.pool%1.").arg(g_nextPoolId.fetch_add(1)))
    , m_otherDatabases(m_options.otherDatabases) {}

ConnectionPool::~ConnectionPool() {
    shutdown();
}

void ConnectionPool::registerThread() {
    auto& pools = t_threadPools.pools;
    std::erase_if(pools, [](const std::weak_ptr<ConnectionPool>& w) { return w.expired(); });
    for (const auto& weak : pools) {
        if (weak.lock().get() == this) {
            return;
        }
    }
    pools.push_back(weak_from_this());
}

QSqlDatabase ConnectionPool::database(const PooledConnection* connection) const {
    return QSqlDatabase::database(connection->name, false);
}

PooledConnection* ConnectionPool::acquire(DbError& error) {
    const std::thread::id self = std::this_thread::get_id();
    PooledConnection* connection = nullptr;
    bool fresh = false;
    bool check = false;
    {
        QMutexLocker lock(&m_mutex);
        if (m_shutdown) {
            error = DbError::connectionLost(QStringLiteral("the database has been closed"));
            return nullptr;
        }
        for (const auto& c : m_connections) {
            if (c->thread == self && !c->inUse) {
                connection = c.get();
                break;
            }
        }
        if (connection != nullptr) {
            check =
                !connection->idle.isValid() || connection->idle.elapsed() >= m_options.idleCheckMs;
        } else {
            auto created = std::make_unique<PooledConnection>();
            created->name = m_prefix + QString::number(m_nextNumber++);
            created->thread = self;
            connection = created.get();
            m_connections.push_back(std::move(created));
            fresh = true;
        }
        connection->inUse = true;
    }
    if (fresh) {
        registerThread();
        if (!open(connection, error)) {
            discard(connection);
            return nullptr;
        }
        return connection;
    }
    const bool healthy = database(connection).isOpen() && (!check || ping(connection));
    if (!healthy) {
        // Broken while idle (a server restart): re-open once before giving up.
        close(connection);
        if (!open(connection, error)) {
            discard(connection);
            return nullptr;
        }
    } else if (!attachOtherDatabases(connection, error)) {
        discard(connection);
        return nullptr;
    }
    return connection;
}

bool ConnectionPool::ensureAlive(PooledConnection* connection, DbError& error) {
    if (m_settings.backend == Backend::SQLite || connection->inTransaction) {
        return true;
    }
    if (!connection->broken && database(connection).isOpen() && ping(connection)) {
        return true;
    }
    close(connection);
    return open(connection, error);
}

bool ConnectionPool::open(PooledConnection* connection, DbError& error) {
    connection->statements.clear();
    connection->attachedCount = 0;
    connection->broken = false;
    connection->inTransaction = false;
    {
        QSqlDatabase db = QSqlDatabase::contains(connection->name)
                              ? QSqlDatabase::database(connection->name, false)
                              : QSqlDatabase::addDatabase(m_settings.qtDriver(), connection->name);
        if (!db.isValid()) {
            error = DbError::connectionLost(
                QStringLiteral("the Qt SQL driver %1 is not available").arg(m_settings.qtDriver()));
            return false;
        }
        switch (m_settings.backend) {
            case Backend::SQLite: {
                const QString file = m_settings.sqliteFile();
                if (m_options.createSqliteFile) {
                    QDir().mkpath(QFileInfo(file).absolutePath());
                } else if (!QFileInfo::exists(file)) {
                    error = DbError::connectionLost(
                        QStringLiteral("the database file %1 does not exist").arg(file));
                    return false;
                }
                db.setDatabaseName(file);
                db.setConnectOptions(
                    QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(m_options.sqliteBusyTimeoutMs));
                break;
            }
            case Backend::PostgreSQL:
                db.setHostName(m_settings.host);
                db.setPort(m_settings.port > 0 ? m_settings.port : -1);
                db.setUserName(m_settings.user);
                db.setPassword(m_settings.password);
                db.setDatabaseName(m_settings.catalog);
                db.setConnectOptions(
                    QStringLiteral("connect_timeout=%1").arg(m_options.connectTimeoutSeconds));
                break;
            case Backend::SqlServer:
                db.setDatabaseName(m_settings.odbcConnectionString());
                db.setConnectOptions(QStringLiteral("SQL_ATTR_LOGIN_TIMEOUT=%1")
                                         .arg(m_options.connectTimeoutSeconds));
                break;
        }
        db.setNumericalPrecisionPolicy(QSql::LowPrecisionDouble);
        if (!db.open()) {
            error = openError(db, m_settings.backend);
            return false;
        }
        m_connects.fetch_add(1);
        if (m_settings.backend == Backend::SQLite &&
            (!checkSqliteIntegrity(db, error) || !configureSqlite(db, error))) {
            db.close();
            return false;
        }
        if (m_settings.backend == Backend::PostgreSQL) {
            QSqlQuery quiet(db);
            quiet.exec(QStringLiteral("SET client_min_messages TO WARNING"));
            // Every run of a prepared statement is planned for its values and the tables
            // as they are: a generic plan made while a table was empty (a new shop) would
            // otherwise be kept for the life of the connection.
            quiet.exec(QStringLiteral("SET plan_cache_mode = force_custom_plan"));
        }
    }
    return attachOtherDatabases(connection, error);
}

bool ConnectionPool::checkSqliteIntegrity(QSqlDatabase& db, DbError& error) {
    // The first connection of the program to a shop file looks it over before anything
    // writes to it (even the journal mode is a write): a damaged file is refused whole
    // rather than half-written. quick_check reads every page but skips the index contents.
    if (m_integrityChecked.load()) {
        return true;
    }
    QSqlQuery q(db);
    const QString check = QStringLiteral("PRAGMA quick_check");
    if (!q.exec(check)) {
        error = DbError::fromSqlError(q.lastError(), Backend::SQLite, true, check);
        if (error.kind == DbErrorKind::ConnectionLost || error.kind == DbErrorKind::Other) {
            error.kind = DbErrorKind::Damaged;
        }
        return false;
    }
    QStringList problems;
    while (q.next()) {
        problems << q.value(0).toString();
    }
    if (problems != QStringList{QStringLiteral("ok")}) {
        error = DbError{};
        error.kind = DbErrorKind::Damaged;
        error.driverText = QStringLiteral("quick_check: ") + problems.join(QStringLiteral("; "));
        error.sql = check;
        return false;
    }
    m_integrityChecked.store(true);
    return true;
}

bool ConnectionPool::configureSqlite(QSqlDatabase& db, DbError& error) {
    // WAL lets the other desks read while one writes. synchronous stays FULL: a sale whose
    // receipt has been handed out must survive a power cut, and a commit on a cash desk is
    // rare enough that its fsync does not matter. A 64 MB page cache (negative: KiB) keeps
    // the goods, stock and document tables of a shop in memory across statements, and
    // temporary sort and grouping tables stay in memory. Reads go through a memory map of
    // up to 1 GB: a look-up over an article's scattered purchase lines in a shop of a
    // million documents then costs page faults on cached pages instead of a read call per
    // page (half the time of the average purchase price there).
    static const char* const pragmas[] = {
        "PRAGMA foreign_keys = ON",   "PRAGMA journal_mode = WAL",  "PRAGMA synchronous = FULL",
        "PRAGMA cache_size = -65536", "PRAGMA temp_store = MEMORY", "PRAGMA mmap_size = 1073741824",
    };
    // Waits for another desk's write through SqliteBusyWait; Qt's busy timeout (set on
    // open) stays when the driver's handle is not SQLite's own.
    SqliteBusyWait::install(db, m_options.sqliteBusyTimeoutMs);
    QSqlQuery q(db);
    for (const char* pragma : pragmas) {
        if (!q.exec(QString::fromLatin1(pragma))) {
            error = DbError::fromSqlError(q.lastError(), Backend::SQLite, true,
                                          QString::fromLatin1(pragma));
            return false;
        }
    }
    return true;
}

bool ConnectionPool::attachOtherDatabases(PooledConnection* connection, DbError& error) {
    if (m_settings.backend != Backend::SQLite) {
        return true;
    }
    const QStringList names = otherDatabases();
    if (connection->attachedCount >= names.size()) {
        return true;
    }
    QSqlDatabase db = database(connection);
    for (qsizetype i = connection->attachedCount; i < names.size(); ++i) {
        const QString schema = m_dialect->quote(names.at(i));
        const QString attach = QStringLiteral("ATTACH DATABASE :file AS ") + schema;
        QSqlQuery q(db);
        q.prepare(attach);
        q.bindValue(QStringLiteral(":file"), m_settings.sqliteFile(names.at(i)));
        if (!q.exec() || !q.exec(QStringLiteral("PRAGMA %1.journal_mode = WAL").arg(schema))) {
            error = DbError::fromSqlError(q.lastError(), Backend::SQLite, db.isOpen(), attach);
            return false;
        }
    }
    connection->attachedCount = int(names.size());
    return true;
}

bool ConnectionPool::ping(PooledConnection* connection) {
    if (m_settings.backend == Backend::SQLite) {
        return true;  // a file: open is alive
    }
    QSqlQuery q(database(connection));
    return q.exec(QStringLiteral("SELECT 1"));
}

void ConnectionPool::close(PooledConnection* connection) {
    connection->statements.clear();
    QSqlDatabase db = database(connection);
    db.close();
}

void ConnectionPool::discard(PooledConnection* connection) {
    const QString name = connection->name;
    connection->statements.clear();
    if (connection->thread == std::this_thread::get_id()) {
        close(connection);
    }
    QSqlDatabase::removeDatabase(name);
    QMutexLocker lock(&m_mutex);
    m_connections.remove_if(
        [connection](const std::unique_ptr<PooledConnection>& c) { return c.get() == connection; });
}

void ConnectionPool::release(PooledConnection* connection) {
    bool drop = false;
    {
        QMutexLocker lock(&m_mutex);
        drop = connection->broken || m_shutdown;
    }
    if (!drop) {
        drop = !database(connection).isOpen();
    }
    if (drop) {
        discard(connection);
        return;
    }
    connection->idle.start();
    QMutexLocker lock(&m_mutex);
    connection->inUse = false;
}

void ConnectionPool::shutdown() {
    std::vector<PooledConnection*> idle;
    {
        QMutexLocker lock(&m_mutex);
        m_shutdown = true;
        for (const auto& c : m_connections) {
            if (!c->inUse) {
                idle.push_back(c.get());
            }
        }
    }
    for (PooledConnection* c : idle) {
        discard(c);
    }
}

void ConnectionPool::closeThreadConnections() {
    const std::thread::id self = std::this_thread::get_id();
    std::vector<PooledConnection*> mine;
    {
        QMutexLocker lock(&m_mutex);
        for (const auto& c : m_connections) {
            if (c->thread == self && !c->inUse) {
                mine.push_back(c.get());
            }
        }
    }
    for (PooledConnection* c : mine) {
        discard(c);
    }
}

void ConnectionPool::reportConnectionFailure() const {
    if (m_messages != nullptr) {
        m_messages->show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
    }
}

void ConnectionPool::reportOpenFailure(const DbError& error, const QString& moduleName,
                                       const QString& routineName) const {
    const QString message = error.userMessage();
    if (message.isEmpty()) {
        reportConnectionFailure();
    } else if (m_errorLog != nullptr) {
        m_errorLog->LogError(error.toAppError(), moduleName, routineName, message);
    } else if (m_messages != nullptr) {
        m_messages->show(message, MessageStyle::Critical);
    }
}

void ConnectionPool::addOtherDatabase(const QString& name) {
    QMutexLocker lock(&m_mutex);
    for (const QString& known : std::as_const(m_otherDatabases)) {
        if (known.compare(name, Qt::CaseInsensitive) == 0) {
            return;
        }
    }
    m_otherDatabases << name;
}

QStringList ConnectionPool::otherDatabases() const {
    QMutexLocker lock(&m_mutex);
    return m_otherDatabases;
}

int ConnectionPool::openConnections() const {
    QMutexLocker lock(&m_mutex);
    return int(m_connections.size());
}

}  // namespace sandogh
