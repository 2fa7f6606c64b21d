// Step 4: stock documents (ordinary and internal), the pick lists of their headers,
// pro-forma invoices, customer orders and branch requests.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

// Code is allocated by the saving batch as Max(Code) + 1, so it is the primary key:
// two desks that race for it collide in the database. DocNo is digit text, numbered
// per TransType by the program and not unique (two desks may share one on a day).
TableDef qtyDocH() {
    return table(QStringLiteral("Whs_QTYDocH"),
                 {
                     notNull(bigInt(QStringLiteral("Code"))),
                     docNoText(QStringLiteral("DocNo")),
                     integer(QStringLiteral("TransType")),
                     integer(QStringLiteral("CompanyID")),
                     dateText(QStringLiteral("DocDate")),
                     integer(QStringLiteral("UserID")),
                     money(QStringLiteral("DocSum")),
                     money(QStringLiteral("Discount")),
                     timeText(QStringLiteral("DocTime")),
                     money(QStringLiteral("Sarbar")),
                     money(QStringLiteral("ReceivedPrice")),
                     integer(QStringLiteral("StationID")),
                     longText(QStringLiteral("Note")),
                     integer(QStringLiteral("SalesType")),
                     integer(QStringLiteral("ShiftCode")),
                     integer(QStringLiteral("PayType")),
                     bigInt(QStringLiteral("DocumentHID")),
                     integer(QStringLiteral("WarehouseCode")),
                     integer(QStringLiteral("DiscountTypeId")),
                     integer(QStringLiteral("CarId")),
                     nameText(QStringLiteral("Transporter")),
                     money(QStringLiteral("KilometerEntry")),
                     nameText(QStringLiteral("Base")),
                     integer(QStringLiteral("ReturnCauseId")),
                     integer(QStringLiteral("OverheadID")),
                     flag(QStringLiteral("IsUpdatable")),
                     // NULL for every document the screens write.
                     integer(QStringLiteral("DocType")),
                 },
                 {QStringLiteral("Code")});
}

TableDef qtyDocD() {
    return table(QStringLiteral("Whs_QTYDocD"),
                 {
                     identity(QStringLiteral("ID"), ColumnType::BigInt),
                     notNull(bigInt(QStringLiteral("Code"))),
                     codeText(QStringLiteral("EAN_Code")),
                     money(QStringLiteral("Qty")),
                     money(QStringLiteral("MFee")),
                     money(QStringLiteral("Discount")),
                     money(QStringLiteral("Fee")),
                     money(QStringLiteral("Price")),
                     money(QStringLiteral("TaxValue")),
                     integer(QStringLiteral("UserID")),
                 },
                 {QStringLiteral("ID")});
}

// Internal documents: the party is a tblCenterBranches.ID; Atf cross-references the
// invoice that a return returns and marks a document sent to its branch.
TableDef qtyDocHInternal() {
    return table(QStringLiteral("Whs_QTYDocHInternal"),
                 {
                     notNull(bigInt(QStringLiteral("Code"))),
                     docNoText(QStringLiteral("DocNo")),
                     integer(QStringLiteral("TransType")),
                     integer(QStringLiteral("CompanyID")),
                     dateText(QStringLiteral("DocDate")),
                     integer(QStringLiteral("UserID")),
                     docNoText(QStringLiteral("Atf")),
                     longText(QStringLiteral("Note")),
                     money(QStringLiteral("DocSum")),
                     money(QStringLiteral("Discount")),
                     timeText(QStringLiteral("DocTime")),
                     integer(QStringLiteral("StationID")),
                     integer(QStringLiteral("SalesType")),
                     money(QStringLiteral("Sarbar")),
                     money(QStringLiteral("ReceivedPrice")),
                     integer(QStringLiteral("PayType")),
                     flag(QStringLiteral("IsUpdatable")),
                     nameText(QStringLiteral("Base")),
                 },
                 {QStringLiteral("Code")});
}

TableDef qtyDocDInternal() {
    return table(QStringLiteral("Whs_QTYDocDInternal"),
                 {
                     identity(QStringLiteral("ID"), ColumnType::BigInt),
                     notNull(bigInt(QStringLiteral("Code"))),
                     codeText(QStringLiteral("EAN_Code")),
                     money(QStringLiteral("Qty")),
                     money(QStringLiteral("QtyR")),
                     money(QStringLiteral("MFee")),
                     money(QStringLiteral("Discount")),
                     money(QStringLiteral("Fee")),
                     money(QStringLiteral("Price")),
                     money(QStringLiteral("TaxValue")),
                 },
                 {QStringLiteral("ID")});
}

// Pick lists of the document header, keyed by fixed ids (DiscountTypeId 1 is the
// default reason that the repair step writes).
TableDef pickList(const QString& tableName, bool withGiftFlag = false) {
    QList<ColumnDef> columns{notNull(integer(QStringLiteral("Id"))),
                             nameText(QStringLiteral("Name"))};
    if (withGiftFlag) {
        columns << flag(QStringLiteral("IsImpactGift"));
    }
    return table(tableName, columns, {QStringLiteral("Id")});
}

TableDef car() {
    return table(QStringLiteral("Car"),
                 {
                     identity(QStringLiteral("Id")),
                     codeText(QStringLiteral("Type")),
                     codeText(QStringLiteral("System")),
                     codeText(QStringLiteral("Tip")),
                     codeText(QStringLiteral("Color")),
                     codeText(QStringLiteral("Fuel")),
                     codeText(QStringLiteral("Capacity")),
                     codeText(QStringLiteral("Cylinder")),
                     codeText(QStringLiteral("Axis")),
                     codeText(QStringLiteral("Wheel")),
                     codeText(QStringLiteral("MotorNo")),
                     codeText(QStringLiteral("ChassisNo")),
                     codeText(QStringLiteral("PelakNo")),
                     integer(QStringLiteral("Counter")),
                 },
                 {QStringLiteral("Id")});
}

TableDef preFactorH() {
    return table(QStringLiteral("tblPreFactorH"),
                 {
                     identity(QStringLiteral("ID")),
                     bigInt(QStringLiteral("Code")),
                     money(QStringLiteral("DocSum")),
                     money(QStringLiteral("Discount")),
                     longText(QStringLiteral("Note")),
                     integer(QStringLiteral("CompanyID")),
                     withDefault(flag(QStringLiteral("IsTrenchant")), QStringLiteral("0")),
                 },
                 {QStringLiteral("ID")});
}

TableDef preFactorD() {
    return table(QStringLiteral("tblPreFactorD"),
                 {
                     notNull(integer(QStringLiteral("PreFactorHID"))),
                     codeText(QStringLiteral("EAN_Code")),
                     money(QStringLiteral("Qty")),
                     money(QStringLiteral("Price")),
                 });
}

TableDef orders() {
    return table(QStringLiteral("tblOrders"),
                 {
                     notNull(bigInt(QStringLiteral("Code"))),
                     nameText(QStringLiteral("CustomerName")),
                     codeText(QStringLiteral("CustomerTel")),
                     text(QStringLiteral("CustomerAdd"), kAddressLength),
                     dateText(QStringLiteral("OrderDate")),
                     timeText(QStringLiteral("OrderTime")),
                     dateText(QStringLiteral("DeliverDate")),
                     timeText(QStringLiteral("DeliverTime")),
                     money(QStringLiteral("Weight")),
                     money(QStringLiteral("Deposit")),
                     nameText(QStringLiteral("GetOrderName")),
                     longText(QStringLiteral("Note")),
                     codeText(QStringLiteral("PicCode")),
                 },
                 {QStringLiteral("Code")});
}

TableDef ordersItem() {
    return table(QStringLiteral("tblOrdersItem"), {
                                                      notNull(bigInt(QStringLiteral("Code"))),
                                                      text(QStringLiteral("Path"), kAddressLength),
                                                      nameText(QStringLiteral("Name")),
                                                      longText(QStringLiteral("Note")),
                                                      integer(QStringLiteral("Order")),
                                                  });
}

// Goods requests of the branches, read by the sale screen of the centre from the
// database of a branch (DocType 2, one request per DocNo and branch).
TableDef requestH() {
    return table(QStringLiteral("RequestH"),
                 {
                     notNull(integer(QStringLiteral("BranchCode"))),
                     notNull(bigInt(QStringLiteral("Code"))),
                     docNoText(QStringLiteral("DocNo")),
                     integer(QStringLiteral("DocType")),
                 },
                 {QStringLiteral("BranchCode"), QStringLiteral("Code")});
}

TableDef requestD() {
    return table(QStringLiteral("RequestD"),
                 {
                     identity(QStringLiteral("ID"), ColumnType::BigInt),
                     notNull(integer(QStringLiteral("BranchCode"))),
                     notNull(bigInt(QStringLiteral("Code"))),
                     codeText(QStringLiteral("EAN_Code")),
                     money(QStringLiteral("Qty")),
                 },
                 {QStringLiteral("ID")});
}

ForeignKeyDef headerStation() {
    ForeignKeyDef fk;
    fk.name = QStringLiteral("FK_Whs_QTYDocH_Stations");
    fk.table = QStringLiteral("Whs_QTYDocH");
    fk.columns = {QStringLiteral("StationID")};
    fk.refTable = QStringLiteral("Stations");
    fk.refColumns = {QStringLiteral("ID")};
    return fk;
}

}  // namespace

MigrationStep documentsStep() {
    MigrationStep step;
    step.version = 4;
    step.description = QStringLiteral("Stock documents, internal documents, pre-invoices, orders");
    step.tables = {
        qtyDocH(),
        qtyDocD(),
        qtyDocHInternal(),
        qtyDocDInternal(),
        pickList(QStringLiteral("DiscountType"), true),
        pickList(QStringLiteral("Overhead")),
        pickList(QStringLiteral("ReturnCause")),
        car(),
        preFactorH(),
        preFactorD(),
        orders(),
        ordersItem(),
        requestH(),
        requestD(),
    };
    const QString h = QStringLiteral("Whs_QTYDocH");
    const QString d = QStringLiteral("Whs_QTYDocD");
    const QString hi = QStringLiteral("Whs_QTYDocHInternal");
    const QString di = QStringLiteral("Whs_QTYDocDInternal");
    const QString transType = QStringLiteral("TransType");
    step.indexes = {
        // Lists, daily totals, daily numbering and the look-up by kind, number and date.
        index(h, {transType, QStringLiteral("DocDate")}),
        // Number checks and look-ups by kind and number, ordinary documents only.
        index(h, {transType, QStringLiteral("DocType"), QStringLiteral("DocNo")}),
        // Newest first within a kind (last purchase price, last document).
        index(h, {transType, QStringLiteral("Code")}),
        // The previous invoice of this cash desk.
        index(h, {QStringLiteral("StationID"), QStringLiteral("Code")}),
        // A customer's sales, returns and purchase count.
        index(h, {QStringLiteral("CompanyID"), transType}),
        index(h, {QStringLiteral("DocumentHID")}),
        index(d, {QStringLiteral("Code")}),
        // Lines of one article, newest line first.
        index(d, {QStringLiteral("EAN_Code"), QStringLiteral("ID")}),
        index(hi, {transType, QStringLiteral("DocDate")}),
        index(hi, {transType, QStringLiteral("DocNo")}),
        index(hi, {QStringLiteral("StationID"), QStringLiteral("Code")}),
        index(di, {QStringLiteral("Code")}),
        index(di, {QStringLiteral("EAN_Code"), QStringLiteral("ID")}),
        // The vehicle of a sale is found by its chassis number.
        index(QStringLiteral("Car"), {QStringLiteral("ChassisNo")}),
        index(QStringLiteral("tblPreFactorH"), {QStringLiteral("Code")}),
        index(QStringLiteral("tblPreFactorD"), {QStringLiteral("PreFactorHID")}),
        index(QStringLiteral("tblOrdersItem"), {QStringLiteral("Code")}),
        index(QStringLiteral("RequestH"), {QStringLiteral("DocType"), QStringLiteral("DocNo")}),
        index(QStringLiteral("RequestD"), {QStringLiteral("BranchCode"), QStringLiteral("Code")}),
    };
    // Declared with its table so that backends which only take foreign keys inside
    // CREATE TABLE can render it.
    step.foreignKeys = {headerStation()};
    return step;
}

}  // namespace sandogh::shopschema
