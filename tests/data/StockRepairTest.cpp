// sp_StockRepair and the warehouse quantity: incoming and outgoing lines per barcode,
// internal documents, papers with a DocType, scoped and full repairs.

#include <QStringList>

#include "ShopFixture.h"
#include "data/procedures/StockProcedures.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

using namespace procedures;

class StockRepairTest : public test::ShopFixture {
protected:
    struct Quantities {
        double import = -1;
        double exported = -1;
        double stock = -1;
        int branch = -1;
        bool found = false;
    };

    Quantities stockOf(const QString& barcode) {
        Session s = session();
        SqlQuery q(s, QStringLiteral(
                          "SELECT Import, Export, Stock, Branch FROM Stock WHERE Barcode = :b"));
        q.bind(QStringLiteral(":b"), barcode);
        EXPECT_TRUE(q.exec());
        Quantities r;
        if (q.next()) {
            r = {q.number(0), q.number(1), q.number(2), q.integer(3), true};
        }
        return r;
    }

    bool repair(const QStringList& barcodes = {}) {
        Session s = session();
        return procedures::sp_StockRepair(s, barcodes);
    }
};

TEST_P(StockRepairTest, EachTransactionTypeMovesStockItsWay) {
    struct Case {
        int transType;
        double qty;
        double import;
        double exported;
    };
    const Case cases[] = {
        {kPurchase, 10, 10, 0},
        {kSale, 3, 0, 3},
        {kSaleReturn, 1.5, 1.5, 0},
        {kPurchaseReturn, 2, 0, 2},
    };
    int n = 0;
    for (const Case& c : cases) {
        const QString barcode = QStringLiteral("100%1").arg(++n);
        addGoods(barcode);
        addDocument(c.transType, QString::number(n), {{barcode, c.qty}});
        ASSERT_TRUE(repair());
        const Quantities q = stockOf(barcode);
        ASSERT_TRUE(q.found) << c.transType;
        EXPECT_DOUBLE_EQ(q.import, c.import) << c.transType;
        EXPECT_DOUBLE_EQ(q.exported, c.exported) << c.transType;
        EXPECT_DOUBLE_EQ(q.stock, c.import - c.exported) << c.transType;
        EXPECT_EQ(q.branch, 1);
    }
}

TEST_P(StockRepairTest, ScopedRepairTouchesOnlyTheGivenBarcodes) {
    const QString a = QStringLiteral("A1");
    const QString b = QStringLiteral("B2");
    addGoods(a);
    addGoods(b);
    addDocument(kPurchase, QStringLiteral("1"), {{a, 5}, {b, 7}});
    ASSERT_TRUE(repair({a}));
    EXPECT_DOUBLE_EQ(stockOf(a).stock, 5);
    EXPECT_FALSE(stockOf(b).found);  // not in scope: no row made yet

    ASSERT_TRUE(repair());
    EXPECT_DOUBLE_EQ(stockOf(b).stock, 7);
    // A stale figure outside the scope stays as it was until a repair covers it.
    Session s = session();
    ASSERT_TRUE(s.exec(QStringLiteral("UPDATE Stock SET Stock = 99, Import = 99")));
    ASSERT_TRUE(procedures::sp_StockRepair(s, {b, b, b}));
    EXPECT_DOUBLE_EQ(stockOf(a).stock, 99);
    EXPECT_DOUBLE_EQ(stockOf(b).stock, 7);
    EXPECT_DOUBLE_EQ(stockOf(b).import, 7);
}

TEST_P(StockRepairTest, ScopedRepairOfManyBarcodesSpansStatements) {
    QStringList barcodes;
    QList<Line> lines;
    for (int i = 0; i < 450; ++i) {
        barcodes << QStringLiteral("M%1").arg(i);
        lines << Line{barcodes.last(), double(i % 7 + 1)};
    }
    Session s = session();
    {
        Transaction tx(s);
        for (const QString& b : barcodes) {
            ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code) VALUES (:b)"),
                               {{QStringLiteral(":b"), b}}));
        }
        ASSERT_TRUE(tx.commit());
    }
    addDocument(kPurchase, QStringLiteral("1"), lines);
    // Inside the caller's transaction, which it does not end.
    Transaction tx(s);
    ASSERT_TRUE(procedures::sp_StockRepair(s, barcodes));
    EXPECT_TRUE(s.inTransaction());
    ASSERT_TRUE(tx.commit());
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Stock")), 450);
    EXPECT_DOUBLE_EQ(stockOf(QStringLiteral("M449")).stock, 449 % 7 + 1);
    EXPECT_DOUBLE_EQ(stockOf(QStringLiteral("M0")).stock, 1);
}

TEST_P(StockRepairTest, WarehouseQuantityCountsThatWarehouseOnlyAndOrdinaryDocuments) {
    const QString b = QStringLiteral("W1");
    addGoods(b);
    addDocument(kPurchase, QStringLiteral("1"), {{b, 10}}, QStringLiteral("1404/01/05"),
                std::nullopt, 1);
    addDocument(kPurchase, QStringLiteral("2"), {{b, 4}}, QStringLiteral("1404/01/05"),
                std::nullopt, 2);
    addDocument(kSale, QStringLiteral("1"), {{b, 3}}, QStringLiteral("1404/01/05"), std::nullopt,
                1);
    addInternalDocument(kSale, QStringLiteral("1"), {{b, 1}});
    // A paper with a DocType moves nothing.
    addDocument(kPurchase, QStringLiteral("3"), {{b, 100}}, QStringLiteral("1404/01/05"), 2, 1);
    Session s = session();
    struct Case {
        const char* warehouse;
        double quantity;
    };
    const Case cases[] = {{"1", 7}, {"2", 4}, {" 2 ", 4}, {"3", 0}, {"", 10}, {"0", 10}, {"x", 0}};
    for (const Case& c : cases) {
        EXPECT_DOUBLE_EQ(
            procedures::SP_ComputeWarehouseQtyByEanCode(s, b, QString::fromLatin1(c.warehouse)),
            c.quantity)
            << c.warehouse;
    }
    EXPECT_DOUBLE_EQ(procedures::SP_ComputeWarehouseQtyByEanCode(s, QStringLiteral("none"), {}), 0);
}

SANDOGH_INSTANTIATE_BACKENDS(StockRepairTest);

}  // namespace
}  // namespace sandogh
