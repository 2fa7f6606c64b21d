// Deleting saved documents on both backends: the movements check, the loyalty gift given
// back, the stock and voucher that follow, the audit record, and a failure part way that
// leaves the document whole.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "SavedSalesTest.h"
#include "sales/SaleAudit.h"
#include "sales/SaleDelete.h"

namespace sandogh::test {
namespace {

class SaleDeleteTest : public SavedSalesTest {
protected:
    SaleDelete deleter() { return SaleDelete(db(), messages(), clock(), {7, 1}); }
    SaleDelete::Outcome deleteSale(const SaleSaveResult& r) {
        return deleter().deleteOne(2, r.docNo, QStringLiteral("1404/01/01"));
    }
    qint64 rowsOf(const SaleSaveResult& r) {
        const SqlBinds c{{QStringLiteral(":c"), r.code}};
        const SqlBinds v{{QStringLiteral(":v"), r.voucherId}};
        return count(QStringLiteral("Whs_QTYDocH"), QStringLiteral("Code = :c"), c) +
               count(QStringLiteral("Whs_QTYDocD"), QStringLiteral("Code = :c"), c) +
               count(QStringLiteral("tblGiftCardItem"), QStringLiteral("DocHCode = :c"), c) +
               count(QStringLiteral("tblDocumentH"), QStringLiteral("ID = :v"), v) +
               count(QStringLiteral("tblDocumentD"), QStringLiteral("DocumentHID = :v"), v);
    }
};

TEST_P(SaleDeleteTest, APaymentOnTheSaleOrOnItsVoucherKeepsItUntilThePaymentIsRemoved) {
    const SaleSaveResult r = sell({{QStringLiteral("2222"), 2}});
    const qint64 rows = rowsOf(r);
    insert("OtherPayment (Code, CompanyID, TransType, ReceivedPrice)", {r.code, 501, 2, 1000});
    EXPECT_EQ(deleteSale(r), SaleDelete::Outcome::HasMovements);
    EXPECT_EQ(messages().countOf(SaleDelete::movementsText()), 1);
    exec(QStringLiteral("DELETE FROM OtherPayment"));
    insert("tblSourcePayment (Code, TypesCounter, PaymentKind, Amount, DocumentHID)",
           {1, 501, 0, 1000, r.voucherId});
    EXPECT_EQ(deleteSale(r), SaleDelete::Outcome::HasMovements);
    EXPECT_EQ(messages().countOf(SaleDelete::movementsText()), 2);
    EXPECT_EQ(rowsOf(r), rows);

    exec(QStringLiteral("DELETE FROM tblSourcePayment"));
    EXPECT_EQ(deleteSale(r), SaleDelete::Outcome::Deleted);
    EXPECT_EQ(messages().countOf(SaleDelete::doneText()), 1);
    EXPECT_EQ(rowsOf(r), 0);
}

TEST_P(SaleDeleteTest, ASaleThatTookThreeGiftsGivesOneBack) {
    setOption("Loyalty", "AmountRebate", QStringLiteral("20000"));
    SaleSettlement st;
    st.discount = 60000;
    st.discountTypeId = 5;
    st.loyaltyGift = true;
    const SaleSaveResult r = sell({{QStringLiteral("2222"), 1}}, st, kCustomer);
    const QString taken =
        QStringLiteral("SELECT DiscountTakenTotal FROM Types WHERE Counter = 501");
    ASSERT_EQ(number(taken), 3);
    ASSERT_EQ(deleteSale(r), SaleDelete::Outcome::Deleted);
    EXPECT_EQ(number(taken), 2);
}

TEST_P(SaleDeleteTest, AFailurePartWayLeavesTheDocumentItsVoucherCardAndStockWhole) {
    insert("tblGiftCard (CardID, Amount, CustomerID)", {777, 50000, 501});
    SaleSettlement st;
    st.giftCardId = 777;
    st.giftCardAmount = 30000;
    const SaleSaveResult r = sell({{QStringLiteral("2222"), 3}}, st, kCustomer);
    const qint64 rows = rowsOf(r);
    ASSERT_GE(rows, 1 + 1 + 1 + 1 + 2);  // header, line, card movement, voucher and its rows
    const double before = stock(QStringLiteral("2222"));
    ASSERT_EQ(before, 47);

    // The voucher goes last: everything before it has run when it fails.
    refuse(QStringLiteral("tblDocumentH"), QStringLiteral("DELETE"));
    EXPECT_EQ(deleteSale(r), SaleDelete::Outcome::Failed);
    EXPECT_EQ(messages().countOf(Database::connectionFailureMessage()), 1);
    EXPECT_EQ(rowsOf(r), rows);
    EXPECT_EQ(stock(QStringLiteral("2222")), before);
    EXPECT_EQ(count(QStringLiteral("tblSaleAudit")), 0);
}

TEST_P(SaleDeleteTest, StockFollowsTheRemainingLinesAndTheRecordKeepsTheDeletedOne) {
    const SaleSaveResult first = sell({{QStringLiteral("2222"), 2}, {QStringLiteral("3333"), 5}});
    sell({{QStringLiteral("2222"), 4}});
    ASSERT_EQ(stock(QStringLiteral("2222")), 44);
    clock().set(QDateTime(QDate(2025, 3, 22), QTime(18, 5, 9)));

    ASSERT_EQ(deleteSale(first), SaleDelete::Outcome::Deleted);
    EXPECT_EQ(stock(QStringLiteral("2222")), 46);
    EXPECT_EQ(stock(QStringLiteral("3333")), 50);

    const QList<SaleAuditRepository::Record> records =
        SaleAudit::list(db(), QStringLiteral("1404/01/02"), {}, 7);
    ASSERT_EQ(records.size(), 1);
    const SaleAuditRepository::Record& a = records.first();
    EXPECT_EQ(a.action, SaleAuditRepository::Delete);
    EXPECT_EQ(a.docCode, first.code);
    EXPECT_EQ(a.stationId, 1);
    EXPECT_EQ(a.auditDate, QStringLiteral("1404/01/02"));
    EXPECT_EQ(a.auditTime, QStringLiteral("18:05:09"));
    const QJsonObject doc = QJsonDocument::fromJson(a.document.toUtf8()).object();
    EXPECT_EQ(doc[QStringLiteral("header")][QStringLiteral("DocNo")].toString(), first.docNo);
    const QJsonArray lines = doc[QStringLiteral("lines")].toArray();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0][QStringLiteral("EAN_Code")].toString(), QStringLiteral("2222"));
    EXPECT_EQ(lines[0][QStringLiteral("Qty")].toDouble(), 2);
    EXPECT_EQ(lines[1][QStringLiteral("EAN_Code")].toString(), QStringLiteral("3333"));
    EXPECT_EQ(lines[1][QStringLiteral("Qty")].toDouble(), 5);
    // Another user's records, or another day's, are not listed.
    EXPECT_TRUE(SaleAudit::list(db(), {}, {}, 8).isEmpty());
    EXPECT_TRUE(SaleAudit::list(db(), {}, QStringLiteral("1404/01/01"), 0).isEmpty());
}

TEST_P(SaleDeleteTest, AMissingDocumentAndAnEmptyGroupAreReported) {
    const SaleSaveResult r = sell({{QStringLiteral("2222"), 1}});
    const qint64 rows = rowsOf(r);
    EXPECT_EQ(deleter().deleteOne(2, r.docNo, QStringLiteral("1404/01/02")),
              SaleDelete::Outcome::NotFound);
    EXPECT_EQ(deleter().deleteOne(3, r.docNo, QStringLiteral("1404/01/01")),
              SaleDelete::Outcome::NotFound);
    EXPECT_EQ(messages().countOf(SaleDelete::notFoundText()), 2);
    EXPECT_EQ(deleter().deleteGroup({}), SaleDelete::Outcome::NothingTicked);
    EXPECT_EQ(messages().countOf(SaleDelete::nothingTickedText()), 1);
    EXPECT_EQ(rowsOf(r), rows);
}

TEST_P(SaleDeleteTest, AGroupDeletesEachTickedDocumentAndStopsAtOneWithMovements) {
    const SaleSaveResult a = sell({{QStringLiteral("2222"), 1}});
    const SaleSaveResult b = sell({{QStringLiteral("3333"), 1}});
    const SaleSaveResult c = sell({{QStringLiteral("3333"), 2}});
    insert("OtherPayment (Code, CompanyID, TransType, ReceivedPrice)", {b.code, 501, 2, 1000});
    Session s = db().session();
    const QList<SaleDeleteRepository::ListRow> list =
        SaleDeleteRepository::list(s, QStringLiteral("1404/01/01"));
    s.release();
    ASSERT_EQ(list.size(), 5);  // two purchases and three sales, newest first
    EXPECT_EQ(list[0].code, c.code);
    EXPECT_EQ(list[0].kindName, SaleDeleteRepository::kindName(2));
    EXPECT_EQ(list[4].kindName, SaleDeleteRepository::kindName(1));

    EXPECT_EQ(deleter().deleteGroup({list[2], list[1], list[0]}),
              SaleDelete::Outcome::HasMovements);
    EXPECT_EQ(rowsOf(a), 0);
    EXPECT_GT(rowsOf(b), 0);
    EXPECT_GT(rowsOf(c), 0);  // after the one that stopped the group
    EXPECT_EQ(deleter().deleteGroup({list[0]}), SaleDelete::Outcome::Deleted);
    EXPECT_EQ(rowsOf(c), 0);
}

SANDOGH_INSTANTIATE_BACKENDS(SaleDeleteTest);

}  // namespace
}  // namespace sandogh::test
