// The saved sales list found by a word of the customer's name and family and of Base on
// both backends: a word from the middle, typed with either letter form and any digits, on
// rows written before the search keys existed (the migration step folds them) and on rows
// the program writes after (it keeps their keys).

#include <gtest/gtest.h>

#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/repositories/PartiesRepository.h"
#include "data/repositories/SaleListQuery.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "support/BackendTest.h"

namespace sandogh {
namespace {

constexpr int kSearchStep = 13;

class SaleListSearchTest : public test::BackendTest {
protected:
    void SetUp() override {
        test::BackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        // A shop of the steps before the search keys, with a customer and two sales of the
        // time: Arabic yeh and kaf, Persian digits, a zero-width non-joiner.
        QList<MigrationStep> before;
        for (const MigrationStep& step : shopMigrations()) {
            if (step.version < kSearchStep) {
                before << step;
            }
        }
        ASSERT_TRUE(Migrator(db()).apply(before).ok);
        Session s = db().session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name, Value1) "
                                          "VALUES (501, 10, '501', :name, :family)"),
                           {{QStringLiteral(":name"), QStringLiteral("علي")},
                            {QStringLiteral(":family"), QStringLiteral("كريمي\u200Cزاده ۱۲")}}));
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, "
                                          "CompanyID, DocDate, Base) VALUES (1, '1', 2, 501, "
                                          "'1404/01/01', :b1), (2, '2', 2, NULL, '1404/01/01', "
                                          ":b2)"),
                           {{QStringLiteral(":b1"), QStringLiteral("سفارش ۷۷ كد")},
                            {QStringLiteral(":b2"), QStringLiteral("B-1234")}}));
        const Migrator::Result all = Migrator(db()).apply(shopMigrations());
        ASSERT_TRUE(all.ok) << all.message.toStdString();

        // Written by the program after: a customer by the parties' screen, her sale with a
        // Base, and a sale of the older customer.
        Party maryam;
        maryam.code = QStringLiteral("502");
        maryam.name = QStringLiteral("مریم");
        maryam.family = QStringLiteral("اکبری ۴۲");
        ASSERT_TRUE(PartiesRepository(db()).save(maryam).ok);
        maryamCounter = maryam.counter;
        ASSERT_GT(writeSale(QStringLiteral("3"), maryamCounter, QStringLiteral("فاکتور 55 يك")), 0);
        ASSERT_GT(writeSale(QStringLiteral("4"), 501, QStringLiteral("b-9")), 0);
    }

    qint64 writeSale(const QString& docNo, int customer, const QString& base) {
        Session s = db().session();
        Transaction tx(s);
        procedures::StockDocumentHeader h;
        h.docNo = docNo;
        h.transType = 2;
        h.docDate = QStringLiteral("1404/01/02");
        h.companyId = customer;
        h.base = base;
        const qint64 code = procedures::StockDocumentWriter::insertHeader(s, h);
        return tx.commit() ? code : 0;
    }

    QStringList numbers(const QString& customer, const QString& base) {
        SaleListQuery::Filter f;
        f.customer = customer;
        f.base = base;
        Session s = db().session();
        QStringList found;
        for (const SaleListQuery::Row& r : SaleListQuery::page(s, f, true, {}, 50)) {
            found << r.docNo;
        }
        return found;
    }

    int maryamCounter = 0;
};

TEST_P(SaleListSearchTest, CustomerAndBaseAreFoundByAWordAsTyped) {
    const struct {
        QString customer;
        QString base;
        QStringList numbers;
    } cases[] = {
        // A word in the middle, Persian letters typed: the older customer stored with the
        // Arabic ones, and the newer with the Persian.
        {QStringLiteral("ریم"), {}, {"4", "3", "1"}},
        {QStringLiteral("ريم"), {}, {"4", "3", "1"}},
        // Across name and family, and over the zero-width non-joiner.
        {QStringLiteral("علی کری"), {}, {"4", "1"}},
        {QStringLiteral("کریمیزاده"), {}, {"4", "1"}},
        // Digits in any of the three forms, short words too.
        {QStringLiteral("12"), {}, {"4", "1"}},
        {QStringLiteral("٤٢"), {}, {"3"}},
        {QStringLiteral("بر"), {}, {"3"}},
        {QStringLiteral("حسین"), {}, {}},
        // Base likewise, in either case.
        {{}, QStringLiteral("77"), {"1"}},
        {{}, QStringLiteral("كد"), {"1"}},
        {{}, QStringLiteral("23"), {"2"}},
        {{}, QStringLiteral("B-12"), {"2"}},
        {{}, QStringLiteral("ور ۵۵ یک"), {"3"}},
        {{}, QStringLiteral("B-"), {"4", "2"}},
        // Both together.
        {QStringLiteral("کریمی"), QStringLiteral("b"), {"4"}},
        {QStringLiteral("اکبری"), QStringLiteral("b"), {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE((c.customer + QLatin1Char('|') + c.base).toStdString());
        EXPECT_EQ(numbers(c.customer, c.base), c.numbers);
    }
    // A changed name is found by its new words only.
    std::optional<Party> maryam = PartiesRepository(db()).find(maryamCounter);
    ASSERT_TRUE(maryam);
    maryam->family = QStringLiteral("رضایی");
    ASSERT_TRUE(PartiesRepository(db()).save(*maryam).ok);
    EXPECT_EQ(numbers(QStringLiteral("اکبری"), {}), QStringList());
    EXPECT_EQ(numbers(QStringLiteral("رضاي"), {}), QStringList{QStringLiteral("3")});
}

SANDOGH_INSTANTIATE_BACKENDS(SaleListSearchTest);

}  // namespace
}  // namespace sandogh
