#include "data/SqlServerDialect.h"

namespace sandogh {

QString SqlServerDialect::quote(const QString& identifier) const {
    QString escaped = identifier;
    escaped.replace(QLatin1Char(']'), QStringLiteral("]]"));
    return QLatin1Char('[') + escaped + QLatin1Char(']');
}

QString SqlServerDialect::table(const QString& name, const QString& database) const {
    return database.isEmpty() ? quote(name)
                              : quote(database) + QStringLiteral(".[dbo].") + quote(name);
}

QString SqlServerDialect::top(int rows) const {
    return QStringLiteral("TOP %1 ").arg(rows);
}

QString SqlServerDialect::limit(int /*rows*/) const {
    return {};
}

QString SqlServerDialect::concat(const QStringList& expressions) const {
    return QLatin1Char('(') + expressions.join(QStringLiteral(" + ")) + QLatin1Char(')');
}

QString SqlServerDialect::columnType(const ColumnDef& column) const {
    switch (column.type) {
        case ColumnType::Int:
            return QStringLiteral("INT");
        case ColumnType::BigInt:
            return QStringLiteral("BIGINT");
        case ColumnType::Money:
            return QStringLiteral("DECIMAL(19,4)");
        case ColumnType::Float:
            return QStringLiteral("FLOAT");
        case ColumnType::Text:
            return QStringLiteral("NVARCHAR(%1)").arg(textLength(column));
        case ColumnType::LongText:
            return QStringLiteral("NVARCHAR(MAX)");
        case ColumnType::Bool:
            return QStringLiteral("SMALLINT");
        case ColumnType::Blob:
            return QStringLiteral("VARBINARY(MAX)");
    }
    return QStringLiteral("NVARCHAR(MAX)");
}

QString SqlServerDialect::identityDefinition(const ColumnDef& column) const {
    return (column.type == ColumnType::BigInt ? QStringLiteral("BIGINT") : QStringLiteral("INT")) +
           QStringLiteral(" IDENTITY(1,1) NOT NULL");
}

QStringList SqlServerDialect::addColumn(const AddColumnDef& add) const {
    // T-SQL has no COLUMN keyword here.
    return {QStringLiteral("ALTER TABLE %1 ADD %2")
                .arg(table(add.table, add.database), columnDefinition(add.column))};
}

QString SqlServerDialect::createIndex(const IndexDef& index) const {
    if (index.expressions.isEmpty()) {
        return Dialect::createIndex(index);
    }
    // T-SQL indexes no expression: each becomes a persisted computed column named after
    // the index, added first; the index is then made in a nested batch, which is
    // compiled only when the columns exist.
    const QString target = table(index.table, index.database);
    QStringList statements;
    QStringList keys;
    for (const QString& c : index.columns) {
        keys << quote(c);
    }
    for (int i = 0; i < index.expressions.size(); ++i) {
        const QString computed = quote(QStringLiteral("%1_K%2").arg(index.name).arg(i + 1));
        statements << QStringLiteral("ALTER TABLE %1 ADD %2 AS %3 PERSISTED")
                          .arg(target, computed, index.expressions.at(i));
        keys << computed;
    }
    QString create =
        QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)%5")
            .arg(index.unique ? QStringLiteral("UNIQUE ") : QString(), quote(index.name), target,
                 keys.join(QStringLiteral(", ")), indexWhere(index));
    create.replace(QLatin1Char('\''), QStringLiteral("''"));
    statements << QStringLiteral("EXEC(N'%1')").arg(create);
    return statements.join(QStringLiteral("; "));
}

QString SqlServerDialect::otherDatabaseExistsSql() const {
    return QStringLiteral("SELECT COUNT(*) FROM sys.databases WHERE name = :name");
}

QString SqlServerDialect::createOtherDatabase(const QString& database) const {
    return QStringLiteral("CREATE DATABASE ") + quote(database);
}

QString SqlServerDialect::textLiteral(const QString& text) const {
    return QLatin1Char('N') + Dialect::textLiteral(text);
}

}  // namespace sandogh
