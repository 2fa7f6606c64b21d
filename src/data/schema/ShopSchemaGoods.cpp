// Step 3: goods, stock, prices, serial numbers, sets, locks, price-change documents
// and warehouses. Goods are joined everywhere by their barcode text, never by ID.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

TableDef goods() {
    QList<ColumnDef> columns{
        identity(QStringLiteral("ID")),        notNull(codeText(QStringLiteral("EAN_Code"))),
        codeText(QStringLiteral("Spec_Code")), nameText(QStringLiteral("Name")),
        money(QStringLiteral("C_In_Paket")),   money(QStringLiteral("G_Min")),
        money(QStringLiteral("G_Max")),        longText(QStringLiteral("Note")),
        integer(QStringLiteral("Spec_Group")), money(QStringLiteral("Cost")),
        money(QStringLiteral("Cost2")),        text(QStringLiteral("ComplexCode"), 100),
    };
    columns << levelColumns(10);
    columns << integer(QStringLiteral("Unit")) << integer(QStringLiteral("Type"))
            << text(QStringLiteral("Pic"), kAddressLength) << flag(QStringLiteral("AQIS"))
            << money(QStringLiteral("ArticlePrice")) << money(QStringLiteral("TaxValue"))
            << flag(QStringLiteral("ISFavorite")) << integer(QStringLiteral("FavoriteTab"))
            << integer(QStringLiteral("GType")) << nameText(QStringLiteral("EnName"))
            << codeText(QStringLiteral("StockNo1")) << codeText(QStringLiteral("StockNo2"))
            << integer(QStringLiteral("SyncInsert"))
            // The goods insert does not name ISActive; a new article is in use.
            << withDefault(flag(QStringLiteral("ISActive")), QStringLiteral("1"));
    return table(QStringLiteral("Goods"), columns, {QStringLiteral("ID")});
}

TableDef stock() {
    // One row per article; the quantities are recomputed by the stock repair.
    return table(QStringLiteral("Stock"),
                 {
                     notNull(codeText(QStringLiteral("Barcode"))),
                     withDefault(money(QStringLiteral("Import")), QStringLiteral("0")),
                     withDefault(money(QStringLiteral("Export")), QStringLiteral("0")),
                     withDefault(money(QStringLiteral("Stock")), QStringLiteral("0")),
                     integer(QStringLiteral("Branch")),
                 },
                 {QStringLiteral("Barcode")});
}

TableDef priceHistory() {
    return table(QStringLiteral("Price_History"),
                 {
                     identity(QStringLiteral("Id"), ColumnType::BigInt),
                     codeText(QStringLiteral("EAN_CODE")),
                     integer(QStringLiteral("UserID")),
                     timeText(QStringLiteral("DateTime")),
                     money(QStringLiteral("Price")),
                 },
                 {QStringLiteral("Id")});
}

TableDef relatedCode() {
    return table(QStringLiteral("tblRelatedCode"), {
                                                       codeText(QStringLiteral("Ean_Code")),
                                                       money(QStringLiteral("Price")),
                                                   });
}

TableDef serial() {
    // SerialNo is allocated as Max + 1 over the table; Code is the sale document,
    // 1 while the sale is still open.
    return table(QStringLiteral("Serial"),
                 {
                     identity(QStringLiteral("Id"), ColumnType::BigInt),
                     notNull(codeText(QStringLiteral("SerialNo"))),
                     codeText(QStringLiteral("Ean_Code")),
                     bigInt(QStringLiteral("Code")),
                     dateText(QStringLiteral("ExpireDate")),
                     longText(QStringLiteral("Note")),
                 },
                 {QStringLiteral("Id")});
}

TableDef setArticle() {
    return table(QStringLiteral("Set"),
                 {
                     identity(QStringLiteral("Id")),
                     notNull(codeText(QStringLiteral("Ean_Code"))),
                 },
                 {QStringLiteral("Id")});
}

TableDef setItem() {
    return table(QStringLiteral("SetItem"),
                 {
                     notNull(integer(QStringLiteral("SetId"))),
                     notNull(codeText(QStringLiteral("Ean_Code"))),
                 },
                 {QStringLiteral("SetId"), QStringLiteral("Ean_Code")});
}

TableDef itemLock() {
    // Several reservations may stand for one article; they are summed.
    return table(QStringLiteral("ItemLock"), {
                                                 codeText(QStringLiteral("Ean_Code")),
                                                 money(QStringLiteral("Qty")),
                                                 flag(QStringLiteral("IsLock")),
                                             });
}

TableDef discountH() {
    // A price-change document in force from FDate to SDate (Jalali text, inclusive).
    return table(QStringLiteral("DiscountH"),
                 {
                     notNull(integer(QStringLiteral("Code"))),
                     dateText(QStringLiteral("FDate")),
                     dateText(QStringLiteral("SDate")),
                 },
                 {QStringLiteral("Code")});
}

TableDef discountD() {
    return table(QStringLiteral("DiscountD"),
                 {
                     notNull(integer(QStringLiteral("Code"))),
                     notNull(codeText(QStringLiteral("Ean_Code"))),
                     money(QStringLiteral("NewCost")),
                 },
                 {QStringLiteral("Code"), QStringLiteral("Ean_Code")});
}

TableDef discountFactor() {
    // Price-break discounts: the highest FactorAmount not above the total wins.
    return table(QStringLiteral("DiscountFactor"), {
                                                       flag(QStringLiteral("IsActive")),
                                                       dateText(QStringLiteral("StartDate")),
                                                       dateText(QStringLiteral("EndDate")),
                                                       money(QStringLiteral("FactorAmount")),
                                                       money(QStringLiteral("DiscountPercent")),
                                                   });
}

TableDef warehousing() {
    // The stock-count sheet.
    return table(QStringLiteral("Whs_Warehousing"),
                 {
                     identity(QStringLiteral("ID")),
                     codeText(QStringLiteral("Barcode")),
                     money(QStringLiteral("Qty")),
                 },
                 {QStringLiteral("ID")});
}

TableDef warehouse() {
    return table(QStringLiteral("tblWarehouse"),
                 {
                     notNull(integer(QStringLiteral("Code"))),
                     nameText(QStringLiteral("Name")),
                     withDefault(flag(QStringLiteral("ISActive")), QStringLiteral("1")),
                 },
                 {QStringLiteral("Code")});
}

// The two warehouse link tables are rebuilt whole (delete, reseed the row numbers,
// insert the cross product), so each has a database-numbered ID.
TableDef barcodeWarehouse() {
    return table(QStringLiteral("BarcodeWarehouse"),
                 {
                     identity(QStringLiteral("ID")),
                     notNull(codeText(QStringLiteral("EanCode"))),
                     notNull(integer(QStringLiteral("WarehouseCode"))),
                     longText(QStringLiteral("Note")),
                 },
                 {QStringLiteral("ID")});
}

TableDef userWarehouse() {
    return table(QStringLiteral("UserWarehouse"),
                 {
                     identity(QStringLiteral("ID")),
                     notNull(integer(QStringLiteral("UserID"))),
                     notNull(integer(QStringLiteral("WarehouseCode"))),
                     withDefault(flag(QStringLiteral("ISActive")), QStringLiteral("1")),
                 },
                 {QStringLiteral("ID")});
}

}  // namespace

MigrationStep goodsStep() {
    MigrationStep step;
    step.version = 3;
    step.description = QStringLiteral("Goods, stock, prices, serials, sets and warehouses");
    step.tables = {
        goods(),          stock(),       priceHistory(), relatedCode(),      serial(),
        setArticle(),     setItem(),     itemLock(),     discountH(),        discountD(),
        discountFactor(), warehousing(), warehouse(),    barcodeWarehouse(), userWarehouse()};
    const QString g = QStringLiteral("Goods");
    step.indexes = {
        // The barcode box, the goods search and the favourites pad.
        uniqueIndex(g, {QStringLiteral("EAN_Code")}),
        index(g, {QStringLiteral("Spec_Code")}),
        index(g, {QStringLiteral("Name")}),
        index(g, {QStringLiteral("ISFavorite"), QStringLiteral("FavoriteTab")}),
        // The latest price of a barcode: newest Id first.
        index(QStringLiteral("Price_History"), {QStringLiteral("EAN_CODE"), QStringLiteral("Id")}),
        index(QStringLiteral("tblRelatedCode"), {QStringLiteral("Ean_Code")}),
        // Serial numbers are Max + 1: two desks allocating the same one must collide.
        uniqueIndex(QStringLiteral("Serial"), {QStringLiteral("SerialNo")}),
        index(QStringLiteral("Serial"), {QStringLiteral("Code")}),
        index(QStringLiteral("Serial"), {QStringLiteral("Ean_Code")}),
        uniqueIndex(QStringLiteral("Set"), {QStringLiteral("Ean_Code")}),
        index(QStringLiteral("SetItem"), {QStringLiteral("Ean_Code")}),
        index(QStringLiteral("ItemLock"), {QStringLiteral("Ean_Code")}),
        // The price-change look-up goes from the barcode to the documents.
        index(QStringLiteral("DiscountD"), {QStringLiteral("Ean_Code")}),
        index(QStringLiteral("Whs_Warehousing"), {QStringLiteral("Barcode")}),
        uniqueIndex(QStringLiteral("BarcodeWarehouse"),
                    {QStringLiteral("EanCode"), QStringLiteral("WarehouseCode")}),
        uniqueIndex(QStringLiteral("UserWarehouse"),
                    {QStringLiteral("UserID"), QStringLiteral("WarehouseCode")}),
    };
    return step;
}

}  // namespace sandogh::shopschema
