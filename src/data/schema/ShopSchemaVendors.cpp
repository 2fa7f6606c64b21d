// Step 7: the tables of the scale vendors' own databases, as far as the program reads
// and writes them: goods records for the scales, and the weighed tickets they print.
// The vendors' programs own these databases; the step creates them where they are
// missing (a fresh or demo installation) so that both directions can run.

#include "data/schema/ShopSchema.h"
#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

// PLU numbers are compared as numbers and may be compared with a whole barcode value,
// so they are 64-bit.

TableDef mizanNetItem(const QString& db) {
    return table(QStringLiteral("MizanNetItem"),
                 {
                     notNull(bigInt(QStringLiteral("PluNo"))),
                     integer(QStringLiteral("WeightUnit")),
                     money(QStringLiteral("UPrice")),
                     codeText(QStringLiteral("ItemCode")),
                     nameText(QStringLiteral("CommodityName")),
                 },
                 {QStringLiteral("PluNo")}, db);
}

TableDef mizanNetDetail(const QString& db) {
    // The lines of a weighed ticket; Weight 0 means a counted item whose count is Qty.
    return table(QStringLiteral("MizanNetDetail"),
                 {
                     codeText(QStringLiteral("TotalBarcode")),
                     bigInt(QStringLiteral("PluNo")),
                     money(QStringLiteral("Weight")),
                     money(QStringLiteral("Qty")),
                 },
                 {}, db);
}

TableDef sadrItem(const QString& db) {
    return table(QStringLiteral("SADR_Item"),
                 {
                     notNull(bigInt(QStringLiteral("PluNo"))),
                     money(QStringLiteral("UnitPrice")),
                     // Written as barcode text, compared with the barcode's numeric value.
                     bigInt(QStringLiteral("ItemCode")),
                     nameText(QStringLiteral("PluName")),
                     integer(QStringLiteral("PluUnit")),
                 },
                 {QStringLiteral("PluNo")}, db);
}

TableDef sadrKeyAssignment(const QString& db) {
    return table(QStringLiteral("SADR_KeyAssignment"),
                 {
                     integer(QStringLiteral("ItemClassCode")),
                     integer(QStringLiteral("PageNo")),
                     bigInt(QStringLiteral("KeyNo")),
                     bigInt(QStringLiteral("PluNo")),
                 },
                 {}, db);
}

TableDef onlineSalesItems(const QString& db) {
    // ID is always written as 175 by the program; Code (the PLU number) is the key.
    return table(QStringLiteral("Items"),
                 {
                     integer(QStringLiteral("ID")),
                     notNull(bigInt(QStringLiteral("Code"))),
                     nameText(QStringLiteral("Name1")),
                     nameText(QStringLiteral("Name2")),
                     codeText(QStringLiteral("BarCode")),
                     codeText(QStringLiteral("IranCode")),
                     integer(QStringLiteral("Type")),
                     money(QStringLiteral("Price")),
                     bigInt(QStringLiteral("ItemCode")),
                     integer(QStringLiteral("AlterPrice")),
                     integer(QStringLiteral("Sect")),
                     integer(QStringLiteral("Grp")),
                     money(QStringLiteral("Vat")),
                     integer(QStringLiteral("Logo")),
                 },
                 {QStringLiteral("Code")}, db);
}

TableDef onlineSalesSales(const QString& db) {
    // The lines of a weighed ticket: Date is the Jalali date without its century
    // ("04/01/05"), ItemCode the goods' Spec_Code, Amount the quantity.
    return table(QStringLiteral("Sales"),
                 {
                     dateText(QStringLiteral("Date")),
                     integer(QStringLiteral("Receipt")),
                     integer(QStringLiteral("ScaleNo")),
                     bigInt(QStringLiteral("ItemCode")),
                     money(QStringLiteral("Amount")),
                 },
                 {}, db);
}

}  // namespace

MigrationStep scaleVendorsStep() {
    const QString mizan = QString::fromLatin1(kMizanNetDatabase);
    const QString sadr = QString::fromLatin1(kSadrDatabase);
    const QString online = QString::fromLatin1(kOnlineSalesDatabase);

    MigrationStep step;
    step.version = 7;
    step.description = QStringLiteral("Scale vendor databases MizanNet, Sadr and OnlineSales");
    step.tables = {
        mizanNetItem(mizan),     mizanNetDetail(mizan),    sadrItem(sadr),
        sadrKeyAssignment(sadr), onlineSalesItems(online), onlineSalesSales(online),
    };
    step.indexes = {
        // A ticket's lines are read by its key.
        index(QStringLiteral("MizanNetDetail"), {QStringLiteral("TotalBarcode")}, mizan),
        // The existence test of a good looks it up by its barcode value.
        index(QStringLiteral("SADR_Item"), {QStringLiteral("ItemCode")}, sadr),
        index(QStringLiteral("SADR_KeyAssignment"), {QStringLiteral("PluNo")}, sadr),
        index(QStringLiteral("Sales"),
              {QStringLiteral("Date"), QStringLiteral("Receipt"), QStringLiteral("ScaleNo")},
              online),
    };
    return step;
}

}  // namespace sandogh::shopschema
