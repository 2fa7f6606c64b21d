#include "data/Session.h"

#include <QDebug>

#include "data/ConnectionPool.h"
#include "data/ErrorLog.h"
#include "data/RoundTrips.h"
#include "data/SqlQuery.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

// Prepared statements kept per connection; beyond this the free ones are dropped.
constexpr qsizetype kStatementCacheSize = 64;

const DbError& noError() {
    static const DbError none;
    return none;
}

}  // namespace

QSqlDatabase Session::State::database() const {
    return connection != nullptr ? pool->database(connection) : QSqlDatabase();
}

void Session::State::fail(const DbError& error, FailureLogging logging) {
    lastError = error;
    if (error.kind == DbErrorKind::ConnectionLost) {
        if (connection != nullptr) {
            connection->broken = true;
        }
        if (logging != FailureLogging::Quiet && !connectionMessageShown) {
            connectionMessageShown = true;
            pool->reportConnectionFailure();
        }
        return;
    }
    if (logging == FailureLogging::Quiet ||
        (logging == FailureLogging::QuietKeyConflicts && error.kind == DbErrorKind::KeyConflict)) {
        return;
    }
    // A failure the program can name (busy, foreign key, permission, full disk, damaged)
    // shows its own message in place of the error's lines; the record is the same.
    const QString message = error.userMessage();
    if (pool->errorLog() != nullptr && !message.isEmpty()) {
        pool->errorLog()->LogError(error.toAppError(), moduleName, routineName, message);
    } else if (pool->errorLog() != nullptr) {
        pool->errorLog()->LogError(error.toAppError(), moduleName, routineName);
    } else {
        if (!message.isEmpty() && pool->messages() != nullptr) {
            pool->messages()->show(message, MessageStyle::Critical);
        }
        qWarning().noquote() << "sandogh:" << moduleName << routineName << error.text()
                             << error.sql;
    }
}

std::shared_ptr<QSqlQuery> Session::State::statement(const QString& sql, bool& prepared) {
    auto& cache = connection->statements;
    const auto it = cache.constFind(sql);
    if (it != cache.constEnd() && it.value().use_count() == 1) {
        prepared = true;
        return it.value();
    }
    auto query = std::make_shared<QSqlQuery>(database());
    query->setForwardOnly(forwardOnly());
    RoundTrips::add();
    prepared = query->prepare(sql);
    if (prepared && it == cache.constEnd()) {
        if (cache.size() >= kStatementCacheSize) {
            cache.removeIf([](const auto& entry) { return entry.value().use_count() == 1; });
        }
        cache.insert(sql, query);
    }
    return query;
}

bool Session::State::forwardOnly() const {
    // PostgreSQL streams a forward-only result row by row and the next statement on the
    // connection discards the rest of it; SQL Server refuses the next statement while a
    // forward-only result is pending. Reading the whole result (a static cursor) lets a
    // routine run a look-up while it walks a list, as the screens do.
    return pool->backend() == Backend::SQLite;
}

void Session::State::forgetStatement(const QString& sql) {
    if (connection != nullptr) {
        connection->statements.remove(sql);
    }
}

void Session::State::forgetStatements() {
    if (connection != nullptr) {
        connection->statements.removeIf(
            [](const auto& entry) { return entry.value().use_count() == 1; });
    }
}

Session::Session() : m_state(std::make_unique<State>()) {}

Session::Session(std::shared_ptr<ConnectionPool> pool, PooledConnection* connection, DbError error,
                 QString moduleName, QString routineName)
    : m_state(std::make_unique<State>()) {
    m_state->pool = std::move(pool);
    m_state->connection = connection;
    m_state->lastError = std::move(error);
    m_state->moduleName = std::move(moduleName);
    m_state->routineName = std::move(routineName);
    m_state->connectionMessageShown = connection == nullptr;
}

Session::~Session() {
    release();
}

Session::Session(Session&& other) noexcept : m_state(std::move(other.m_state)) {}

Session& Session::operator=(Session&& other) noexcept {
    if (this != &other) {
        release();
        m_state = std::move(other.m_state);
    }
    return *this;
}

bool Session::isValid() const {
    return m_state && m_state->isValid();
}

Backend Session::backend() const {
    return dialect().backend();
}

const Dialect& Session::dialect() const {
    Q_ASSERT(m_state && m_state->pool);
    return m_state->pool->dialect();
}

QSqlDatabase Session::connection() const {
    return m_state ? m_state->database() : QSqlDatabase();
}

const QString& Session::moduleName() const {
    static const QString none;
    return m_state ? m_state->moduleName : none;
}

const QString& Session::routineName() const {
    static const QString none;
    return m_state ? m_state->routineName : none;
}

const DbError& Session::lastError() const {
    return m_state ? m_state->lastError : noError();
}

bool Session::inTransaction() const {
    return isValid() && m_state->connection->inTransaction;
}

void Session::release() {
    if (!isValid()) {
        return;
    }
    PooledConnection* connection = m_state->connection;
    if (connection->inTransaction && !connection->broken) {
        // A transaction still open here was abandoned: undo it before the connection
        // serves another routine.
        QSqlDatabase db = m_state->database();
        if (backend() == Backend::SQLite) {
            QSqlQuery(db).exec(QStringLiteral("ROLLBACK"));
        } else {
            db.rollback();
        }
    }
    connection->inTransaction = false;
    m_state->connection = nullptr;
    m_state->pool->release(connection);
}

bool Session::exec(const QString& sql, const SqlBinds& binds, FailureLogging logging) {
    SqlQuery query(*this, sql);
    query.setLogging(logging);
    for (const auto& [name, value] : binds) {
        query.bindValue(name, value);
    }
    return query.exec();
}

QVariant Session::scalar(const QString& sql, const SqlBinds& binds) {
    SqlQuery query(*this, sql);
    for (const auto& [name, value] : binds) {
        query.bindValue(name, value);
    }
    if (!query.exec() || !query.next()) {
        return {};
    }
    return query.value(0);
}

QString Session::scalarText(const QString& sql, const SqlBinds& binds, const QString& fallback) {
    const QVariant v = scalar(sql, binds);
    return v.isNull() ? fallback : v.toString();
}

qint64 Session::scalarInt64(const QString& sql, const SqlBinds& binds, qint64 fallback) {
    const QVariant v = scalar(sql, binds);
    if (v.isNull()) {
        return fallback;
    }
    const int type = v.metaType().id();
    bool ok = false;
    if (type != QMetaType::Double && type != QMetaType::Float) {
        const qint64 n = v.toLongLong(&ok);
        if (ok) {
            return n;
        }
    }
    const double d = v.toDouble(&ok);
    return ok ? qint64(d) : fallback;
}

double Session::scalarNumber(const QString& sql, const SqlBinds& binds, double fallback) {
    const QVariant v = scalar(sql, binds);
    bool ok = false;
    const double d = v.toDouble(&ok);
    return v.isNull() || !ok ? fallback : d;
}

}  // namespace sandogh
