#pragma once

#include "data/Dialect.h"

namespace sandogh {

// Microsoft SQL Server (T-SQL): TOP n, "+" concatenation, NEWID(), IDENTITY(1,1),
// Unicode text and three-part names Db.dbo.Table for the other databases.
class SqlServerDialect final : public Dialect {
public:
    Backend backend() const override { return Backend::SqlServer; }
    QString quote(const QString& identifier) const override;
    QString table(const QString& name, const QString& database = {}) const override;
    QString top(int rows) const override;
    QString limit(int rows) const override;
    QString concat(const QStringList& expressions) const override;
    QString randomOrder() const override { return QStringLiteral("NEWID()"); }
    QString writersLockSql() const override {
        return QStringLiteral(
            "EXEC sp_getapplock @Resource = :name, @LockMode = 'Exclusive', "
            "@LockOwner = 'Transaction'");
    }
    QString columnType(const ColumnDef& column) const override;
    QStringList addColumn(const AddColumnDef& add) const override;
    QString createIndex(const IndexDef& index) const override;
    QString otherDatabaseExistsSql() const override;
    QString createOtherDatabase(const QString& database) const override;

protected:
    QString textLiteral(const QString& text) const override;
    QString identityDefinition(const ColumnDef& column) const override;
};

}  // namespace sandogh
