// Internal sales on both backends: the price modes, the checks, a second return of one
// invoice, a failure inside the save, and a sale and its return in the desk's day.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "sales/InternalSaleSaver.h"
#include "sales/InternalSaleSession.h"
#include "sales/InternalSaleTexts.h"

namespace sandogh::test {
namespace {

const QString kTea = QStringLiteral("5555");

class InternalSaleTest : public SaleShopTest {
protected:
    void SetUpShop() override {
        addGoods({kTea, 5000, 0, QStringLiteral("Tea")});
        Session s = db().session();
        branch = CenterBranchesRepository::add(s, QStringLiteral("Branch 1"),
                                               CenterBranchesRepository::kBranch);
        ASSERT_GT(branch, 0);
    }
    std::unique_ptr<InternalSaleSession> newSession() {
        auto session = std::make_unique<InternalSaleSession>(db(), settings(), messages(), clock());
        session->selectBranch(branch);
        return session;
    }
    // An internal document with one line of the tea.
    void addInternal(qint64 code, int transType, const QString& date, double qty, double fee) {
        insert("Whs_QTYDocHInternal (Code, DocNo, TransType, CompanyID, DocDate)",
               {code, QString::number(code), transType, branch, date});
        insert("Whs_QTYDocDInternal (Code, EAN_Code, Qty, Fee, Price)",
               {code, kTea, qty, fee, qty * fee});
    }
    double stock() { return ShopFixture::stock(kTea); }
    InternalSaleResult sell(double qty, SaleMode mode = SaleMode::Sale,
                            const QString& returned = {}) {
        auto session = newSession();
        session->entry().setMode(mode);
        session->setReturnedInvoice(returned);
        EXPECT_TRUE(session->entry().addGoods(kTea, qty));
        return InternalSaleSaver(db(), messages(), clock()).save(*session);
    }

    int branch = 0;
};

struct PriceCase {
    const char* name;
    const char* mode;       // SaleInter/PriceMode
    const char* dateLimit;  // SaleInter/PriceDateLimit
    double olderFee;        // internal line of 1404/01/05 (none when negative)
    double newerFee;        // internal line of 1404/01/20 (none when negative)
    double purchaseFee;     // purchase line (none when negative)
    double expected;
};

const PriceCase kPriceCases[] = {
    {"NeverSoldInternallyTakesCost", "1", "", -1, -1, 3900, 5000},
    {"NewestInternalFee", "1", "", 4100, 4300, 3900, 4300},
    {"NewestInternalFeeOfZeroTakesCost", "1", "", 4100, 0, -1, 5000},
    {"DateLimitTakesTheLineUpToIt", "1", "1404/01/10", 4100, 4300, -1, 4100},
    {"DateLimitBeforeEveryLineTakesCost", "1", "1404/01/01", 4100, 4300, -1, 5000},
    {"MasterPriceIgnoresHistory", "2", "", 4100, 4300, 3900, 5000},
    {"LastPurchaseFee", "3", "", 4100, -1, 3900, 3900},
    {"NeverBoughtIsZero", "3", "", 4100, -1, -1, 0},
};

}  // namespace

// The backend is the suite's parameter, so the cases run as a table inside one test.
TEST_P(InternalSaleTest, LinePriceFollowsTheChosenMode) {
    qint64 code = 100;
    for (const PriceCase& c : kPriceCases) {
        SCOPED_TRACE(c.name);
        exec(QStringLiteral("DELETE FROM Whs_QTYDocDInternal"));
        exec(QStringLiteral("DELETE FROM Whs_QTYDocHInternal"));
        exec(QStringLiteral("DELETE FROM Whs_QTYDocD"));
        exec(QStringLiteral("DELETE FROM Whs_QTYDocH"));
        setOption("SaleInter", "PriceMode", QString::fromLatin1(c.mode));
        setOption("SaleInter", "PriceDateLimit", QString::fromLatin1(c.dateLimit));
        if (c.olderFee >= 0) {
            addInternal(++code, 2, QStringLiteral("1404/01/05"), 1, c.olderFee);
        }
        if (c.newerFee >= 0) {
            addInternal(++code, 2, QStringLiteral("1404/01/20"), 1, c.newerFee);
        }
        if (c.purchaseFee >= 0) {
            addDocument(++code, 1, QStringLiteral("1"), kTea, 10, c.purchaseFee);
        }
        auto session = newSession();
        ASSERT_TRUE(session->entry().addGoods(kTea, 2));
        EXPECT_DOUBLE_EQ(session->entry().lines().first().unitPrice, c.expected);
        EXPECT_DOUBLE_EQ(session->entry().total(), 2 * c.expected);
    }
}

TEST_P(InternalSaleTest, ChecksRefuseWithTheirTextsInOrder) {
    InternalSaleSaver saver(db(), messages(), clock());
    auto session = std::make_unique<InternalSaleSession>(db(), settings(), messages(), clock());
    EXPECT_EQ(saver.save(*session).refusedBy, InternalSaleCheck::Branch);
    ASSERT_TRUE(session->selectBranch(branch));
    EXPECT_EQ(saver.save(*session).refusedBy, InternalSaleCheck::Goods);
    ASSERT_TRUE(session->entry().addGoods(kTea, 1));
    session->setDocNo(QString(), true);
    EXPECT_EQ(saver.save(*session).refusedBy, InternalSaleCheck::DocNo);
    session->setDocNo(QString(), false);
    session->entry().setMode(SaleMode::Return);
    EXPECT_EQ(saver.save(*session).refusedBy, InternalSaleCheck::ReturnedInvoice);
    session->entry().setMode(SaleMode::Sale);
    addInternal(1, 2, QStringLiteral("1404/01/01"), 1, 100);
    session->setDocNo(QStringLiteral("1"), true);
    EXPECT_EQ(saver.save(*session).refusedBy, InternalSaleCheck::DocNoTaken);

    const QStringList expected{InternalSaleTexts::noBranch(), InternalSaleTexts::noGoods(),
                               InternalSaleTexts::noDocNo(), InternalSaleTexts::noReturnedInvoice(),
                               InternalSaleTexts::docNoTaken()};
    QStringList shown;
    for (const auto& m : messages().messages()) {
        shown << m.text;
        EXPECT_EQ(m.title, warningTitle());
    }
    EXPECT_EQ(shown, expected);
    EXPECT_TRUE(shown.first().startsWith(u'!'));
    // A proposed number is taken again at the save: the refused sale saves as number 2.
    session->setDocNo(QStringLiteral("1"), false);
    const InternalSaleResult r = saver.save(*session);
    EXPECT_TRUE(r.saved);
    EXPECT_EQ(r.docNo, QStringLiteral("2"));
}

TEST_P(InternalSaleTest, SecondReturnOfAnInvoiceReplacesTheFirstOnlyWhenConfirmed) {
    ASSERT_TRUE(sell(5).saved);
    const InternalSaleResult first = sell(2, SaleMode::Return, QStringLiteral("1"));
    ASSERT_TRUE(first.saved);
    messages().clear();

    messages().queueAnswer(false);
    EXPECT_EQ(sell(1, SaleMode::Return, QStringLiteral("01")).refusedBy,
              InternalSaleCheck::EarlierReturn);
    ASSERT_EQ(messages().count(), 1);
    EXPECT_EQ(messages().messages().first().title, InternalSaleTexts::noticeTitle());
    EXPECT_EQ(messages().messages().first().text, InternalSaleTexts::earlierReturn() + first.docNo);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocHInternal WHERE TransType = 3")),
              1);
    EXPECT_DOUBLE_EQ(stock(), -5 + 2);

    messages().queueAnswer(true);
    const InternalSaleResult second = sell(1, SaleMode::Return, QStringLiteral("1"));
    ASSERT_TRUE(second.saved);
    EXPECT_EQ(second.replacedDocNo, first.docNo);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocHInternal WHERE TransType = 3")),
              1);
    // The first return's line (quantity 2) is gone with its header.
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocDInternal WHERE Qty = 2")), 0);
    // Stock follows: the first return's quantity taken back, the second's added.
    EXPECT_DOUBLE_EQ(stock(), -5 + 1);
}

TEST_P(InternalSaleTest, FailureInsideTheSaveLeavesNothingAndTheSaleOnScreen) {
    ASSERT_TRUE(sell(1).saved);
    const double before = stock();
    refuse(QStringLiteral("Whs_QTYDocDInternal"), QStringLiteral("INSERT"));
    auto session = newSession();
    ASSERT_TRUE(session->entry().addGoods(kTea, 3));
    InternalSaleSaver saver(db(), messages(), clock());
    EXPECT_FALSE(saver.save(*session).saved);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocHInternal")), 1);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocDInternal")), 1);
    EXPECT_DOUBLE_EQ(stock(), before);
    EXPECT_EQ(session->entry().lines().size(), 1);

    allow(QStringLiteral("Whs_QTYDocDInternal"));
    const InternalSaleResult again = saver.save(*session);
    ASSERT_TRUE(again.saved);
    EXPECT_EQ(again.docNo, QStringLiteral("2"));
    EXPECT_DOUBLE_EQ(stock(), before - 3);
}

TEST_P(InternalSaleTest, ASaleAndItsReturnCountInTheDesksDayWithItsOrdinarySales) {
    const InternalSaleResult sale = sell(4);
    ASSERT_TRUE(sale.saved);
    EXPECT_DOUBLE_EQ(sale.docSum, 4 * 5000);
    ASSERT_TRUE(sell(1.5, SaleMode::Return, sale.docNo).saved);
    EXPECT_DOUBLE_EQ(stock(), -4 + 1.5);

    InternalSaleSaver saver(db(), messages(), clock());
    EXPECT_EQ(saver.previousInvoice(1).docNo, QStringLiteral("1"));
    addDocument(3, 2, QStringLiteral("2"), kTea, 1, 700, QStringLiteral("1404/01/01"), 1, 700, 700);
    const DailyTotals::Figures day = saver.dailyTotals(1, QStringLiteral("1404/01/01"));
    ASSERT_TRUE(day.ok);
    EXPECT_DOUBLE_EQ(day.salesSum, 4 * 5000 + 700);
    EXPECT_DOUBLE_EQ(day.returnsSum, 1.5 * 5000);
}

TEST_P(InternalSaleTest, ACorrectedDocumentIsWrittenAgainUnderItsKeyWithStockFollowing) {
    ASSERT_TRUE(sell(5).saved);
    const InternalSaleResult ret = sell(2, SaleMode::Return, QStringLiteral("1"));
    ASSERT_TRUE(ret.saved);
    EXPECT_DOUBLE_EQ(stock(), -3);
    messages().clear();

    auto session = std::make_unique<InternalSaleSession>(db(), settings(), messages(), clock());
    ASSERT_TRUE(session->loadDocument(ret.code));
    EXPECT_EQ(session->branchId(), branch);
    EXPECT_EQ(session->entry().mode(), SaleMode::Return);
    EXPECT_EQ(session->returnedInvoice(), QStringLiteral("1"));
    ASSERT_EQ(session->entry().lines().size(), 1);
    EXPECT_EQ(session->entry().lines().first().name, QStringLiteral("Tea"));
    ASSERT_TRUE(session->entry().changeQuantity(0, 4));

    // Its own number and its own return of invoice 1 are not taken as another's.
    const InternalSaleResult saved = InternalSaleSaver(db(), messages(), clock()).save(*session);
    ASSERT_TRUE(saved.saved);
    EXPECT_EQ(messages().count(), 0);
    EXPECT_EQ(saved.code, ret.code);
    EXPECT_EQ(saved.docNo, ret.docNo);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocHInternal")), 2);
    EXPECT_DOUBLE_EQ(stock(), -5 + 4);
    EXPECT_FALSE(session->loadDocument(999));
}

TEST_P(InternalSaleTest, BranchListShowsTheKindOfTheSettingWithTheCentreMadeOnFirstNeed) {
    auto branches = newSession()->branches();
    ASSERT_TRUE(branches);
    ASSERT_EQ(branches->size(), 1);
    EXPECT_EQ(branches->first().id, branch);
    // The centre's row is made once (CenterBranchesRepositoryTest).
    setOption("SaleInter", "BranchKind", QStringLiteral("1"));
    branches = newSession()->branches();
    ASSERT_TRUE(branches);
    ASSERT_EQ(branches->size(), 1);
    EXPECT_NE(branches->first().id, branch);
}

SANDOGH_INSTANTIATE_BACKENDS(InternalSaleTest);

}  // namespace sandogh::test
