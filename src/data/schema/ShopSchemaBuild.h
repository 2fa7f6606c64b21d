#pragma once

// Small builders used by the ShopSchema*.cpp files to write the catalogue
// compactly. Only the catalogue includes this header.

#include "data/schema/SchemaModel.h"

namespace sandogh::shopschema {

// Widths chosen once for the whole catalogue.
inline constexpr int kCodeLength = 50;      // barcodes, codes, card and plate numbers
inline constexpr int kNameLength = 200;     // names, titles, references
inline constexpr int kDateLength = 10;      // Jalali date text "1404/01/05"
inline constexpr int kTimeLength = 20;      // "HH:MM:SS", "1404/01/05 - 12:30"
inline constexpr int kDocNoLength = 20;     // document numbers: digit text
inline constexpr int kAddressLength = 500;  // addresses, file paths

inline ColumnDef column(const QString& columnName, ColumnType type, int length = 0) {
    ColumnDef c;
    c.name = columnName;
    c.type = type;
    c.length = length;
    return c;
}

inline ColumnDef integer(const QString& n) {
    return column(n, ColumnType::Int);
}
inline ColumnDef bigInt(const QString& n) {
    return column(n, ColumnType::BigInt);
}
inline ColumnDef money(const QString& n) {
    return column(n, ColumnType::Money);
}
inline ColumnDef flag(const QString& n) {
    return column(n, ColumnType::Bool);
}
inline ColumnDef text(const QString& n, int length) {
    return column(n, ColumnType::Text, length);
}
inline ColumnDef longText(const QString& n) {
    return column(n, ColumnType::LongText);
}

inline ColumnDef codeText(const QString& n) {
    return text(n, kCodeLength);
}
inline ColumnDef nameText(const QString& n) {
    return text(n, kNameLength);
}
inline ColumnDef dateText(const QString& n) {
    return text(n, kDateLength);
}
inline ColumnDef timeText(const QString& n) {
    return text(n, kTimeLength);
}
inline ColumnDef docNoText(const QString& n) {
    return text(n, kDocNoLength);
}

inline ColumnDef notNull(ColumnDef c) {
    c.nullable = false;
    return c;
}

inline ColumnDef withDefault(ColumnDef c, const QString& literal) {
    c.defaultValue = literal;
    return c;
}

// A row number allocated by the database; always the table's whole primary key.
inline ColumnDef identity(const QString& n, ColumnType type = ColumnType::Int) {
    ColumnDef c = column(n, type);
    c.nullable = false;
    c.identity = true;
    return c;
}

inline TableDef table(const QString& tableName, const QList<ColumnDef>& columns,
                      const QStringList& primaryKey = {}, const QString& database = {}) {
    TableDef t;
    t.name = tableName;
    t.columns = columns;
    t.primaryKey = primaryKey;
    t.database = database;
    return t;
}

// Index names are derived from table and columns: IX_<table>_<col>_<col>, UX_ when unique.
inline IndexDef index(const QString& tableName, const QStringList& columns,
                      const QString& database = {}) {
    IndexDef i;
    i.name = QStringLiteral("IX_") + tableName + QLatin1Char('_') + columns.join(QLatin1Char('_'));
    i.table = tableName;
    i.columns = columns;
    i.database = database;
    return i;
}

inline IndexDef uniqueIndex(const QString& tableName, const QStringList& columns,
                            const QString& database = {}) {
    IndexDef i = index(tableName, columns, database);
    i.name.replace(0, 2, QStringLiteral("UX"));
    i.unique = true;
    return i;
}

// The level columns of a structured code: LevelID1 .. LevelID<count>.
inline QList<ColumnDef> levelColumns(int count) {
    QList<ColumnDef> columns;
    for (int level = 1; level <= count; ++level) {
        columns << integer(QStringLiteral("LevelID%1").arg(level));
    }
    return columns;
}

// One step per area of the shop database, in version order.
MigrationStep siteStep();            // 1
MigrationStep parametersStep();      // 2
MigrationStep goodsStep();           // 3
MigrationStep documentsStep();       // 4
MigrationStep accountsStep();        // 5
MigrationStep giftCardsStep();       // 6
MigrationStep scaleVendorsStep();    // 7
MigrationStep lookupsStep();         // 8
MigrationStep goodsSearchStep();     // 9
MigrationStep saleAuditStep();       // 10
MigrationStep userRightsStep();      // 11
MigrationStep reportsStep();         // 12
MigrationStep saleListSearchStep();  // 13
MigrationStep stockMonthsStep();     // 14

}  // namespace sandogh::shopschema
