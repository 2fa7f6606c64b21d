// Saving purchases and purchase returns on both backends: the voucher's sides,
// the header as written, stock, Goods untouched, and the failures that leave nothing.

#include <gtest/gtest.h>

#include "PurchaseShopTest.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "purchase/PurchaseTexts.h"

namespace sandogh::test {
namespace {

class PurchaseSaverTest : public PurchaseShopTest {
protected:
    double stock(const char* barcode) { return ShopFixture::stock(QString::fromLatin1(barcode)); }
    QStringList goodsRows() {
        Session s = db().session();
        SqlQuery q(s, QStringLiteral("SELECT * FROM Goods ORDER BY ID"));
        QStringList rows;
        EXPECT_TRUE(q.exec());
        while (q.next()) {
            QStringList row;
            for (int c = 0; c < q.columnCount(); ++c) {
                row << q.value(c).toString();
            }
            rows << row.join(u'|');
        }
        return rows;
    }
    void expectNothingWritten() {
        EXPECT_EQ(count("tblDocumentH"), 0);
        EXPECT_EQ(count("tblDocumentD"), 0);
        EXPECT_EQ(count("Whs_QTYDocH"), 0);
        EXPECT_EQ(count("Whs_QTYDocD"), 0);
    }
};

TEST_P(PurchaseSaverTest, HeaderLinesAndVoucherAreWrittenAsTheFormHoldsThem) {
    fill(false, {{"1111", 4, 10000, 10, 9}, {"2222", 2, 5000, 0, 0}});
    purchase().header().docNo = QStringLiteral("77");
    purchase().header().discount = 1000;
    purchase().header().sarbar = 500;
    purchase().header().payType = 2;
    purchase().header().warehouseCode = 3;
    purchase().header().base = QStringLiteral("ref");
    purchase().header().note = QStringLiteral("note");
    clock.set(QDateTime(QDate(2025, 3, 21), QTime(9, 5, 42)));
    const PurchaseSaveResult r = save();
    ASSERT_TRUE(r.saved);
    // (10000 - 1000) * 1.09 = 9810 a unit; 4 units and 2 * 5000.
    EXPECT_DOUBLE_EQ(r.docSum, 39240 + 10000);
    EXPECT_DOUBLE_EQ(r.payable, 49240 - 1000 + 500);

    Session s = db().session();
    SqlQuery h(s, QStringLiteral("SELECT DocNo, TransType, CompanyID, DocDate, UserID, DocSum, "
                                 "Discount, DocTime, Sarbar, PayType, Base, Note, DocumentHID, "
                                 "WarehouseCode FROM Whs_QTYDocH WHERE Code = :c"));
    h.bind(QStringLiteral(":c"), r.code);
    ASSERT_TRUE(h.exec() && h.next());
    EXPECT_EQ(h.text(0), QStringLiteral("77"));
    EXPECT_EQ(h.integer(1), 1);
    EXPECT_EQ(h.integer(2), kSupplier);
    EXPECT_EQ(h.text(3), QStringLiteral("1404/01/01"));
    EXPECT_EQ(h.integer(4), 7);
    EXPECT_DOUBLE_EQ(h.number(5), 49240);
    EXPECT_DOUBLE_EQ(h.number(6), 1000);
    EXPECT_EQ(h.text(7), QStringLiteral("09:05:21"));  // hours, minutes, day of the month
    EXPECT_DOUBLE_EQ(h.number(8), 500);
    EXPECT_EQ(h.integer(9), 2);
    EXPECT_EQ(h.text(10), QStringLiteral("ref"));
    EXPECT_EQ(h.text(11), QStringLiteral("note"));
    EXPECT_EQ(h.int64(12), r.voucherId);
    EXPECT_EQ(h.integer(13), 3);

    SqlQuery d(s, QStringLiteral("SELECT EAN_Code, Qty, MFee, Discount, Fee, Price, TaxValue "
                                 "FROM Whs_QTYDocD WHERE Code = :c ORDER BY ID"));
    d.bind(QStringLiteral(":c"), r.code);
    ASSERT_TRUE(d.exec() && d.next());
    EXPECT_EQ(d.text(0), QStringLiteral("1111"));
    EXPECT_DOUBLE_EQ(d.number(1), 4);
    EXPECT_DOUBLE_EQ(d.number(2), 10000);
    EXPECT_DOUBLE_EQ(d.number(3), 10);
    EXPECT_DOUBLE_EQ(d.number(4), 9810);
    EXPECT_DOUBLE_EQ(d.number(5), 39240);
    EXPECT_DOUBLE_EQ(d.number(6), 9);
    ASSERT_TRUE(d.next());
    EXPECT_FALSE(d.next());

    SqlQuery v(s, QStringLiteral("SELECT Code, Date, Time, UserID, Note FROM tblDocumentH "
                                 "WHERE ID = :id"));
    v.bind(QStringLiteral(":id"), r.voucherId);
    ASSERT_TRUE(v.exec() && v.next());
    EXPECT_EQ(v.int64(0), 1);
    EXPECT_EQ(v.text(1), QStringLiteral("1404/01/01"));
    EXPECT_EQ(v.text(2), QStringLiteral("09:05"));
    EXPECT_EQ(v.integer(3), 7);
    EXPECT_EQ(v.text(4), PurchaseTexts::purchaseVoucherNote() + QStringLiteral("77 ") +
                             PurchaseTexts::voucherNoteDate() + QStringLiteral("1404/01/01"));
}

TEST_P(PurchaseSaverTest, PurchaseDebitsItsAccountAndAReturnCreditsIt) {
    struct Case {
        bool isReturn;
        std::pair<double, double> purchaseAccount;
        std::pair<double, double> supplierAccount;
    };
    for (const Case& c : {Case{false, {2000, 0}, {0, 2000}}, Case{true, {0, 2000}, {2000, 0}}}) {
        fill(c.isReturn, {{"1111", 2, 1000, 0, 0}});
        const PurchaseSaveResult r = save();
        ASSERT_TRUE(r.saved);
        EXPECT_EQ(posted(r.voucherId, 301), c.purchaseAccount) << c.isReturn;
        EXPECT_EQ(posted(r.voucherId, 401), c.supplierAccount) << c.isReturn;
    }
}

TEST_P(PurchaseSaverTest, StockFollowsAPurchaseAndItsReturnAndGoodsStayAsTheyWere) {
    const QStringList goods = goodsRows();
    fill(false, {{"1111", 5, 1000, 0, 0}, {"2222", 3, 700, 0, 0}, {"1111", 2, 1000, 0, 0}});
    ASSERT_TRUE(save().saved);
    EXPECT_DOUBLE_EQ(stock("1111"), 7);
    EXPECT_DOUBLE_EQ(stock("2222"), 3);
    fill(true, {{"1111", 4, 1000, 0, 0}});
    ASSERT_TRUE(save().saved);
    EXPECT_DOUBLE_EQ(stock("1111"), 3);
    EXPECT_DOUBLE_EQ(stock("2222"), 3);
    EXPECT_EQ(goodsRows(), goods);
}

TEST_P(PurchaseSaverTest, RefusalOrFailureLeavesNothingAndTheSamePurchaseSavesNext) {
    fill(false, {{"1111", 1, 1000, 0, 0}}, kSupplierWithoutAccount);
    const PurchaseSaveResult refused = save();
    EXPECT_FALSE(refused.saved);
    EXPECT_EQ(refused.refusedBy, PurchaseCheck::SupplierAccount);
    EXPECT_EQ(messages().countOf(PurchaseTexts::supplierWithoutAccount()), 1);
    expectNothingWritten();
    EXPECT_EQ(purchase().lines().lineCount(), 1);

    // A failure inside the save leaves nothing either, and the same purchase saves next.
    fill(false, {{"1111", 3, 1000, 0, 0}});
    messages().clear();
    refuse(QStringLiteral("Whs_QTYDocD"), QStringLiteral("INSERT"));
    const PurchaseSaveResult failed = save();
    EXPECT_FALSE(failed.saved);
    EXPECT_EQ(messages().countOf(Database::connectionFailureMessage()), 1);
    expectNothingWritten();
    EXPECT_EQ(purchase().lines().lineCount(), 1);

    allow(QStringLiteral("Whs_QTYDocD"));
    const PurchaseSaveResult r = save();
    ASSERT_TRUE(r.saved);
    EXPECT_EQ(r.code, 1);
    EXPECT_EQ(r.docNo, QStringLiteral("1"));
    EXPECT_EQ(count("Whs_QTYDocD"), 1);
    EXPECT_DOUBLE_EQ(stock("1111"), 3);
}

TEST_P(PurchaseSaverTest, SupplierNumberTwiceForOneSupplierIsRefusedForAnotherAsked) {
    fill(false, {{"1111", 1, 1000, 0, 0}});
    purchase().header().docNo = QStringLiteral(" ۹۰۰۹ ");
    ASSERT_TRUE(save().saved);

    fill(false, {{"1111", 1, 1000, 0, 0}});
    purchase().header().docNo = QStringLiteral("9009");
    EXPECT_EQ(save().refusedBy, PurchaseCheck::RepeatedDocNo);
    EXPECT_EQ(messages().countOf(PurchaseTexts::docNoRepeatedForSupplier()), 1);

    exec(
        QStringLiteral("UPDATE Types SET AccountingGroupID = (SELECT AccountingGroupID FROM "
                       "Types WHERE Counter = 601) WHERE Counter = 602"));
    fill(false, {{"1111", 1, 1000, 0, 0}}, kSupplierWithoutAccount);
    purchase().header().docNo = QStringLiteral("9009");
    messages().queueAnswer(false);
    EXPECT_EQ(save().refusedBy, PurchaseCheck::RepeatedDocNo);
    messages().queueAnswer(true);
    EXPECT_TRUE(save().saved);
    EXPECT_EQ(messages().countOf(PurchaseTexts::docNoRepeatedAsk()), 2);
    // A return keeps its own numbers: the purchase's number is free there.
    fill(true, {{"1111", 1, 1000, 0, 0}});
    purchase().header().docNo = QStringLiteral("9009");
    EXPECT_TRUE(save().saved);
}

SANDOGH_INSTANTIATE_BACKENDS(PurchaseSaverTest);

}  // namespace
}  // namespace sandogh::test
