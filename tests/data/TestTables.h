#pragma once

// Tables the data layer tests create for themselves, through the same rendering the
// migrations use.

#include "data/Session.h"
#include "data/schema/MigrationRenderer.h"
#include "data/schema/SchemaModel.h"

namespace sandogh::test {

inline ColumnDef column(const char* name, ColumnType type, int length = 0, bool nullable = true) {
    return {QLatin1String(name), type, length, nullable, false, {}};
}

// A table with a primary key of one column (none for nullptr), in the shop's database or
// in a vendor's.
inline TableDef table(const char* name, const QList<ColumnDef>& columns, const char* key,
                      const QString& database = {}) {
    return {QLatin1String(name), columns, key ? QStringList{QLatin1String(key)} : QStringList(),
            database};
}

// A foreign key of one column, named FK_<table>_<parent>.
inline ForeignKeyDef foreignKey(const char* tableName, const char* column, const char* parent,
                                const char* parentColumn) {
    return {QStringLiteral("FK_%1_%2").arg(QLatin1String(tableName), QLatin1String(parent)),
            QLatin1String(tableName),
            {QLatin1String(column)},
            QLatin1String(parent),
            {QLatin1String(parentColumn)}};
}

inline IndexDef index(const char* name, const char* tableName, const char* column,
                      bool unique = false, const QString& database = {}) {
    return {QLatin1String(name),
            QLatin1String(tableName),
            {QLatin1String(column)},
            unique,
            database,
            {}};
}

// A goods-like table with one column of each kind the screens read.
inline TableDef probeTable() {
    return table("Goods",
                 {column("Code", ColumnType::Int, 0, false), column("Name", ColumnType::Text, 200),
                  column("Amount", ColumnType::Money), column("Note", ColumnType::LongText),
                  column("DocDate", ColumnType::Text, 10), column("Big", ColumnType::BigInt),
                  column("Flag", ColumnType::Bool)},
                 "Code");
}

// A parent and a child with a foreign key between them (childToParent()).
inline QList<TableDef> parentChildTables() {
    return {table("Parent", {column("Id", ColumnType::Int, 0, false)}, "Id"),
            table("Child",
                  {column("Id", ColumnType::Int, 0, false), column("ParentId", ColumnType::Int)},
                  "Id")};
}

inline ForeignKeyDef childToParent() {
    return foreignKey("Child", "ParentId", "Parent", "Id");
}

inline bool createTables(Session& session, const QList<TableDef>& tables,
                         const QList<ForeignKeyDef>& foreignKeys = {},
                         const QList<IndexDef>& indexes = {}) {
    MigrationStep step;
    step.version = 1;
    step.tables = tables;
    step.foreignKeys = foreignKeys;
    step.indexes = indexes;
    MigrationRenderer renderer(session.dialect());
    for (const QString& sql : renderer.render(step).statements) {
        if (!session.exec(sql)) {
            return false;
        }
    }
    return true;
}

}  // namespace sandogh::test
