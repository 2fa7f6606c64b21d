// Step 12: the indexes the reports read through on a shop of a million documents: document
// lines by their document with every figure a report sums (so a month's lines are read from
// the index alone), and the ordinary documents of a kind by date with their key.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

MigrationStep reportsStep() {
    MigrationStep step;
    step.version = 12;
    step.description = QStringLiteral("Report indexes on document dates and line figures");
    const QString d = QStringLiteral("Whs_QTYDocD");
    // Sales and stock per article, and the landed cost of purchases: the lines of each
    // document found in a date range, without reading the table.
    IndexDef lines =
        index(d, {QStringLiteral("Code"), QStringLiteral("EAN_Code"), QStringLiteral("Qty"),
                  QStringLiteral("Price"), QStringLiteral("MFee"), QStringLiteral("Discount"),
                  QStringLiteral("TaxValue")});
    lines.name = QStringLiteral("IX_Whs_QTYDocD_Code_Figures");
    IndexDef internalLines =
        index(QStringLiteral("Whs_QTYDocDInternal"),
              {QStringLiteral("Code"), QStringLiteral("EAN_Code"), QStringLiteral("Qty")});
    // The documents of a kind in a date range with their key (PostgreSQL reads the key from
    // the index too; on SQLite the key is the row id).
    IndexDef days =
        index(QStringLiteral("Whs_QTYDocH"),
              {QStringLiteral("TransType"), QStringLiteral("DocDate"), QStringLiteral("Code")});
    days.name += QStringLiteral("_Ordinary");
    days.where = QStringLiteral("DocType IS NULL");
    step.indexes = {lines, internalLines, days};
    return step;
}

}  // namespace sandogh::shopschema
