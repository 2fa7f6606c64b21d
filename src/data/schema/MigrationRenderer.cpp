#include "data/schema/MigrationRenderer.h"

namespace sandogh {

namespace {

// Suffix of the temporary name of a table being rebuilt on SQLite.
const QString kRebuildSuffix = QStringLiteral("__rebuild");

void addDatabase(QStringList& databases, const QString& database) {
    if (database.isEmpty()) {
        return;
    }
    for (const QString& known : std::as_const(databases)) {
        if (known.compare(database, Qt::CaseInsensitive) == 0) {
            return;
        }
    }
    databases << database;
}

}  // namespace

MigrationRenderer::MigrationRenderer(const Dialect& dialect) : m_dialect(dialect) {}

QString MigrationRenderer::key(const QString& database, const QString& table) {
    return database.toLower() + QLatin1Char('.') + table.toLower();
}

TableDef MigrationRenderer::schemaVersionTable() {
    TableDef t;
    t.name = QStringLiteral("SchemaVersion");
    ColumnDef version{QStringLiteral("Version"), ColumnType::Int, 0, false, false, {}};
    ColumnDef description{QStringLiteral("Description"), ColumnType::Text, 255, true, false, {}};
    ColumnDef appliedAt{QStringLiteral("AppliedAt"), ColumnType::Text, 32, true, false, {}};
    t.columns = {version, description, appliedAt};
    t.primaryKey = {QStringLiteral("Version")};
    return t;
}

MigrationRenderer::Rendered MigrationRenderer::render(const MigrationStep& step) {
    Rendered out;
    for (const TableDef& t : step.tables) {
        addDatabase(out.otherDatabases, t.database);
    }
    for (const AddColumnDef& a : step.addColumns) {
        addDatabase(out.otherDatabases, a.database);
    }
    for (const IndexDef& i : step.indexes) {
        addDatabase(out.otherDatabases, i.database);
    }

    // Foreign keys of tables created in this step go into their CREATE TABLE where the
    // backend needs them there; all others are added afterwards.
    QList<ForeignKeyDef> later;
    QHash<QString, QList<ForeignKeyDef>> inlineKeys;
    for (const ForeignKeyDef& fk : step.foreignKeys) {
        bool createdHere = false;
        for (const TableDef& t : step.tables) {
            createdHere = createdHere || (t.database.isEmpty() &&
                                          t.name.compare(fk.table, Qt::CaseInsensitive) == 0);
        }
        if (createdHere && m_dialect.foreignKeysOnlyInCreateTable()) {
            inlineKeys[key({}, fk.table)] << fk;
        } else {
            later << fk;
        }
    }

    for (const TableDef& t : step.tables) {
        const QString k = key(t.database, t.name);
        out.statements << m_dialect.createTable(t, inlineKeys.value(k));
        m_tables.insert(k, t);
        m_foreignKeys[k] << inlineKeys.value(k);
    }
    for (const AddColumnDef& a : step.addColumns) {
        out.statements << m_dialect.addColumn(a);
        m_tables[key(a.database, a.table)].columns << a.column;
    }
    QStringList rebuilt;
    for (const ForeignKeyDef& fk : std::as_const(later)) {
        const QString k = key({}, fk.table);
        m_foreignKeys[k] << fk;
        if (!m_dialect.foreignKeysOnlyInCreateTable()) {
            out.statements << m_dialect.addForeignKey(fk);
        } else if (!rebuilt.contains(k)) {
            rebuilt << k;
        }
    }
    for (const QString& k : std::as_const(rebuilt)) {
        out.statements << rebuild(k);
        out.rebuildsTables = true;
    }
    for (const IndexDef& i : step.indexes) {
        if (i.serversOnly && m_dialect.backend() == Backend::SQLite) {
            continue;
        }
        out.statements << m_dialect.createIndex(i);
        m_indexes[key(i.database, i.table)] << i;
    }
    out.statements << step.seedStatements;
    for (const TextSearchDef& search : step.textSearches) {
        out.statements << m_dialect.createTextSearch(search);
    }
    return out;
}

QStringList MigrationRenderer::rebuild(const QString& tableKey) const {
    const TableDef current = m_tables.value(tableKey);
    TableDef temporary = current;
    temporary.name += kRebuildSuffix;
    QStringList columns;
    for (const ColumnDef& c : current.columns) {
        columns << m_dialect.quote(c.name);
    }
    const QString list = columns.join(QStringLiteral(", "));
    QStringList statements = m_dialect.createTable(temporary, m_foreignKeys.value(tableKey));
    statements << QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM %3")
                      .arg(m_dialect.table(temporary.name), list, m_dialect.table(current.name));
    statements << QStringLiteral("DROP TABLE %1").arg(m_dialect.table(current.name));
    statements << QStringLiteral("ALTER TABLE %1 RENAME TO %2")
                      .arg(m_dialect.table(temporary.name), m_dialect.quote(current.name));
    for (const IndexDef& i : m_indexes.value(tableKey)) {
        statements << m_dialect.createIndex(i);
    }
    return statements;
}

}  // namespace sandogh
