// Step 6: gift cards. A card number (CardID) may carry several charge rows; its balance
// is the sum of their Amount less the sum of the movements spent from it.

#include "data/schema/ShopSchemaBuild.h"

namespace sandogh::shopschema {

namespace {

TableDef giftCard() {
    return table(QStringLiteral("tblGiftCard"),
                 {
                     identity(QStringLiteral("ID")),
                     notNull(bigInt(QStringLiteral("CardID"))),
                     integer(QStringLiteral("CustomerID")),
                     money(QStringLiteral("Amount")),
                     money(QStringLiteral("Discount")),
                     dateText(QStringLiteral("DateCreation")),
                     dateText(QStringLiteral("DateToCustomer")),
                     dateText(QStringLiteral("ExpireDate")),
                     text(QStringLiteral("Password"), 100),
                     // Movements allowed per month; 0 or NULL for no limit.
                     integer(QStringLiteral("AllowedMonth")),
                 },
                 {QStringLiteral("ID")});
}

TableDef giftCardItem() {
    // One movement spent from a card; DocHCode is the sale's Whs_QTYDocH.Code.
    return table(QStringLiteral("tblGiftCardItem"),
                 {
                     identity(QStringLiteral("ID")),
                     notNull(integer(QStringLiteral("GiftCardID"))),
                     money(QStringLiteral("Amount")),
                     dateText(QStringLiteral("Date")),
                     timeText(QStringLiteral("Time")),
                     integer(QStringLiteral("UserID")),
                     integer(QStringLiteral("CustomerID")),
                     bigInt(QStringLiteral("DocHCode")),
                 },
                 {QStringLiteral("ID")});
}

}  // namespace

MigrationStep giftCardsStep() {
    MigrationStep step;
    step.version = 6;
    step.description = QStringLiteral("Gift cards and their movements");
    step.tables = {giftCard(), giftCardItem()};
    step.indexes = {
        index(QStringLiteral("tblGiftCard"), {QStringLiteral("CardID")}),
        index(QStringLiteral("tblGiftCard"), {QStringLiteral("CustomerID")}),
        // Balance of a card, and its movements of one month.
        index(QStringLiteral("tblGiftCardItem"),
              {QStringLiteral("GiftCardID"), QStringLiteral("Date")}),
        // Deleting a sale removes the movements it wrote.
        index(QStringLiteral("tblGiftCardItem"), {QStringLiteral("DocHCode")}),
    };
    return step;
}

}  // namespace sandogh::shopschema
