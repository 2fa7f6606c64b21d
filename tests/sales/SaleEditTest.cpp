// Editing a saved sale on both backends: lines removed and changed leave the stock and the
// voucher equal to the new lines, the checks refuse without writing, and the audit record
// keeps the document as it was.

#include <gtest/gtest.h>

#include <tuple>

#include "SavedSalesTest.h"
#include "sales/SaleAudit.h"
#include "sales/SaleEdit.h"
#include "sales/SaleEditVoucher.h"
#include "sales/SaleTexts.h"

namespace sandogh::test {
namespace {

class SaleEditTest : public SavedSalesTest {
protected:
    SaleEdit editor() { return SaleEdit(db(), settings(), messages(), clock(), {7, 1}); }
};

TEST_P(SaleEditTest, RemovingOneLineAndChangingAnotherLeavesStockAndVoucherOnTheNewLines) {
    const SaleSaveResult r = sell({{QStringLiteral("2222"), 2}, {QStringLiteral("3333"), 5}});
    ASSERT_EQ(stock(QStringLiteral("3333")), 45);
    std::optional<SaleEditDocument> doc = editor().load(r.code);
    ASSERT_TRUE(doc);
    ASSERT_EQ(doc->lines.size(), 2);
    EXPECT_EQ(doc->received, 200000 + 10000);

    doc->lines.removeFirst();  // the rice goes
    SaleEditLine& tea = doc->lines.first();
    tea.qty = 3;
    tea.mFee = 2000;
    tea.discount = 10;
    tea.recompute();  // 1,800 a unit, 5,400 the line
    doc->header.discount = 400;
    doc->received = doc->payable();
    ASSERT_EQ(editor().save(*doc), SaleEdit::Refusal::None);

    EXPECT_EQ(stock(QStringLiteral("2222")), 50);
    EXPECT_EQ(stock(QStringLiteral("3333")), 47);
    Session s = db().session();
    SqlQuery line(s, QStringLiteral("SELECT Qty, MFee, Discount, Fee, Price, UserID FROM "
                                    "Whs_QTYDocD WHERE Code = :c"));
    line.bind(QStringLiteral(":c"), r.code);
    ASSERT_TRUE(line.exec() && line.next());
    EXPECT_EQ(line.number(0), 3);
    EXPECT_EQ(line.number(1), 2000);
    EXPECT_EQ(line.number(2), 10);
    EXPECT_EQ(line.number(3), 1800);
    EXPECT_EQ(line.number(4), 5400);
    EXPECT_TRUE(line.isNull(5));
    EXPECT_FALSE(line.next());
    EXPECT_EQ(s.scalarNumber(QStringLiteral("SELECT DocSum - Discount FROM Whs_QTYDocH WHERE "
                                            "Code = :c"),
                             {{QStringLiteral(":c"), r.code}}),
              5000);
    EXPECT_EQ(posted(r.voucherId, 101), std::make_pair(5000.0, 0.0));
    EXPECT_EQ(posted(r.voucherId, 601), std::make_pair(0.0, 5000.0));
    EXPECT_EQ(s.scalarText(QStringLiteral("SELECT Note FROM tblDocumentH WHERE ID = :v"),
                           {{QStringLiteral(":v"), r.voucherId}}),
              SaleSaveTexts::saleVoucherNote() + r.docNo + QStringLiteral(" مورخ : 1404/01/01"));

    const auto records = SaleAudit::list(db(), {}, {}, 0);
    ASSERT_EQ(records.size(), 1);
    EXPECT_EQ(records.first().action, SaleAuditRepository::Edit);
    EXPECT_TRUE(records.first().document.contains(QStringLiteral("\"EAN_Code\":\"2222\"")));
}

TEST_P(SaleEditTest, TheChecksRefuseWithTheirMessagesAndWriteNothing) {
    const SaleSaveResult r = sell({{QStringLiteral("2222"), 2}});
    setFlag("IsExistQty", "Enable", true);
    const SaleEditDocument saved = *editor().load(r.code);

    SaleEditDocument doc = saved;
    doc.header.discount = 300000;
    doc.received = 0;
    EXPECT_EQ(editor().save(doc), SaleEdit::Refusal::NegativeTotal);
    EXPECT_EQ(messages().countOf(SaleSaveTexts::negativeTotal()), 1);

    doc = saved;
    doc.lines.first().qty = 1;
    doc.lines.first().recompute();
    EXPECT_EQ(editor().save(doc), SaleEdit::Refusal::ReceivedMore);
    EXPECT_EQ(messages().countOf(SaleSaveTexts::receivedMore()), 1);

    // 48 are left: 2 more are taken from them, 49 more are not there.
    doc = saved;
    doc.lines.first().qty = 51;
    doc.lines.first().recompute();
    doc.received = doc.payable();
    EXPECT_EQ(editor().save(doc), SaleEdit::Refusal::Stock);
    EXPECT_EQ(messages().countOf(SaleTexts::quantityNotAllowed()), 1);
    EXPECT_EQ(stock(QStringLiteral("2222")), 48);
    EXPECT_EQ(count(QStringLiteral("tblSaleAudit")), 0);

    doc.lines.first().qty = 50;
    doc.lines.first().recompute();
    doc.received = doc.payable();
    EXPECT_EQ(editor().save(doc), SaleEdit::Refusal::None);
    EXPECT_EQ(stock(QStringLiteral("2222")), 0);
}

// A sale paid part in cash, part by card terminal and the rest owed: an edit of its lines
// moves only the owing and income rows; a changed received amount cannot follow the split.
TEST_P(SaleEditTest, TheSplitPaymentStaysAndItsReceivedAmountCannotChange) {
    insert("tblAccountingGroup (Code, ParentCode, Name)", {1101, 11, "Bank"});
    SaleSettlement st;
    st.received = 150000;
    st.payments = {{SalePayment::Cash, account(101), {}, 50000},
                   {SalePayment::BankTerminal, account(1101), QStringLiteral("7"), 100000}};
    messages().queueAnswer(true);  // received less than payable: owed
    const SaleSaveResult r = sell({{QStringLiteral("2222"), 2}}, st, kCustomer);
    std::optional<SaleEditDocument> doc = editor().load(r.code);
    ASSERT_TRUE(doc);
    SaleEditLine tea;
    tea.barcode = QStringLiteral("3333");
    tea.qty = 1;
    tea.mFee = 2000;
    tea.recompute();
    doc->lines << tea;
    ASSERT_EQ(editor().save(*doc), SaleEdit::Refusal::None);

    using Row = std::tuple<int, double, double>;
    const auto rows = [&] {
        QList<Row> all;
        Session s = db().session();
        SqlQuery q(s, QStringLiteral("SELECT AccountingGroupID, Debt, Credit FROM tblDocumentD "
                                     "WHERE DocumentHID = :v ORDER BY ID"));
        q.bind(QStringLiteral(":v"), r.voucherId);
        EXPECT_TRUE(q.exec());
        while (q.next()) {
            all << Row{q.integer(0), q.number(1), q.number(2)};
        }
        return all;
    };
    const QList<Row> kept{{account(101), 50000, 0},
                          {account(1101), 100000, 0},
                          {account(1201), 52000, 0},
                          {account(601), 0, 202000}};
    EXPECT_EQ(rows(), kept);

    doc = editor().load(r.code);
    doc->received = 160000;
    messages().clear();
    EXPECT_EQ(editor().save(*doc), SaleEdit::Refusal::PaymentSplit);
    EXPECT_EQ(messages().countOf(SaleEditVoucher::splitReceivedText()), 1);
    EXPECT_EQ(rows(), kept);
    EXPECT_EQ(count(QStringLiteral("tblSaleAudit")), 1);
}

SANDOGH_INSTANTIATE_BACKENDS(SaleEditTest);

}  // namespace
}  // namespace sandogh::test
