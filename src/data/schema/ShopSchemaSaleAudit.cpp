// Step 10: the record of every deleted or edited sale document, and the index the saved
// sales list pages through.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

// One row per delete or edit: who, when, at which desk, and the document as it stood
// before (header and lines as JSON text), written in the transaction of the change.
TableDef saleAudit() {
    return table(QStringLiteral("tblSaleAudit"),
                 {
                     identity(QStringLiteral("ID"), ColumnType::BigInt),
                     notNull(integer(QStringLiteral("Action"))),  // 1 delete, 2 edit
                     bigInt(QStringLiteral("DocCode")),
                     integer(QStringLiteral("TransType")),
                     docNoText(QStringLiteral("DocNo")),
                     dateText(QStringLiteral("DocDate")),
                     integer(QStringLiteral("UserID")),
                     integer(QStringLiteral("StationID")),
                     dateText(QStringLiteral("AuditDate")),
                     timeText(QStringLiteral("AuditTime")),
                     longText(QStringLiteral("Document")),
                 },
                 {QStringLiteral("ID")});
}

}  // namespace

MigrationStep saleAuditStep() {
    MigrationStep step;
    step.version = 10;
    step.description = QStringLiteral("Record of deleted and edited sales; saved sales paging");
    step.tables = {saleAudit()};
    IndexDef pages = index(QStringLiteral("Whs_QTYDocH"), {QStringLiteral("TransType")});
    pages.name += QStringLiteral("_ListPages");
    // The list is ordered by number as a number, then by key, so that a page starts
    // right after the last row of the one before (numbers repeat under daily numbering).
    pages.expressions = {QStringLiteral("CAST(DocNo AS BIGINT)"), QStringLiteral("Code")};
    pages.where = QStringLiteral("DocType IS NULL");
    step.indexes = {
        pages,
        index(QStringLiteral("tblSaleAudit"), {QStringLiteral("AuditDate")}),
        index(QStringLiteral("tblSaleAudit"),
              {QStringLiteral("UserID"), QStringLiteral("AuditDate")}),
    };
    return step;
}

}  // namespace sandogh::shopschema
