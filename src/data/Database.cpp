#include "data/Database.h"

#include "data/ConnectionPool.h"

namespace sandogh {

const QString& Database::connectionFailureMessage() {
    static const QString message = QStringLiteral("خطا در برقراري ارتباط با سرور بانک اطلاعاتي");
    return message;
}

Database::Database(ConnectionSettings settings, MessageService* messages, ErrorLog* errorLog,
                   DatabaseOptions options)
    : m_pool(std::make_shared<ConnectionPool>(std::move(settings), std::move(options), messages,
                                              errorLog)) {}

Database::~Database() {
    m_pool->shutdown();
}

Session Database::session(const QString& moduleName, const QString& routineName) {
    DbError error;
    PooledConnection* connection = m_pool->acquire(error);
    if (connection == nullptr) {
        m_pool->reportOpenFailure(error, moduleName, routineName);
    }
    return Session(m_pool, connection, error, moduleName, routineName);
}

Backend Database::backend() const {
    return m_pool->backend();
}

const Dialect& Database::dialect() const {
    return m_pool->dialect();
}

const ConnectionSettings& Database::settings() const {
    return m_pool->settings();
}

void Database::addOtherDatabase(const QString& name) {
    m_pool->addOtherDatabase(name);
}

QStringList Database::otherDatabases() const {
    return m_pool->otherDatabases();
}

int Database::physicalConnects() const {
    return m_pool->physicalConnects();
}

int Database::pooledConnections() const {
    return m_pool->openConnections();
}

}  // namespace sandogh
