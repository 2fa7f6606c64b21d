// Saving a sale on both backends: the rows written and their amounts, numbering, returns,
// a short payment, the gift card movement, and a failure in the middle that leaves
// nothing behind and lets the same sale be saved again.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "SavedSalesTest.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "devices/CompanionHandOff.h"
#include "support/LaunchRecorder.h"

namespace sandogh::test {
namespace {

// A sale of one rice ready to save.
class SaleSaverTest : public SavedSalesTest {
protected:
    void SetUpShop() override {
        SavedSalesTest::SetUpShop();
        ASSERT_TRUE(sale().addGoods(QStringLiteral("2222")));
        settlement.payType = 1;
    }
    SaleSettlement settlement;
};

TEST_P(SaleSaverTest, DiscountAndChargeAreWrittenWithTheDocumentItsLinesAndVoucher) {
    exec(QStringLiteral("INSERT INTO Overhead (Id, Name) VALUES (1, 'Delivery')"));
    settlement.discountPercent = 10;
    settlement.discount = 10000;
    settlement.discountTypeId = 1;
    settlement.overhead = 5000;
    settlement.overheadId = 1;
    settlement.note = QStringLiteral("note's text");
    ASSERT_TRUE(sale().addGoods(QStringLiteral("3333"), 2));
    sale().removeLine(1);

    const SaleSaveResult r = saver->save(sale(), settlement);
    ASSERT_TRUE(r.saved);
    EXPECT_EQ(r.docNo, QStringLiteral("1"));
    EXPECT_DOUBLE_EQ(r.docSum, 100000);
    EXPECT_DOUBLE_EQ(r.received, 95000);

    Session s = db().session();
    SqlQuery h(s, QStringLiteral("SELECT DocNo, TransType, CompanyID, DocDate, UserID, DocSum, "
                                 "Discount, DocTime, Sarbar, ReceivedPrice, StationID, Note, "
                                 "PayType, DocumentHID, DiscountTypeId, OverheadID, ShiftCode "
                                 "FROM Whs_QTYDocH WHERE Code = :c"));
    h.bind(QStringLiteral(":c"), r.code);
    ASSERT_TRUE(h.exec() && h.next());
    EXPECT_EQ(h.text(0), QStringLiteral("1"));
    EXPECT_EQ(h.integer(1), 2);
    EXPECT_TRUE(h.isNull(2));  // no customer
    EXPECT_EQ(h.text(3), QStringLiteral("1404/01/01"));
    EXPECT_EQ(h.integer(4), 7);
    EXPECT_DOUBLE_EQ(h.number(5), 100000);
    EXPECT_DOUBLE_EQ(h.number(6), 10000);
    EXPECT_EQ(h.text(7), QStringLiteral("09:30:00"));
    EXPECT_DOUBLE_EQ(h.number(8), 5000);
    EXPECT_DOUBLE_EQ(h.number(9), 95000);
    EXPECT_EQ(h.integer(10), 1);
    EXPECT_EQ(h.text(11), QStringLiteral("note's text"));
    EXPECT_EQ(h.integer(12), 1);
    EXPECT_EQ(h.value(13).toLongLong(), r.voucherId);
    EXPECT_EQ(h.integer(14), 1);
    EXPECT_EQ(h.integer(15), 1);
    EXPECT_TRUE(h.isNull(16));  // no active shift

    SqlQuery l(s, QStringLiteral("SELECT EAN_Code, Qty, Fee, Price, UserID, TaxValue FROM "
                                 "Whs_QTYDocD WHERE Code = :c"));
    l.bind(QStringLiteral(":c"), r.code);
    ASSERT_TRUE(l.exec() && l.next());
    EXPECT_EQ(l.text(0), QStringLiteral("2222"));
    EXPECT_DOUBLE_EQ(l.number(1), 1);
    EXPECT_DOUBLE_EQ(l.number(2), 100000);
    EXPECT_DOUBLE_EQ(l.number(3), 100000);
    EXPECT_EQ(l.integer(4), 7);
    EXPECT_FALSE(l.next());
    EXPECT_DOUBLE_EQ(stock(QStringLiteral("2222")), 49);

    EXPECT_EQ(s.scalarText(QStringLiteral("SELECT Note FROM tblDocumentH WHERE ID = :id"),
                           {{QStringLiteral(":id"), r.voucherId}}),
              SaleSaveTexts::saleVoucherNote() + QStringLiteral("1") +
                  SaleSaveTexts::voucherNoteDate() + QStringLiteral("1404/01/01"));
    EXPECT_EQ(posted(r.voucherId, 101), std::make_pair(95000.0, 0.0));
    EXPECT_EQ(posted(r.voucherId, 601), std::make_pair(0.0, 95000.0));
    EXPECT_EQ(count("tblDocumentD"), 2);
}

TEST_P(SaleSaverTest, AReturnIsWrittenAsTypeThreeWithTheReturnVoucher) {
    sale().setMode(SaleMode::Return);
    settlement.returnCauseId = 2;
    ASSERT_TRUE(sale().selectCustomer(501));
    const SaleSaveResult r = saver->save(sale(), settlement);
    ASSERT_TRUE(r.saved);
    EXPECT_EQ(count("Whs_QTYDocH", QStringLiteral("TransType = 3 AND CompanyID = 501 AND "
                                                  "ReturnCauseId = 2")),
              1);
    EXPECT_EQ(text(QStringLiteral("SELECT Note FROM tblDocumentH WHERE ID = :id"),
                   {{QStringLiteral(":id"), r.voucherId}}),
              SaleSaveTexts::returnVoucherNote() + QStringLiteral("1") +
                  SaleSaveTexts::voucherNoteDate() + QStringLiteral("1404/01/01"));
    EXPECT_EQ(posted(r.voucherId, 602), std::make_pair(100000.0, 0.0));
    EXPECT_EQ(posted(r.voucherId, 101), std::make_pair(0.0, 100000.0));
    EXPECT_DOUBLE_EQ(stock(QStringLiteral("2222")), 51);
}

TEST_P(SaleSaverTest, AShortPaymentIsSavedOwingOnlyWhenConfirmed) {
    ASSERT_TRUE(sale().selectCustomer(501));
    settlement.received = 60000;
    messages().queueAnswer(false);
    SaleSaveResult r = saver->save(sale(), settlement);
    EXPECT_FALSE(r.saved);
    EXPECT_EQ(r.refusedBy, SaleSaveCheck::Received);
    EXPECT_EQ(count("Whs_QTYDocH", QStringLiteral("TransType = 2")), 0);
    EXPECT_EQ(count("tblDocumentH"), 0);

    messages().queueAnswer(true);
    r = saver->save(sale(), settlement);
    ASSERT_TRUE(r.saved);
    EXPECT_EQ(count("Whs_QTYDocH", QStringLiteral("ReceivedPrice = 60000 AND DocSum = 100000 AND "
                                                  "CompanyID = 501")),
              1);
    // The rest is owed on the customer's own account.
    EXPECT_EQ(posted(r.voucherId, 101), std::make_pair(60000.0, 0.0));
    EXPECT_EQ(posted(r.voucherId, 1201), std::make_pair(40000.0, 0.0));
    EXPECT_EQ(posted(r.voucherId, 601), std::make_pair(0.0, 100000.0));
}

TEST_P(SaleSaverTest, AFailureHalfwayLeavesNothingAndTheSameSaleSavesAfterwards) {
    insert("tblGiftCard (CardID, Amount, CustomerID)", {777, 50000, 501});
    insert("Serial (SerialNo, Ean_Code, Code)", {"S-1", "2222", 1});
    ASSERT_TRUE(sale().selectCustomer(501));
    settlement.giftCardId = 777;
    settlement.giftCardAmount = 30000;
    const auto rows = [&] {
        return QList<qint64>{count("Whs_QTYDocH"),     count("Whs_QTYDocD"),
                             count("tblDocumentH"),    count("tblDocumentD"),
                             count("tblGiftCardItem"), count("Serial", "Code = 1")};
    };
    const QList<qint64> before = rows();
    // The lines (before the desks' lock), the numbered voucher and its lines (under it).
    const QStringList failing{QStringLiteral("Whs_QTYDocD"), QStringLiteral("tblDocumentH"),
                              QStringLiteral("tblDocumentD")};
    for (const QString& table : failing) {
        SCOPED_TRACE(table.toStdString());
        refuse(table, QStringLiteral("INSERT"));
        const SaleSaveResult failed = saver->save(sale(), settlement);
        allow(table);
        EXPECT_FALSE(failed.saved);
        EXPECT_EQ(rows(), before);
        EXPECT_EQ(sale().lines().size(), 1);  // the sale is still there
    }
    EXPECT_EQ(messages().countOf(Database::connectionFailureMessage()), failing.size());

    // No number was used by the failed saves.
    SaleSaveResult r = saver->save(sale(), settlement);
    ASSERT_TRUE(r.saved);
    EXPECT_EQ(r.docNo, QStringLiteral("1"));
    EXPECT_EQ(count("tblDocumentH", QStringLiteral("Code = 1 AND ID = :v"),
                    {{QStringLiteral(":v"), r.voucherId}}),
              1);
    EXPECT_EQ(count("Whs_QTYDocH"), before[0] + 1);
    EXPECT_EQ(count("Whs_QTYDocD", QStringLiteral("Code = :c"), {{QStringLiteral(":c"), r.code}}),
              1);
    EXPECT_EQ(count("Serial", QStringLiteral("Code = :c"), {{QStringLiteral(":c"), r.code}}), 1);
    EXPECT_EQ(count("tblGiftCardItem",
                    QStringLiteral("DocHCode = :c AND Amount = 30000 AND "
                                   "CustomerID = 501"),
                    {{QStringLiteral(":c"), r.code}}),
              1);
    EXPECT_GT(r.giftCardItemId, 0);
}

TEST_P(SaleSaverTest, ALoyaltyGiftCountsGiftsAndTheReceiptAndSmsFollowTheCommit) {
    setOption("Loyalty", "AmountRebate", QStringLiteral("20000"));
    ASSERT_TRUE(sale().selectCustomer(501));
    settlement.discount = 40000;
    settlement.discountTypeId = 5;
    settlement.loyaltyGift = true;
    int receipts = 0;
    saver->setReceiptHook([&](const SaleSaveResult& r, const SaleSession&, const SaleSettlement&) {
        EXPECT_TRUE(r.saved);
        ++receipts;
    });
    QTemporaryDir folder;
    const QString program = folder.filePath(QStringLiteral("KotrimoAcc.exe"));
    QFile file(program);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    LaunchRecorder launcher;
    CompanionHandOff companion(launcher, program);
    saver->setCompanion(&companion);
    setFlag("PortNo", "SendFactor", true);

    ASSERT_TRUE(saver->save(sale(), settlement).saved);
    EXPECT_EQ(receipts, 1);
    ASSERT_EQ(launcher.calls.size(), 1);
    EXPECT_EQ(launcher.calls[0].arguments,
              QStringList{SaleSaveTexts::smsCommand() + QStringLiteral("501,") +
                          SaleSaveTexts::smsNumber() + QStringLiteral("1") +
                          SaleSaveTexts::smsTotal() + QStringLiteral("60000")});
    // Without a receipt asked for, the hook is not called.
    settlement.printReceipt = false;
    settlement.loyaltyGift = false;
    settlement.discountTypeId = 1;
    ASSERT_TRUE(saver->save(sale(), settlement).saved);
    EXPECT_EQ(receipts, 1);
    EXPECT_EQ(number(QStringLiteral("SELECT DiscountTakenTotal FROM Types WHERE Counter = 501")),
              2);
    EXPECT_EQ(text(QStringLiteral("SELECT LastDiscountTakenDate FROM Types WHERE Counter = 501")),
              QStringLiteral("1404/01/01"));
}

TEST_P(SaleSaverTest, AClosedPreInvoiceAndTheActiveShiftAreStamped) {
    insert("tblShift (Code, Name, LastActiveShift)", {1, "Morning", 0});
    insert("tblShift (Code, Name, LastActiveShift)", {2, "Evening", 1});
    exec(QStringLiteral("INSERT INTO tblPreFactorH (Code, IsTrenchant) VALUES (12, 0)"));
    settlement.preInvoiceCode = 12;
    const SaleSaveResult r = saver->save(sale(), settlement);
    ASSERT_TRUE(r.saved);
    EXPECT_EQ(count("Whs_QTYDocH", QStringLiteral("ShiftCode = 2")), 1);
    EXPECT_EQ(count("tblPreFactorH", QStringLiteral("Code = 12 AND IsTrenchant = 1")), 1);
}

TEST_P(SaleSaverTest, TheCardMovementIsCopiedToTheCentralDatabaseAfterTheCommit) {
    addCentralDatabase(QStringLiteral("Center"));
    setOption("LinkedServer", "Database", QStringLiteral("Center"));
    setFlag("LinkedServer", "ActiveLinkedSystem", true);
    exec(QStringLiteral("INSERT INTO tblGiftCard (CardID, Amount) VALUES (777, 50000)"));
    settlement.giftCardId = 777;
    settlement.giftCardAmount = 20000;
    const SaleSaveResult r = saver->save(sale(), settlement);
    ASSERT_TRUE(r.saved);
    EXPECT_EQ(ShopFixture::count(
                  QStringLiteral("SELECT COUNT(*) FROM ") + table("GiftCardItem", "Center") +
                      QStringLiteral(" WHERE ID = :id AND DocHCode = :code AND "
                                     "Amount = 20000"),
                  {{QStringLiteral(":id"), r.giftCardItemId}, {QStringLiteral(":code"), r.code}}),
              1);
}

SANDOGH_INSTANTIATE_BACKENDS(SaleSaverTest);

}  // namespace
}  // namespace sandogh::test
