#pragma once

#include "data/Dialect.h"

namespace sandogh {

// SQLite: other databases are files attached under their own name; an identity is
// the table's INTEGER PRIMARY KEY; foreign keys live only in CREATE TABLE.
class SqliteDialect final : public Dialect {
public:
    Backend backend() const override { return Backend::SQLite; }
    QString quote(const QString& identifier) const override;
    QString table(const QString& name, const QString& database = {}) const override;
    QString randomOrder() const override { return QStringLiteral("RANDOM()"); }
    QString castBigInt(const QString& expression) const override;
    QString columnType(const ColumnDef& column) const override;
    QStringList createTable(const TableDef& table,
                            const QList<ForeignKeyDef>& foreignKeys) const override;
    QString createIndex(const IndexDef& index) const override;
    QStringList addForeignKey(const ForeignKeyDef& foreignKey) const override;
    bool foreignKeysOnlyInCreateTable() const override { return true; }
    QStringList createTextSearch(const TextSearchDef& search) const override;

protected:
    QString identityDefinition(const ColumnDef& column) const override;
    // Unnamed: a table rebuilt under a temporary name keeps a fitting definition.
    QString primaryKeyClause(const TableDef& table) const override;
};

}  // namespace sandogh
