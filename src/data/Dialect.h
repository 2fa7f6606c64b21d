#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

#include "data/Backend.h"
#include "data/schema/SchemaModel.h"

namespace sandogh {

// The few places where the SQL of the three backends differs. Everything else is
// written once in portable SQL: COALESCE for Isnull, CAST(x AS BIGINT) for
// Convert(BigInt, x), ":name" placeholders for every value.
//
// Identifiers: PostgreSQL folds unquoted names to lower case, so its dialect keeps
// every table and column in lower case. Statements may therefore name tables and
// columns unquoted in any case on every backend; quote() is needed only for names
// that are reserved words ("Order", "Set").
class Dialect {
public:
    virtual ~Dialect() = default;

    static std::unique_ptr<Dialect> create(Backend backend);

    virtual Backend backend() const = 0;

    // A quoted identifier.
    virtual QString quote(const QString& identifier) const = 0;
    // A table of the shop database (database empty) or of another database on the
    // same server: Db.dbo.Table on SQL Server, schema Db on PostgreSQL, the attached
    // file Db on SQLite.
    virtual QString table(const QString& name, const QString& database = {}) const = 0;

    // Row limits, used as "SELECT " + top(n) + "... ORDER BY ..." + limit(n).
    virtual QString top(int rows) const;
    virtual QString limit(int rows) const;
    // Text concatenation of SQL expressions.
    virtual QString concat(const QStringList& expressions) const;
    // The ORDER BY expression of a random order.
    virtual QString randomOrder() const = 0;
    // A statement that makes the write transactions of one kind (:name binds the kind)
    // wait for each other until they end, so that keys taken as the largest plus one do
    // not collide among them; empty where a write transaction already excludes every
    // other writer (SQLite, which begins IMMEDIATE).
    virtual QString writersLockSql() const { return {}; }
    // An expression as a 64-bit integer (document numbers held as digit text).
    virtual QString castBigInt(const QString& expression) const;
    // Isnull(expression, fallback).
    QString isNull(const QString& expression, const QString& fallback) const;

    // DDL of the neutral schema model.
    virtual QString columnType(const ColumnDef& column) const = 0;
    // CREATE TABLE with its primary key and the given foreign keys as table constraints.
    virtual QStringList createTable(const TableDef& table,
                                    const QList<ForeignKeyDef>& foreignKeys) const;
    virtual QStringList addColumn(const AddColumnDef& add) const;
    virtual QString createIndex(const IndexDef& index) const;
    // ALTER TABLE ... ADD CONSTRAINT ... FOREIGN KEY; empty where a foreign key can
    // only be declared in CREATE TABLE (SQLite).
    virtual QStringList addForeignKey(const ForeignKeyDef& foreignKey) const;
    virtual bool foreignKeysOnlyInCreateTable() const { return false; }

    // Other databases on the same server. otherDatabaseExistsSql() counts the ones
    // named :name (bound to otherDatabaseName()); createOtherDatabase() makes one and
    // runs outside any transaction. Empty on SQLite, whose other databases are files.
    virtual QString otherDatabaseExistsSql() const { return {}; }
    virtual QString otherDatabaseName(const QString& database) const { return database; }
    virtual QString createOtherDatabase(const QString& database) const;

    // A word search (TextSearchDef): the statements that fill its key column from the
    // source column and build its index. Without an index of the backend's own (SQL Server
    // here) only the column is filled, and a search reads the table.
    virtual QStringList createTextSearch(const TextSearchDef& search) const;
    // The search form of a text expression, as TextHelpers::searchKey folds it, in lower case.
    QString searchKeyExpression(const QString& expression) const;

protected:
    // A fixed text of the program (never a value) as an SQL literal that keeps every
    // character: N'...' on SQL Server.
    virtual QString textLiteral(const QString& text) const;
    QString quotedList(const QStringList& identifiers) const;
    // "name TYPE [NOT NULL] [DEFAULT x]", identity included.
    virtual QString columnDefinition(const ColumnDef& column) const;
    virtual QString identityDefinition(const ColumnDef& column) const = 0;
    virtual QString primaryKeyClause(const TableDef& table) const;
    QString foreignKeyClause(const ForeignKeyDef& foreignKey) const;
    // The key list of an index: its quoted columns, then its expressions.
    QString indexKeys(const IndexDef& index) const;
    // " WHERE condition" of a partial index, or nothing.
    static QString indexWhere(const IndexDef& index);
    static int textLength(const ColumnDef& column);
};

}  // namespace sandogh
