// The purchase session: line arithmetic and totals, the barcode box, the last purchase
// terms, the checks in their order, and starting from a pre-invoice or a document.

#include <gtest/gtest.h>

#include "PurchaseShopTest.h"
#include "purchase/PurchaseTexts.h"

namespace sandogh::test {
namespace {

TEST(PurchaseLineTest, FeeIsTheLandedCostAndTheTaxTotalTheTaxOfTheNetPrices) {
    struct Case {
        double qty, mFee, discount, tax;
        double fee, price, taxAmount;
    };
    const Case cases[] = {
        {1, 0, 0, 0, 0, 0, 0},
        {3, 1000, 0, 0, 1000, 3000, 0},
        {2, 1000, 10, 0, 900, 1800, 0},
        {2, 1000, 0, 9, 1090, 2180, 180},
        {4, 10000, 10, 9, 9810, 39240, 3240},
        {0.5, 333, 100, 9, 0, 0, 0},
    };
    for (const Case& c : cases) {
        PurchaseLine l;
        l.qty = c.qty;
        l.mFee = c.mFee;
        l.discount = c.discount;
        l.taxValue = c.tax;
        l.recompute();
        EXPECT_DOUBLE_EQ(l.fee, c.fee) << c.mFee << ' ' << c.discount << ' ' << c.tax;
        EXPECT_DOUBLE_EQ(l.price, c.price) << c.mFee;
        EXPECT_DOUBLE_EQ(l.taxAmount(), c.taxAmount) << c.mFee;
    }
    PurchaseLine a;
    a.qty = 4, a.mFee = 10000, a.discount = 10, a.taxValue = 9;
    a.recompute();
    PurchaseLine b;
    b.qty = 1.5, b.mFee = 1234.5;
    b.recompute();
    const PurchaseTotals t = PurchaseTotals::of({a, b});
    EXPECT_EQ(t.lineCount, 2);
    EXPECT_EQ(PurchaseTotals::format(t.sum), QStringLiteral("41,091.75"));
    EXPECT_EQ(PurchaseTotals::format(t.tax), QStringLiteral("3,240"));
    EXPECT_EQ(PurchaseTotals::format(1.23456), QStringLiteral("1.235"));
    EXPECT_EQ(PurchaseTotals::of({}).lineCount, 0);
}

TEST(PurchaseLinesModelTest, EditableCellsTakeNumbersAndRefuseTheRest) {
    PurchaseLinesModel model;
    model.append(PurchaseLine{QStringLiteral("1"), {}, {}, 1, 1000});
    const QModelIndex qty = model.index(0, PurchaseLinesModel::ColQty);
    EXPECT_TRUE(model.setData(qty, QStringLiteral("1,200")));
    EXPECT_DOUBLE_EQ(model.line(0).price, 1200000);
    EXPECT_FALSE(model.setData(qty, QStringLiteral("12x")));
    EXPECT_FALSE(model.setData(qty, -1));
    EXPECT_FALSE(model.setData(model.index(0, PurchaseLinesModel::ColFee), 5));
    EXPECT_DOUBLE_EQ(model.line(0).qty, 1200);
    EXPECT_EQ(model.data(model.index(0, PurchaseLinesModel::ColPrice)).toString(),
              QStringLiteral("1,200,000"));
}

class PurchaseSessionTest : public PurchaseShopTest {};

TEST_P(PurchaseSessionTest, BarcodeBoxAddsKnownArticlesWithTheirLastPurchaseTerms) {
    EXPECT_FALSE(purchase().addBarcode(QStringLiteral("9999")));
    EXPECT_EQ(messages().countOf(PurchaseTexts::goodsNotFound()), 1);
    EXPECT_EQ(purchase().lines().lineCount(), 0);

    ASSERT_TRUE(purchase().addBarcode(QStringLiteral(" 11'11 ")));
    const PurchaseLine never = purchase().lines().line(0);
    EXPECT_EQ(never.barcode, QStringLiteral("1111"));
    EXPECT_EQ(never.name, QStringLiteral("Rice"));
    EXPECT_EQ(never.unitName, QStringLiteral("Box"));
    EXPECT_DOUBLE_EQ(never.cost, 150000);
    EXPECT_DOUBLE_EQ(never.qty, 1);
    EXPECT_DOUBLE_EQ(never.mFee, 0);
    EXPECT_DOUBLE_EQ(never.discount, 0);
    EXPECT_DOUBLE_EQ(never.taxValue, 0);

    fill(false, {{"1111", 2, 1000, 5, 9}});
    ASSERT_TRUE(save().saved);
    fill(false, {{"1111", 2, 1200, 10, 8}});
    ASSERT_TRUE(save().saved);
    // A return is not a purchase: its terms are not proposed.
    fill(true, {{"1111", 1, 7, 7, 7}});
    ASSERT_TRUE(save().saved);

    purchase().newDocument(false);
    ASSERT_TRUE(purchase().addBarcode(QStringLiteral("1111")));
    const PurchaseLine last = purchase().lines().line(0);
    EXPECT_DOUBLE_EQ(last.mFee, 1200);
    EXPECT_DOUBLE_EQ(last.discount, 10);
    EXPECT_DOUBLE_EQ(last.taxValue, 8);
    EXPECT_DOUBLE_EQ(last.stock, 3);
    EXPECT_DOUBLE_EQ(last.fee, 1166.4);
}

TEST_P(PurchaseSessionTest, ChecksRefuseInTheirOrderWithTheirMessages) {
    struct Case {
        int supplier;
        bool group;
        const char* docNo;
        bool lines;
        PurchaseCheck refused;
        QString message;
    };
    const QList<Case> cases = {
        {0, false, "", false, PurchaseCheck::Supplier, PurchaseTexts::noSupplier()},
        {kSupplier, false, "", false, PurchaseCheck::AccountingGroup,
         PurchaseTexts::noAccountingGroup()},
        {kSupplier, true, " ", false, PurchaseCheck::DocNo, PurchaseTexts::noDocNo()},
        {kSupplier, true, "5", false, PurchaseCheck::Lines, PurchaseTexts::noLines()},
        {kSupplier, true, "5a", true, PurchaseCheck::DocNo, PurchaseTexts::docNoNotANumber()},
        {kSupplier, true, "5", true, PurchaseCheck::None, {}},
    };
    for (const Case& c : cases) {
        purchase().newDocument(false);
        messages().clear();
        purchase().header().supplier = c.supplier;
        purchase().header().accountingGroupId = c.group ? account(301) : 0;
        purchase().header().docNo = QString::fromLatin1(c.docNo);
        if (c.lines) {
            ASSERT_TRUE(purchase().addBarcode(QStringLiteral("2222")));
        }
        EXPECT_EQ(purchase().check(), c.refused) << c.message.toStdString();
        EXPECT_EQ(messages().count(), c.message.isEmpty() ? 0 : 1);
        if (!c.message.isEmpty()) {
            EXPECT_EQ(messages().countOf(c.message), 1);
        }
    }
}

TEST_P(PurchaseSessionTest, StartsFromAPreInvoiceOrAnEarlierDocument) {
    exec(
        QStringLiteral("INSERT INTO tblPreFactorH (Code, DocSum, Discount, Note, CompanyID) "
                       "VALUES (40, 0, 300, 'pre', 601)"));
    exec(
        QStringLiteral("INSERT INTO tblPreFactorD (PreFactorHID, EAN_Code, Qty, Price) SELECT "
                       "ID, '2222', 6, 450 FROM tblPreFactorH WHERE Code = 40"));
    EXPECT_FALSE(purchase().loadPreInvoice(41));
    ASSERT_TRUE(purchase().loadPreInvoice(40));
    ASSERT_EQ(purchase().lines().lineCount(), 1);
    const PurchaseLine pre = purchase().lines().line(0);
    EXPECT_EQ(pre.barcode, QStringLiteral("2222"));
    EXPECT_EQ(pre.name, QStringLiteral("Tea"));
    EXPECT_DOUBLE_EQ(pre.qty, 6);
    EXPECT_DOUBLE_EQ(pre.mFee, 450);
    EXPECT_DOUBLE_EQ(pre.price, 2700);
    EXPECT_EQ(purchase().header().supplier, kSupplier);
    EXPECT_DOUBLE_EQ(purchase().header().discount, 300);

    fill(false, {{"1111", 2, 1000, 5, 9}, {"2222", 3, 10, 0, 0}});
    ASSERT_TRUE(save().saved);
    purchase().newDocument(true);
    EXPECT_FALSE(purchase().loadDocument(1, QStringLiteral("2")));
    ASSERT_TRUE(purchase().loadDocument(1, QStringLiteral("1")));
    ASSERT_EQ(purchase().lines().lineCount(), 2);
    EXPECT_EQ(purchase().lines().line(0).barcode, QStringLiteral("1111"));
    EXPECT_DOUBLE_EQ(purchase().lines().line(0).discount, 5);
    EXPECT_DOUBLE_EQ(purchase().lines().line(0).taxValue, 9);
    EXPECT_EQ(purchase().lines().line(1).barcode, QStringLiteral("2222"));
    EXPECT_TRUE(purchase().isReturn());
}

SANDOGH_INSTANTIATE_BACKENDS(PurchaseSessionTest);

}  // namespace
}  // namespace sandogh::test
