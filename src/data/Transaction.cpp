#include "data/Transaction.h"

#include <QSqlQuery>

#include "data/ConnectionPool.h"
#include "data/RoundTrips.h"

namespace sandogh {

Transaction::Transaction(Session& session, FailureLogging logging)
    : m_session(session.state()), m_logging(logging) {
    if (m_session == nullptr || !m_session->isValid()) {
        m_error = DbError::connectionLost(QStringLiteral("no database connection"));
        return;
    }
    if (m_session->connection->inTransaction) {
        m_error.kind = DbErrorKind::Other;
        m_error.driverText = QStringLiteral("a transaction is already open on this session");
        m_session->fail(m_error, m_logging);
        return;
    }
    if (!m_session->pool->ensureAlive(m_session->connection, m_error)) {
        m_session->fail(m_error, m_logging);
        return;
    }
    if (!runControl(QStringLiteral("BEGIN IMMEDIATE"), &QSqlDatabase::transaction, m_error)) {
        m_session->fail(m_error, m_logging);
        return;
    }
    m_session->connection->inTransaction = true;
    m_active = true;
}

Transaction::~Transaction() {
    if (m_active) {
        rollback();
    }
}

Transaction::Transaction(Transaction&& other) noexcept
    : m_session(other.m_session)
    , m_logging(other.m_logging)
    , m_active(other.m_active)
    , m_error(std::move(other.m_error)) {
    other.m_active = false;
    other.m_session = nullptr;
}

Transaction& Transaction::operator=(Transaction&& other) noexcept {
    if (this != &other) {
        if (m_active) {
            rollback();
        }
        m_session = other.m_session;
        m_logging = other.m_logging;
        m_active = other.m_active;
        m_error = std::move(other.m_error);
        other.m_active = false;
        other.m_session = nullptr;
    }
    return *this;
}

bool Transaction::runControl(const QString& sqliteStatement, bool (QSqlDatabase::*operation)(),
                             DbError& error) {
    QSqlDatabase db = m_session->database();
    const Backend backend = m_session->pool->backend();
    bool ok = false;
    QSqlError failure;
    if (!db.isOpen()) {
        error = DbError::connectionLost(QStringLiteral("the connection is closed"));
        error.sql = sqliteStatement;
        return false;
    }
    RoundTrips::add();
    if (backend == Backend::SQLite) {
        QSqlQuery q(db);
        ok = q.exec(sqliteStatement);
        failure = q.lastError();
    } else {
        ok = (db.*operation)();
        failure = db.lastError();
    }
    if (!ok) {
        error = DbError::fromSqlError(failure, backend, db.isOpen(), sqliteStatement);
    }
    return ok;
}

void Transaction::finish() {
    m_active = false;
    if (m_session != nullptr && m_session->connection != nullptr) {
        m_session->connection->inTransaction = false;
    }
}

bool Transaction::commit() {
    if (!m_active || m_session == nullptr || !m_session->isValid()) {
        finish();
        return false;
    }
    if (runControl(QStringLiteral("COMMIT"), &QSqlDatabase::commit, m_error)) {
        finish();
        return true;
    }
    m_session->fail(m_error, m_logging);
    // SQLite keeps a transaction whose COMMIT failed open, and ODBC stays out of
    // autocommit; neither may reach the next routine. PostgreSQL has ended it already.
    if (m_session->pool->backend() != Backend::PostgreSQL) {
        DbError ignored;
        runControl(QStringLiteral("ROLLBACK"), &QSqlDatabase::rollback, ignored);
    }
    finish();
    return false;
}

bool Transaction::rollback() {
    if (!m_active || m_session == nullptr || !m_session->isValid()) {
        finish();
        return false;
    }
    if (m_session->connection->broken || !m_session->database().isOpen()) {
        // The server dropped the connection, and the transaction with it.
        finish();
        return true;
    }
    DbError error;
    const bool ok = runControl(QStringLiteral("ROLLBACK"), &QSqlDatabase::rollback, error);
    finish();
    if (!ok) {
        m_error = error;
        m_session->fail(m_error, m_logging);
    }
    return ok;
}

}  // namespace sandogh
