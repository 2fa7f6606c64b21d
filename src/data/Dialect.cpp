#include "data/Dialect.h"

#include <utility>

#include "data/PostgresDialect.h"
#include "data/SqlServerDialect.h"
#include "data/SqliteDialect.h"

namespace sandogh {

std::unique_ptr<Dialect> Dialect::create(Backend backend) {
    switch (backend) {
        case Backend::SQLite:
            return std::make_unique<SqliteDialect>();
        case Backend::PostgreSQL:
            return std::make_unique<PostgresDialect>();
        case Backend::SqlServer:
            return std::make_unique<SqlServerDialect>();
    }
    return nullptr;
}

QString Dialect::top(int /*rows*/) const {
    return {};
}

QString Dialect::limit(int rows) const {
    return QStringLiteral(" LIMIT %1").arg(rows);
}

QString Dialect::concat(const QStringList& expressions) const {
    return QLatin1Char('(') + expressions.join(QStringLiteral(" || ")) + QLatin1Char(')');
}

QString Dialect::castBigInt(const QString& expression) const {
    return QStringLiteral("CAST(%1 AS BIGINT)").arg(expression);
}

QString Dialect::isNull(const QString& expression, const QString& fallback) const {
    return QStringLiteral("COALESCE(%1, %2)").arg(expression, fallback);
}

QString Dialect::textLiteral(const QString& text) const {
    QString escaped = text;
    escaped.replace(QLatin1Char('\''), QStringLiteral("''"));
    return QLatin1Char('\'') + escaped + QLatin1Char('\'');
}

QString Dialect::searchKeyExpression(const QString& expression) const {
    // The pairs of TextHelpers::searchKey: Arabic yeh, alef maksura and kaf to the Persian
    // letters, Persian and Arabic-Indic digits to ASCII, the zero-width non-joiner away.
    QList<std::pair<QString, QString>> pairs{
        {QString(QChar(0x064A)), QString(QChar(0x06CC))},
        {QString(QChar(0x0649)), QString(QChar(0x06CC))},
        {QString(QChar(0x0643)), QString(QChar(0x06A9))},
        {QString(QChar(0x200C)), QString()},
    };
    for (char16_t digit = 0; digit < 10; ++digit) {
        const QString ascii(QChar(char16_t(u'0' + digit)));
        pairs.append({QString(QChar(char16_t(0x06F0 + digit))), ascii});
        pairs.append({QString(QChar(char16_t(0x0660 + digit))), ascii});
    }
    QString folded = expression;
    for (const auto& [from, to] : pairs) {
        folded =
            QStringLiteral("REPLACE(%1, %2, %3)").arg(folded, textLiteral(from), textLiteral(to));
    }
    return QStringLiteral("LOWER(%1)").arg(folded);
}

QStringList Dialect::createTextSearch(const TextSearchDef& search) const {
    QString source = quote(search.sourceColumn);
    if (!search.moreSources.isEmpty()) {
        QStringList parts{isNull(source, QStringLiteral("''"))};
        for (const QString& column : search.moreSources) {
            parts << QStringLiteral("' '") << isNull(quote(column), QStringLiteral("''"));
        }
        source = concat(parts);
    }
    return {QStringLiteral("UPDATE %1 SET %2 = %3")
                .arg(table(search.table), quote(search.keyColumn), searchKeyExpression(source))};
}

int Dialect::textLength(const ColumnDef& column) {
    return column.length > 0 ? column.length : 255;
}

QString Dialect::quotedList(const QStringList& identifiers) const {
    QStringList quoted;
    for (const QString& id : identifiers) {
        quoted << quote(id);
    }
    return quoted.join(QStringLiteral(", "));
}

QString Dialect::columnDefinition(const ColumnDef& column) const {
    if (column.identity) {
        return quote(column.name) + QLatin1Char(' ') + identityDefinition(column);
    }
    QString s = quote(column.name) + QLatin1Char(' ') + columnType(column);
    if (!column.nullable) {
        s += QStringLiteral(" NOT NULL");
    }
    if (!column.defaultValue.isEmpty()) {
        s += QStringLiteral(" DEFAULT ") + column.defaultValue;
    }
    return s;
}

QString Dialect::primaryKeyClause(const TableDef& table) const {
    return QStringLiteral("CONSTRAINT %1 PRIMARY KEY (%2)")
        .arg(quote(QStringLiteral("PK_") + table.name), quotedList(table.primaryKey));
}

QString Dialect::foreignKeyClause(const ForeignKeyDef& fk) const {
    return QStringLiteral("CONSTRAINT %1 FOREIGN KEY (%2) REFERENCES %3 (%4)")
        .arg(quote(fk.name), quotedList(fk.columns), table(fk.refTable), quotedList(fk.refColumns));
}

QStringList Dialect::createTable(const TableDef& t, const QList<ForeignKeyDef>& fks) const {
    QStringList parts;
    for (const ColumnDef& c : t.columns) {
        parts << columnDefinition(c);
    }
    if (!t.primaryKey.isEmpty()) {
        parts << primaryKeyClause(t);
    }
    for (const ForeignKeyDef& fk : fks) {
        parts << foreignKeyClause(fk);
    }
    return {QStringLiteral("CREATE TABLE %1 (%2)")
                .arg(table(t.name, t.database), parts.join(QStringLiteral(", ")))};
}

QStringList Dialect::addColumn(const AddColumnDef& add) const {
    return {QStringLiteral("ALTER TABLE %1 ADD COLUMN %2")
                .arg(table(add.table, add.database), columnDefinition(add.column))};
}

QString Dialect::indexKeys(const IndexDef& index) const {
    QStringList keys;
    for (const QString& c : index.columns) {
        keys << quote(c);
    }
    keys << index.expressions;
    return keys.join(QStringLiteral(", "));
}

QString Dialect::indexWhere(const IndexDef& index) {
    return index.where.isEmpty() ? QString() : QStringLiteral(" WHERE ") + index.where;
}

QString Dialect::createIndex(const IndexDef& index) const {
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)%5")
        .arg(index.unique ? QStringLiteral("UNIQUE ") : QString(), quote(index.name),
             table(index.table, index.database), indexKeys(index), indexWhere(index));
}

QStringList Dialect::addForeignKey(const ForeignKeyDef& fk) const {
    return {QStringLiteral("ALTER TABLE %1 ADD %2").arg(table(fk.table), foreignKeyClause(fk))};
}

QString Dialect::createOtherDatabase(const QString& /*database*/) const {
    return {};
}

}  // namespace sandogh
