// Step 14: what the documents moved per article and Jalali month (StockMonth), so that the
// reports over whole months and the stock and landed cost as of a date read a row per
// article and month rather than every line. Filled here from the documents there are; the
// stock procedures keep it with the lines from then on.

#include "data/procedures/StockMonthProcedures.h"
#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

// Figures are summed by the hundred thousand per report: double precision sums them far
// faster than PostgreSQL's exact decimals, and the reports compute in doubles anyway.
ColumnDef figure(const QString& name, ColumnType type = ColumnType::Float) {
    return withDefault(notNull(column(name, type)), QStringLiteral("0"));
}

}  // namespace

MigrationStep stockMonthsStep() {
    MigrationStep step;
    step.version = 14;
    step.description = QStringLiteral("Movements per article and month");
    const QString months = QStringLiteral("StockMonth");
    TableDef t = table(months,
                       {
                           // "1404/01": the first seven characters of the documents' DocDate.
                           notNull(text(QStringLiteral("YearMonth"), 7)),
                           notNull(codeText(QStringLiteral("Barcode"))),
                           figure(QStringLiteral("PurchaseQty")),
                           // Quantity times landed unit cost, as the profit report values it.
                           figure(QStringLiteral("PurchaseValue")),
                           figure(QStringLiteral("PurchaseReturnQty")),
                           figure(QStringLiteral("SaleQty")),
                           figure(QStringLiteral("SaleAmount")),
                           figure(QStringLiteral("ReturnQty")),
                           figure(QStringLiteral("ReturnAmount")),
                           // Sale and return lines: an article sold in a month is listed
                           // by the sales reports even when its figures are nought.
                           figure(QStringLiteral("SaleLines"), ColumnType::Int),
                           figure(QStringLiteral("InternalIn")),
                           figure(QStringLiteral("InternalOut")),
                       },
                       {QStringLiteral("Barcode"), QStringLiteral("YearMonth")});
    // An article's months side by side: the reports sum them per article in one sweep, a
    // document's write and a scoped repair find an article's rows by the key.
    t.clustered = true;
    step.tables = {t};
    // A month's rows of every article (the sellers of a month): PostgreSQL reads them by
    // this index; SQLite sweeps its clustered table, as fast for a month and faster for a year.
    IndexDef byMonth = index(months, {QStringLiteral("YearMonth")});
    byMonth.serversOnly = true;
    step.indexes = {byMonth};
    step.seedStatements = {procedures::stockMonthFillSql()};
    return step;
}

}  // namespace sandogh::shopschema
