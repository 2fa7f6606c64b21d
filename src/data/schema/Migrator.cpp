#include "data/schema/Migrator.h"

#include <QDateTime>
#include <QHash>
#include <QMap>

#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/schema/MigrationRenderer.h"
#include "data/schema/SchemaReader.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("Migrator");

// The other databases a step's objects live in, in order of first mention.
QStringList databasesOf(const MigrationStep& step) {
    QStringList names;
    const auto add = [&names](const QString& name) {
        if (!name.isEmpty() && !names.contains(name, Qt::CaseInsensitive)) {
            names << name;
        }
    };
    for (const TableDef& t : step.tables) {
        add(t.database);
    }
    for (const AddColumnDef& a : step.addColumns) {
        add(a.database);
    }
    for (const IndexDef& i : step.indexes) {
        add(i.database);
    }
    return names;
}

}  // namespace

MigrationStep Migrator::withoutExistingOtherObjects(Session& session, const MigrationStep& step) {
    // The vendors' databases outlive a shop database: they are shared by the fiscal years
    // of the shop and may have been made by the vendors' own programs. What they hold
    // already is kept as it is; only what is missing is made.
    MigrationStep pending = step;
    QHash<QString, QMap<QString, QStringList>> held;
    const auto tablesOf = [&](const QString& database) -> const QMap<QString, QStringList>& {
        const QString key = database.toLower();
        if (!held.contains(key)) {
            held.insert(key, SchemaReader::tables(session, database));
        }
        return held[key];
    };
    QStringList kept;
    pending.tables.clear();
    for (const TableDef& t : step.tables) {
        if (!t.database.isEmpty() && tablesOf(t.database).contains(t.name.toLower())) {
            kept << t.database.toLower() + QLatin1Char('.') + t.name.toLower();
        } else {
            pending.tables << t;
        }
    }
    pending.addColumns.clear();
    for (const AddColumnDef& a : step.addColumns) {
        if (a.database.isEmpty() ||
            !tablesOf(a.database).value(a.table.toLower()).contains(a.column.name.toLower())) {
            pending.addColumns << a;
        }
    }
    pending.indexes.clear();
    for (const IndexDef& i : step.indexes) {
        if (!kept.contains(i.database.toLower() + QLatin1Char('.') + i.table.toLower())) {
            pending.indexes << i;
        }
    }
    return pending;
}

Migrator::Migrator(Database& database) : m_database(database) {}

QString Migrator::newerSchemaMessage() {
    // The database belongs to a newer version of the program; update the program.
    return QStringLiteral("نسخه بانک اطلاعاتي از نسخه برنامه جديدتر است؛ برنامه را به روز کنيد");
}

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
    if (!steps.isEmpty() && result.versionBefore > steps.last().version) {
        // Written by a later program: its steps are unknown here, and so is what they mean.
        result.newerSchema = true;
        fail(result,
             newerSchemaMessage() +
                 QStringLiteral(" (%1 > %2)").arg(result.versionBefore).arg(steps.last().version));
        return result;
    }

    const bool sqlite = m_database.backend() == Backend::SQLite;
    MigrationRenderer renderer(m_database.dialect());
    for (const MigrationStep& step : steps) {
        if (step.version <= result.versionBefore) {
            renderer.render(step);
            continue;
        }
        bool attachedNew = false;
        for (const QString& name : databasesOf(step)) {
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
        const MigrationRenderer::Rendered rendered =
            renderer.render(withoutExistingOtherObjects(session, step));
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
