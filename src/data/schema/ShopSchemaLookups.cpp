// Step 8: indexes for the look-ups that must not slow down as documents pile up: the
// next document number of a kind (all-time and per date), the internal number runs and
// the newest purchase line of an article.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

// Document numbers are digit text maximised as numbers. The numbering statements spell
// the expression exactly so, which lets SQLite match them to the index; a document number
// that is not digit text cannot be indexed on PostgreSQL and SQL Server, and is refused
// there when the document is written (it would break the numbering of its kind anyway).
const QString kDocNoNumber = QStringLiteral("CAST(DocNo AS BIGINT)");
// Listings, numbering and price look-ups see ordinary documents only.
const QString kOrdinaryDocuments = QStringLiteral("DocType IS NULL");

IndexDef numberIndex(const QString& tableName, const QStringList& columns, const QString& where) {
    IndexDef i = index(tableName, columns);
    i.name += QStringLiteral("_DocNoNumber");
    i.expressions = {kDocNoNumber};
    i.where = where;
    return i;
}

}  // namespace

MigrationStep lookupsStep() {
    MigrationStep step;
    step.version = 8;
    step.description = QStringLiteral("Document number and newest purchase line look-ups");
    const QString h = QStringLiteral("Whs_QTYDocH");
    const QString transType = QStringLiteral("TransType");
    step.indexes = {
        // Next number of a kind: the largest number of its ordinary documents.
        numberIndex(h, {transType}, kOrdinaryDocuments),
        // Daily numbering: the largest number of a kind on one date.
        numberIndex(h, {transType, QStringLiteral("DocDate")}, kOrdinaryDocuments),
        // Internal documents have no DocType: every one takes part.
        numberIndex(QStringLiteral("Whs_QTYDocHInternal"), {transType}, {}),
        // The lines of one article by document, newest document first: last purchase
        // price, and the lines that the stock of an article is summed from.
        index(QStringLiteral("Whs_QTYDocD"), {QStringLiteral("EAN_Code"), QStringLiteral("Code")}),
    };
    return step;
}

}  // namespace sandogh::shopschema
