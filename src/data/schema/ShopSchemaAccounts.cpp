// Step 5: the chart of accounts, accounting vouchers, payments beside the documents,
// banks, payment kinds and the card terminal's payment record.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

TableDef accountingGroup() {
    // Two levels: groups (two-digit Code under a one-digit ParentCode) and ledgers
    // (three-digit Code under a two-digit ParentCode).
    return table(QStringLiteral("tblAccountingGroup"),
                 {
                     identity(QStringLiteral("ID")),
                     integer(QStringLiteral("Code")),
                     integer(QStringLiteral("ParentCode")),
                     nameText(QStringLiteral("Name")),
                     withDefault(flag(QStringLiteral("IsOpen")), QStringLiteral("1")),
                 },
                 {QStringLiteral("ID")});
}

TableDef documentH() {
    // The voucher insert returns ID (@MaxID); Code comes from the voucher numbering.
    return table(QStringLiteral("tblDocumentH"),
                 {
                     identity(QStringLiteral("ID"), ColumnType::BigInt),
                     notNull(bigInt(QStringLiteral("Code"))),
                     dateText(QStringLiteral("Date")),
                     timeText(QStringLiteral("Time")),
                     integer(QStringLiteral("UserID")),
                     withDefault(flag(QStringLiteral("Transfer")), QStringLiteral("0")),
                     withDefault(flag(QStringLiteral("Permanent")), QStringLiteral("0")),
                     codeText(QStringLiteral("Serial")),
                     text(QStringLiteral("Note"), 255),
                 },
                 {QStringLiteral("ID")});
}

TableDef documentD() {
    return table(QStringLiteral("tblDocumentD"),
                 {
                     identity(QStringLiteral("ID"), ColumnType::BigInt),
                     notNull(bigInt(QStringLiteral("DocumentHID"))),
                     integer(QStringLiteral("AccountingGroupID")),
                     money(QStringLiteral("Debt")),
                     money(QStringLiteral("Credit")),
                     text(QStringLiteral("Comment"), 255),
                 },
                 {QStringLiteral("ID")});
}

TableDef chequeAndTravel() {
    // TransType 0 received, 1 paid out.
    return table(QStringLiteral("tblChequeAndTravel"), {
                                                           bigInt(QStringLiteral("DocumentHID")),
                                                           integer(QStringLiteral("TransType")),
                                                           money(QStringLiteral("Price")),
                                                       });
}

TableDef sourcePayment() {
    // Payments to or from a supplier (PaymentKind 0 and 1).
    return table(QStringLiteral("tblSourcePayment"),
                 {
                     notNull(bigInt(QStringLiteral("Code"))),
                     integer(QStringLiteral("TypesCounter")),
                     integer(QStringLiteral("PaymentKind")),
                     money(QStringLiteral("Amount")),
                     bigInt(QStringLiteral("DocumentHID")),
                 },
                 {QStringLiteral("Code")});
}

TableDef otherPayment() {
    // Further amounts received against a sale; Code is the Whs_QTYDocH.Code.
    return table(QStringLiteral("OtherPayment"), {
                                                     notNull(bigInt(QStringLiteral("Code"))),
                                                     integer(QStringLiteral("CompanyID")),
                                                     integer(QStringLiteral("TransType")),
                                                     money(QStringLiteral("ReceivedPrice")),
                                                 });
}

TableDef banks() {
    // The card terminal of a bank account.
    return table(QStringLiteral("tblBanks"),
                 {
                     notNull(integer(QStringLiteral("AccountingGroupId"))),
                     bigInt(QStringLiteral("PosId")),
                 },
                 {QStringLiteral("AccountingGroupId")});
}

TableDef paymentType() {
    return table(QStringLiteral("tblPaymentType"),
                 {
                     notNull(integer(QStringLiteral("Code"))),
                     nameText(QStringLiteral("Name")),
                 },
                 {QStringLiteral("Code")});
}

TableDef pos() {
    // One row per approved card terminal payment, in the order and under the names of
    // the parameters of sp_POS_Insert; ID is returned as @MaxID.
    return table(QStringLiteral("tblPOS"),
                 {
                     identity(QStringLiteral("ID"), ColumnType::BigInt),
                     bigInt(QStringLiteral("MerchantId")),
                     bigInt(QStringLiteral("TerminalId")),
                     bigInt(QStringLiteral("DocNo")),
                     timeText(QStringLiteral("DateTime")),
                     integer(QStringLiteral("TranType")),
                     money(QStringLiteral("PaymentAmount")),
                     bigInt(QStringLiteral("PRN")),
                     bigInt(QStringLiteral("Stan")),
                     integer(QStringLiteral("ErrorCode")),
                     text(QStringLiteral("ErrorDiscription"), 50),
                     integer(QStringLiteral("PosId")),
                 },
                 {QStringLiteral("ID")});
}

}  // namespace

MigrationStep accountsStep() {
    MigrationStep step;
    step.version = 5;
    step.description = QStringLiteral("Accounts, vouchers, payments and card terminal records");
    step.tables = {accountingGroup(), documentH(),     documentD(),
                   chequeAndTravel(), sourcePayment(), otherPayment(),
                   banks(),           paymentType(),   pos()};
    step.indexes = {
        // Account lists are read by ParentCode.
        index(QStringLiteral("tblAccountingGroup"), {QStringLiteral("ParentCode")}),
        // Voucher codes are allocated by the program: a second one must collide.
        uniqueIndex(QStringLiteral("tblDocumentH"), {QStringLiteral("Code")}),
        index(QStringLiteral("tblDocumentD"), {QStringLiteral("DocumentHID")}),
        index(QStringLiteral("tblChequeAndTravel"), {QStringLiteral("DocumentHID")}),
        index(QStringLiteral("tblSourcePayment"), {QStringLiteral("DocumentHID")}),
        index(QStringLiteral("tblSourcePayment"), {QStringLiteral("TypesCounter")}),
        index(QStringLiteral("OtherPayment"), {QStringLiteral("Code")}),
        index(QStringLiteral("tblPOS"), {QStringLiteral("DocNo")}),
    };
    return step;
}

}  // namespace sandogh::shopschema
