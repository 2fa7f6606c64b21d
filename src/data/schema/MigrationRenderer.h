#pragma once

#include <QHash>
#include <QList>
#include <QStringList>

#include "data/Dialect.h"
#include "data/schema/SchemaModel.h"

namespace sandogh {

// Turns migration steps into the DDL of one backend. Steps are rendered in order,
// every step from the first, applied or not, so that the renderer knows each table
// as the earlier steps left it.
//
// Foreign keys: declared in the step that creates their table, they are part of its
// CREATE TABLE. Declared later, they are added with ALTER TABLE, except on SQLite,
// which cannot add one: there the table is rebuilt (created anew under a temporary
// name with every foreign key so far, rows copied, the old table dropped, the new one
// renamed, its indexes made again). A rebuild must run with SQLite's foreign key
// enforcement off; rebuildsTables tells the caller so.
class MigrationRenderer {
public:
    struct Rendered {
        QStringList statements;
        QStringList otherDatabases;  // databases the step's tables live in, besides the shop's
        bool rebuildsTables = false;
    };

    explicit MigrationRenderer(const Dialect& dialect);

    Rendered render(const MigrationStep& step);

    // The table that records the applied steps.
    static TableDef schemaVersionTable();

private:
    static QString key(const QString& database, const QString& table);
    QStringList rebuild(const QString& tableKey) const;

    const Dialect& m_dialect;
    QHash<QString, TableDef> m_tables;
    QHash<QString, QList<ForeignKeyDef>> m_foreignKeys;
    QHash<QString, QList<IndexDef>> m_indexes;
};

}  // namespace sandogh
