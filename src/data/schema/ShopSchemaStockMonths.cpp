// Step 14: what the documents moved per article and Jalali month (StockMonth), so that the
// reports over whole months and the stock and landed cost as of a date read a row per
// article and month rather than every line. Filled here from the documents there are; the
// stock procedures keep it with the lines from then on.

#include "data/procedures/StockMonthProcedures.h"
#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

ColumnDef figure(const QString& name, ColumnType type = ColumnType::Money) {
    return withDefault(notNull(column(name, type)), QStringLiteral("0"));
}

}  // namespace

MigrationStep stockMonthsStep() {
    MigrationStep step;
    step.version = 14;
    step.description = QStringLiteral("Movements per article and month");
    const QString months = QStringLiteral("StockMonth");
    step.tables = {table(months,
                         {
                             // "1404/01": the first seven characters of the documents' DocDate.
                             notNull(text(QStringLiteral("YearMonth"), 7)),
                             notNull(codeText(QStringLiteral("Barcode"))),
                             figure(QStringLiteral("PurchaseQty")),
                             // Quantity times landed unit cost, as the profit report values it.
                             figure(QStringLiteral("PurchaseValue"), ColumnType::Float),
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
                         {QStringLiteral("YearMonth"), QStringLiteral("Barcode")})};
    // A scoped repair replaces the rows of a few articles.
    step.indexes = {index(months, {QStringLiteral("Barcode")})};
    step.seedStatements = {procedures::stockMonthFillSql()};
    return step;
}

}  // namespace sandogh::shopschema
