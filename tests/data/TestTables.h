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

// A goods-like table with one column of each kind the screens read.
inline TableDef probeTable(const QString& name = QStringLiteral("Goods")) {
    return {name,
            {column("Code", ColumnType::Int, 0, false), column("Name", ColumnType::Text, 200),
             column("Amount", ColumnType::Money), column("Note", ColumnType::LongText),
             column("DocDate", ColumnType::Text, 10), column("Big", ColumnType::BigInt),
             column("Flag", ColumnType::Bool)},
            {QStringLiteral("Code")},
            {}};
}

// A parent and a child with a foreign key between them.
inline QList<TableDef> parentChildTables() {
    return {{QStringLiteral("Parent"),
             {column("Id", ColumnType::Int, 0, false)},
             {QStringLiteral("Id")},
             {}},
            {QStringLiteral("Child"),
             {column("Id", ColumnType::Int, 0, false), column("ParentId", ColumnType::Int)},
             {QStringLiteral("Id")},
             {}}};
}

inline ForeignKeyDef childToParent() {
    return {QStringLiteral("FK_Child_Parent"),
            QStringLiteral("Child"),
            {QStringLiteral("ParentId")},
            QStringLiteral("Parent"),
            {QStringLiteral("Id")}};
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
