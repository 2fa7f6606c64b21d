#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace sandogh {

// Neutral column types; each backend's dialect names them in its own DDL.
enum class ColumnType {
    Int,       // 32-bit integer
    BigInt,    // 64-bit integer
    Money,     // amounts and quantities: exact decimal, 4 fraction digits
    Float,     // double precision
    Text,      // bounded text; length in ColumnDef::length (0 = 255)
    LongText,  // unbounded text
    Bool,      // 0/1, kept as a small integer
    Blob,
};

struct ColumnDef {
    QString name;
    ColumnType type = ColumnType::Int;
    int length = 0;  // for Text
    bool nullable = true;
    bool identity = false;  // database-allocated row number (at most one per table)
    QString defaultValue;   // literal SQL default, empty for none ("0", "''")
};

// A table. database is empty for the shop database, or the name of another
// database on the same server (the scale vendors' "MizanNet", "Sadr", "OnlineSales").
struct TableDef {
    QString name;
    QList<ColumnDef> columns;
    QStringList primaryKey;
    QString database;
    // Rows stored in primary key order, so that a range of the key is read in one sweep
    // (SQLite's WITHOUT ROWID; PostgreSQL keeps no order, SQL Server's key is clustered
    // anyway). Only for a table without an identity column.
    bool clustered{};
};

struct IndexDef {
    QString name;
    QString table;
    QStringList columns;
    bool unique = false;
    QString database;
    // Keys after the columns that are expressions over the table's columns, in portable
    // SQL spelled exactly as the statements that should use the index spell them
    // ("CAST(DocNo AS BIGINT)"): SQLite matches an indexed expression only when the
    // statement writes the same one. SQL Server indexes them through persisted computed
    // columns, which its optimiser matches to the same expressions.
    QStringList expressions{};
    // A partial (filtered) index: only rows meeting this portable condition are indexed
    // ("DocType IS NULL"); a statement uses it when its WHERE implies the condition.
    QString where{};
    // Made on PostgreSQL and SQL Server only, whose planners weigh a range by its statistics:
    // SQLite's would read a range of nearly every row through the index too, slower than the
    // table.
    bool serversOnly{};
};

struct ForeignKeyDef {
    QString name;
    QString table;
    QStringList columns;
    QString refTable;
    QStringList refColumns;
};

struct AddColumnDef {
    QString table;
    ColumnDef column;
    QString database;
};

// A word search over a text column: keyColumn holds the search form of sourceColumn
// (folded as TextHelpers::searchKey folds, and in lower case), filled for the rows already
// there, and indexed so that a word anywhere in it is found without reading the table:
// a trigram index on PostgreSQL (pg_trgm), an FTS5 trigram table kept by triggers on SQLite
// named after the search. idColumn is the table's integer key. A key of several columns
// (a party's name and family) lists the others in moreSources: their texts follow the
// source's, each after a space, a missing one as empty.
struct TextSearchDef {
    QString name;
    QString table;
    QString keyColumn;
    QString sourceColumn;
    QString idColumn;
    QStringList moreSources{};
};

// One numbered, append-only step of the schema. Steps are applied in order,
// each in its own transaction, and SchemaVersion records the last one applied.
struct MigrationStep {
    int version = 0;
    QString description;
    QList<TableDef> tables;
    QList<AddColumnDef> addColumns;
    QList<IndexDef> indexes;
    QList<ForeignKeyDef> foreignKeys;
    QStringList seedStatements;           // portable statements without values, run after the DDL
    QList<TextSearchDef> textSearches{};  // after the seed statements
};

}  // namespace sandogh
