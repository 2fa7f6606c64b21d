// The row procedures: vouchers and their postings, gift card rows and movements, serial
// numbers, and reading single rows back (the card terminal record: the devices suite).

#include "ShopFixture.h"
#include "data/procedures/PaymentProcedures.h"
#include "data/procedures/StockDocumentProcedures.h"
#include "data/procedures/TypesProcedures.h"
#include "data/procedures/VoucherProcedures.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

using namespace procedures;

class ProceduresTest : public test::ShopFixture {};

TEST_P(ProceduresTest, VouchersAreNumberedFromOneReadBackAndDeletedWithTheirPostings) {
    Session s = session();
    EXPECT_EQ(sp_tblDocumentH_GetNewCode(s), 1);
    // Code 0: the number is taken inside the insert, the very first one too.
    VoucherHeader allocated;
    allocated.date = QStringLiteral("1404/01/06");
    const qint64 id = sp_tblDocumentH_Insert(s, allocated);
    ASSERT_GT(id, 0);
    EXPECT_EQ(allocated.code, 1);
    EXPECT_EQ(allocated.id, id);
    VoucherHeader given;
    given.code = sp_tblDocumentH_GetNewCode(s);
    given.date = QStringLiteral("1404/01/05");
    given.time = QStringLiteral("12:30");
    given.userId = 3;
    given.note = QStringLiteral("فاکتور خريد شماره 12 مورخ : 1404/01/05");
    given.permanent = true;  // beside transfer, so that one read for the other shows
    given.serial = QStringLiteral("12");
    ASSERT_GT(sp_tblDocumentH_Insert(s, given), 0);
    EXPECT_EQ(sp_tblDocumentH_GetNewCode(s), 3);
    EXPECT_NE(allocated.id, given.id);

    const std::optional<VoucherHeader> read = sp_tblDocumentH_SelectRow(s, given.id);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->code, 2);
    EXPECT_EQ(read->date, given.date);
    EXPECT_EQ(read->time, given.time);
    EXPECT_EQ(read->userId, 3);
    EXPECT_FALSE(read->transfer);
    EXPECT_TRUE(read->permanent);
    EXPECT_EQ(read->serial, given.serial);
    EXPECT_EQ(read->note, given.note);
    EXPECT_FALSE(sp_tblDocumentH_SelectRow(s, 999).has_value());

    // Postings are written under their voucher, and deleted with it.
    const VoucherLine lines[] = {{0, given.id, 11, 250000.5, 0, QStringLiteral("صندوق")},
                                 {0, given.id, 12, 0, 1250, QStringLiteral("درآمد")}};
    for (const VoucherLine& line : lines) {
        EXPECT_GT(sp_tblDocumentD_Insert(s, line), 0);
    }
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM tblDocumentD WHERE DocumentHID = :h"),
                    {{QStringLiteral(":h"), given.id}}),
              2);
    EXPECT_DOUBLE_EQ(
        s.scalarNumber(QStringLiteral(
            "SELECT Debt + Credit * 10 FROM tblDocumentD WHERE AccountingGroupID = 11")),
        250000.5);
    EXPECT_DOUBLE_EQ(
        s.scalarNumber(QStringLiteral(
            "SELECT Debt + Credit * 10 FROM tblDocumentD WHERE AccountingGroupID = 12")),
        12500);
    ASSERT_TRUE(sp_tblDocumentD_DeleteRow(s, given.id));
    ASSERT_TRUE(sp_tblDocumentH_DeleteRow(s, given.id));
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM tblDocumentD")), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM tblDocumentH")), 1);
}

TEST_P(ProceduresTest, TheNewestChargeRowOfACardIsSelected) {
    Session s = session();
    EXPECT_FALSE(sp_tblGiftCard_SelectRow(s, 77).has_value());
    for (const char* password : {"old", "new"}) {
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO tblGiftCard (CardID, CustomerID, Amount, "
                                          "Password, ExpireDate) VALUES (77, 5, 100000, :p, :e)"),
                           {{QStringLiteral(":p"), QString::fromLatin1(password)},
                            {QStringLiteral(":e"), QString()}}));
    }
    const std::optional<GiftCardRow> card = sp_tblGiftCard_SelectRow(s, 77);
    ASSERT_TRUE(card.has_value());
    EXPECT_EQ(card->password, QStringLiteral("new"));
    EXPECT_EQ(card->customerId, 5);
    EXPECT_EQ(card->expireDate, QStringLiteral("____/__/__"));
    EXPECT_EQ(card->dateCreation, QStringLiteral("____/__/__"));

    GiftCardMovement m{0, card->id, QStringLiteral("1404/01/05"), QStringLiteral("12:30"), 40000, 1,
                       5, 9};
    const qint64 item = sp_tblGiftCardItem_Insert(s, m);
    ASSERT_GT(item, 0);
    EXPECT_DOUBLE_EQ(s.scalarNumber(QStringLiteral("SELECT Amount FROM tblGiftCardItem WHERE "
                                                   "DocHCode = 9")),
                     40000);
}

TEST_P(ProceduresTest, SerialNumbersAreAllocatedAsTheLargestPlusOne) {
    Session s = session();
    SerialRow typed;
    typed.serialNo = QStringLiteral("1000");
    typed.eanCode = QStringLiteral("626");
    ASSERT_GT(sp_Serial_Insert(s, typed), 0);
    SerialRow next;
    next.eanCode = QStringLiteral("626");
    ASSERT_GT(sp_Serial_Insert(s, next), 0);
    EXPECT_EQ(next.serialNo, QStringLiteral("1001"));
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT Code FROM Serial WHERE Id = :id"),
                            {{QStringLiteral(":id"), next.id}}),
              1);  // held under the open sale until it is saved
    SerialRow twin;
    twin.serialNo = QStringLiteral("1001");
    EXPECT_EQ(sp_Serial_Insert(s, twin), 0);
    EXPECT_TRUE(s.lastError().isKeyConflict());
    ASSERT_TRUE(sp_Serial_DeleteRow(s, next.id));
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Serial")), 1);
}

TEST_P(ProceduresTest, AHeaderNamingNoStationIsRefusedWhole) {
    StockDocumentHeader h;
    h.docNo = QStringLiteral("1");
    h.stationId = 42;  // no such row in Stations
    Session s = session();
    Transaction tx(s);
    EXPECT_EQ(StockDocumentWriter::insertHeader(s, h), 0);
    EXPECT_EQ(s.lastError().kind, DbErrorKind::ForeignKey);
    tx.rollback();
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 0);
}

SANDOGH_INSTANTIATE_BACKENDS(ProceduresTest);

}  // namespace
}  // namespace sandogh
