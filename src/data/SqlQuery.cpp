#include "data/SqlQuery.h"

#include <QSqlDatabase>

#include "data/ConnectionPool.h"
#include "data/RoundTrips.h"

namespace sandogh {

namespace {

QString placeholder(const QString& name) {
    return name.startsWith(QLatin1Char(':')) ? name : QLatin1Char(':') + name;
}

QVariant typedNull(ColumnType type) {
    switch (type) {
        case ColumnType::Int:
        case ColumnType::Bool:
            return QVariant(QMetaType::fromType<int>());
        case ColumnType::BigInt:
            return QVariant(QMetaType::fromType<qint64>());
        case ColumnType::Money:
        case ColumnType::Float:
            return QVariant(QMetaType::fromType<double>());
        case ColumnType::Text:
        case ColumnType::LongText:
            return QVariant(QMetaType::fromType<QString>());
        case ColumnType::Blob:
            return QVariant(QMetaType::fromType<QByteArray>());
    }
    return QVariant(QMetaType::fromType<QString>());
}

bool isFloating(const QVariant& v) {
    const int id = v.metaType().id();
    return id == QMetaType::Double || id == QMetaType::Float;
}

}  // namespace

SqlQuery::SqlQuery(Session& session, QString sql)
    : m_session(session.state()), m_sql(std::move(sql)) {}

SqlQuery::~SqlQuery() {
    if (m_query) {
        m_query->finish();
    }
}

SqlQuery& SqlQuery::bindValue(const QString& name, const QVariant& value) {
    const QString key = placeholder(name);
    QVariant v = value;
    if (v.metaType().id() == QMetaType::Bool) {
        v = QVariant(v.toBool() ? 1 : 0);  // flags are small integers on every backend
    } else if (v.metaType().id() == QMetaType::QString && !v.isNull() && v.toString().isNull()) {
        // A default-constructed QString is empty text, not NULL; bindNull() binds NULL.
        v = QVariant(QString(QLatin1String("")));
    }
    for (auto& bound : m_binds) {
        if (bound.first == key) {
            bound.second = v;
            return *this;
        }
    }
    m_binds.append({key, v});
    return *this;
}

SqlQuery& SqlQuery::bind(const QString& name, const QString& value) {
    return bindValue(name, value);
}

SqlQuery& SqlQuery::bind(const QString& name, const char* value) {
    return bind(name, QString::fromUtf8(value));
}

SqlQuery& SqlQuery::bind(const QString& name, int value) {
    return bindValue(name, value);
}

SqlQuery& SqlQuery::bind(const QString& name, qint64 value) {
    return bindValue(name, QVariant::fromValue(value));
}

SqlQuery& SqlQuery::bind(const QString& name, double value) {
    return bindValue(name, value);
}

SqlQuery& SqlQuery::bind(const QString& name, bool value) {
    return bindValue(name, value);
}

SqlQuery& SqlQuery::bind(const QString& name, const QByteArray& value) {
    return bindValue(name, value);
}

SqlQuery& SqlQuery::bindNull(const QString& name, ColumnType type) {
    return bindValue(name, typedNull(type));
}

SqlQuery& SqlQuery::setLogging(FailureLogging logging) {
    m_logging = logging;
    return *this;
}

bool SqlQuery::fail(DbError error) {
    error.sql = m_sql;
    m_error = error;
    if (m_session != nullptr) {
        if (m_error.nativeCode == QLatin1String("0A000")) {
            // PostgreSQL: the prepared plan no longer fits the tables; prepare anew.
            m_session->forgetStatement(m_sql);
        }
        if (m_session->pool) {
            m_session->fail(m_error, m_logging);
        }
    }
    return false;
}

bool SqlQuery::exec() {
    m_error = {};
    m_recordRead = false;
    if (m_session == nullptr || !m_session->isValid()) {
        // The session has no connection: its failure has been reported already.
        DbError lost = m_session != nullptr && m_session->lastError.isConnectionLost()
                           ? m_session->lastError
                           : DbError::connectionLost(QStringLiteral("no database connection"));
        lost.sql = m_sql;
        m_error = lost;
        return false;
    }
    QSqlDatabase db = m_session->database();
    const Backend backend = m_session->pool->backend();
    if (!db.isOpen()) {
        return fail(DbError::connectionLost(QStringLiteral("the connection is closed")));
    }
    if (m_query) {
        m_query->finish();
    }
    RoundTrips::add();
    bool ok = false;
    if (m_binds.isEmpty()) {
        // Without values the statement runs as it stands (DDL cannot be prepared on
        // every server).
        m_query = std::make_shared<QSqlQuery>(db);
        m_query->setForwardOnly(m_session->forwardOnly());
        m_prepared = false;
        ok = m_query->exec(m_sql);
        const QString head = m_sql.trimmed().left(6).toUpper();
        if (ok &&
            (head.startsWith(QLatin1String("CREATE")) || head.startsWith(QLatin1String("ALTER")) ||
             head.startsWith(QLatin1String("DROP")))) {
            m_session->forgetStatements();
        }
    } else {
        if (!m_query || !m_prepared) {
            m_query = m_session->statement(m_sql, m_prepared);
            if (!m_prepared) {
                return fail(DbError::fromSqlError(m_query->lastError(), backend, db.isOpen()));
            }
        }
        for (const auto& [name, value] : std::as_const(m_binds)) {
            m_query->bindValue(name, value);
        }
        ok = m_query->exec();
    }
    if (!ok) {
        return fail(DbError::fromSqlError(m_query->lastError(), backend, db.isOpen()));
    }
    return true;
}

bool SqlQuery::next() {
    return m_query && m_query->isActive() && m_query->next();
}

int SqlQuery::columnCount() const {
    if (!m_query) {
        return 0;
    }
    if (!m_recordRead) {
        m_record = m_query->record();
        m_recordRead = true;
    }
    return int(m_record.count());
}

int SqlQuery::columnIndex(const QString& name) const {
    if (columnCount() == 0) {
        return -1;
    }
    return int(m_record.indexOf(name));
}

QVariant SqlQuery::value(int column) const {
    if (!m_query || column < 0 || column >= columnCount() || !m_query->isValid()) {
        return {};
    }
    return m_query->value(column);
}

QVariant SqlQuery::value(const QString& column) const {
    return value(columnIndex(column));
}

bool SqlQuery::isNull(int column) const {
    if (!m_query || column < 0 || column >= columnCount() || !m_query->isValid()) {
        return true;
    }
    return m_query->isNull(column);
}

bool SqlQuery::isNull(const QString& column) const {
    return isNull(columnIndex(column));
}

QString SqlQuery::text(int column, const QString& fallback) const {
    return isNull(column) ? fallback : value(column).toString();
}

QString SqlQuery::text(const QString& column, const QString& fallback) const {
    return text(columnIndex(column), fallback);
}

qint64 SqlQuery::int64(int column, qint64 fallback) const {
    if (isNull(column)) {
        return fallback;
    }
    const QVariant v = value(column);
    bool ok = false;
    if (isFloating(v)) {
        return qint64(v.toDouble());
    }
    const qint64 n = v.toLongLong(&ok);
    if (ok) {
        return n;
    }
    const double d = v.toDouble(&ok);
    return ok ? qint64(d) : fallback;
}

qint64 SqlQuery::int64(const QString& column, qint64 fallback) const {
    return int64(columnIndex(column), fallback);
}

int SqlQuery::integer(int column, int fallback) const {
    return int(int64(column, fallback));
}

int SqlQuery::integer(const QString& column, int fallback) const {
    return integer(columnIndex(column), fallback);
}

double SqlQuery::number(int column, double fallback) const {
    if (isNull(column)) {
        return fallback;
    }
    bool ok = false;
    const double d = value(column).toDouble(&ok);
    return ok ? d : fallback;
}

double SqlQuery::number(const QString& column, double fallback) const {
    return number(columnIndex(column), fallback);
}

QString SqlQuery::date(int column) const {
    const QString d = text(column);
    return d.isEmpty() ? QString::fromLatin1(kEmptyDate) : d;
}

QString SqlQuery::date(const QString& column) const {
    return date(columnIndex(column));
}

int SqlQuery::rowsAffected() const {
    return m_query ? m_query->numRowsAffected() : -1;
}

}  // namespace sandogh
