#include "data/schema/Migrator.h"

#include <QDateTime>

#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/schema/MigrationRenderer.h"
#include "data/schema/SchemaReader.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("Migrator");

}  // namespace

Migrator::Migrator(Database& database) : m_database(database) {}

QStringList Migrator::otherDatabasesOf(const QList<MigrationStep>& steps) {
    QStringList names;
    const std::unique_ptr<Dialect> dialect = Dialect::create(Backend::PostgreSQL);
    MigrationRenderer renderer(*dialect);
    for (const MigrationStep& step : steps) {
        for (const QString& name : renderer.render(step).otherDatabases) {
            if (!names.contains(name, Qt::CaseInsensitive)) {
                names << name;
            }
        }
    }
    return names;
}

bool Migrator::fail(Result& result, const QString& message, const DbError& error) {
    result.ok = false;
    result.message = error.isError() ? message + QStringLiteral(": ") + error.text() : message;
    result.error = error;
    return false;
}

int Migrator::currentVersion() {
    Session session = m_database.session(kModule, QStringLiteral("currentVersion"));
    if (!session) {
        return -1;
    }
    if (!SchemaReader::tableExists(session, QStringLiteral("SchemaVersion"))) {
        return session.lastError().isError() ? -1 : 0;
    }
    SqlQuery q(session, QStringLiteral("SELECT MAX(Version) FROM SchemaVersion"));
    if (!q.exec()) {
        return -1;
    }
    return q.next() ? q.integer(0) : 0;
}

bool Migrator::ensureVersionTable(Session& session, Result& result) {
    if (SchemaReader::tableExists(session, QStringLiteral("SchemaVersion"))) {
        return true;
    }
    if (session.lastError().isError()) {
        return fail(result, QStringLiteral("cannot read the tables"), session.lastError());
    }
    Transaction tx(session);
    if (!tx.isActive()) {
        return fail(result, QStringLiteral("cannot begin a transaction"), tx.error());
    }
    for (const QString& sql :
         session.dialect().createTable(MigrationRenderer::schemaVersionTable(), {})) {
        if (!session.exec(sql)) {
            return fail(result, QStringLiteral("cannot create SchemaVersion"), session.lastError());
        }
    }
    if (!tx.commit()) {
        return fail(result, QStringLiteral("cannot create SchemaVersion"), tx.error());
    }
    return true;
}

bool Migrator::ensureOtherDatabase(Session& session, const QString& name, Result& result) {
    const Dialect& dialect = session.dialect();
    if (dialect.otherDatabaseExistsSql().isEmpty()) {
        return true;  // SQLite: attached by the pool
    }
    SqlQuery exists(session, dialect.otherDatabaseExistsSql());
    exists.bind(QStringLiteral(":name"), dialect.otherDatabaseName(name));
    if (!exists.exec()) {
        return fail(result, QStringLiteral("cannot look for database %1").arg(name),
                    exists.error());
    }
    if (exists.next() && exists.int64(0) > 0) {
        return true;
    }
    if (!session.exec(dialect.createOtherDatabase(name))) {
        return fail(result, QStringLiteral("cannot create database %1").arg(name),
                    session.lastError());
    }
    return true;
}

bool Migrator::applyStep(Session& session, const MigrationStep& step, const QStringList& statements,
                         bool rebuildsTables, Result& result) {
    const QString what = QStringLiteral("step %1 (%2)").arg(step.version).arg(step.description);
    Transaction tx(session);
    if (!tx.isActive()) {
        return fail(result, what + QStringLiteral(": cannot begin a transaction"), tx.error());
    }
    for (const QString& sql : statements) {
        if (!session.exec(sql)) {
            return fail(result, what, session.lastError());
        }
    }
    if (rebuildsTables) {
        // Rebuilt tables were copied with enforcement off: their rows must still hold.
        SqlQuery check(session, QStringLiteral("PRAGMA foreign_key_check"));
        if (!check.exec()) {
            return fail(result, what, check.error());
        }
        if (check.next()) {
            return fail(
                result,
                what + QStringLiteral(": rows of %1 break a foreign key").arg(check.text(0)));
        }
    }
    SqlQuery record(session, QStringLiteral("INSERT INTO SchemaVersion (Version, Description, "
                                            "AppliedAt) VALUES (:version, :description, :at)"));
    record.bind(QStringLiteral(":version"), step.version);
    record.bind(QStringLiteral(":description"), step.description.left(255));
    record.bind(QStringLiteral(":at"), QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    if (!record.exec()) {
        return fail(result, what, record.error());
    }
    if (!tx.commit()) {
        return fail(result, what, tx.error());
    }
    return true;
}

Migrator::Result Migrator::apply(const QList<MigrationStep>& steps) {
    Result result;
    int previous = 0;
    for (const MigrationStep& step : steps) {
        if (step.version <= previous) {
            fail(result, QStringLiteral("step versions must rise from 1: %1 follows %2")
                             .arg(step.version)
                             .arg(previous));
            return result;
        }
        previous = step.version;
    }

    Session session = m_database.session(kModule, QStringLiteral("apply"));
    if (!session) {
        fail(result, QStringLiteral("cannot connect"), session.lastError());
        return result;
    }
    if (!ensureVersionTable(session, result)) {
        return result;
    }
    result.versionBefore = int(session.scalarInt64(
        QStringLiteral("SELECT COALESCE(MAX(Version), 0) FROM SchemaVersion"), {}, -1));
    if (result.versionBefore < 0) {
        fail(result, QStringLiteral("cannot read SchemaVersion"), session.lastError());
        return result;
    }
    result.versionAfter = result.versionBefore;

    const bool sqlite = m_database.backend() == Backend::SQLite;
    MigrationRenderer renderer(m_database.dialect());
    for (const MigrationStep& step : steps) {
        const MigrationRenderer::Rendered rendered = renderer.render(step);
        if (step.version <= result.versionBefore) {
            continue;
        }
        bool attachedNew = false;
        for (const QString& name : rendered.otherDatabases) {
            if (sqlite) {
                attachedNew =
                    attachedNew || !m_database.otherDatabases().contains(name, Qt::CaseInsensitive);
                m_database.addOtherDatabase(name);
            } else if (!ensureOtherDatabase(session, name, result)) {
                return result;
            }
        }
        if (attachedNew) {
            // A session taken anew attaches the files added since the last one; the old
            // one goes back first so that the same connection is handed out again.
            session = Session();
            session = m_database.session(kModule, QStringLiteral("apply"));
            if (!session) {
                fail(result, QStringLiteral("cannot connect"), session.lastError());
                return result;
            }
        }
        if (rendered.rebuildsTables) {
            session.exec(QStringLiteral("PRAGMA foreign_keys = OFF"));
        }
        const bool ok =
            applyStep(session, step, rendered.statements, rendered.rebuildsTables, result);
        if (rendered.rebuildsTables) {
            session.exec(QStringLiteral("PRAGMA foreign_keys = ON"));
        }
        if (!ok) {
            return result;
        }
        result.applied << step.version;
        result.versionAfter = step.version;
    }
    result.ok = true;
    return result;
}

}  // namespace sandogh
