#include <gtest/gtest.h>

#include "data/ShopFixture.h"
#include "data/repositories/GoodsMessages.h"
#include "data/repositories/GoodsRepository.h"
#include "data/repositories/GoodsSavedHook.h"

namespace sandogh {
namespace {

// Remembers what the follow-up of each save and delete was told.
class RecordingHook final : public GoodsSavedHook {
public:
    bool goodsSaved(Session& session, const GoodsArticle& article) override {
        sessionValid = session.isValid();
        saved << article;
        return true;
    }
    bool goodsDeleted(Session& /*session*/, const GoodsArticle& article) override {
        deleted << article;
        return true;
    }
    QList<GoodsArticle> saved;
    QList<GoodsArticle> deleted;
    bool sessionValid = false;
};

class GoodsRepositoryTest : public test::ShopBackendTest {
protected:
    static constexpr int kUser = 7;

    GoodsRepository repository() { return GoodsRepository(db(), clock, kUser, &hook); }

    static GoodsArticle article(const QString& barcode, const QString& name, double cost) {
        GoodsArticle a;
        a.barcode = barcode;
        a.name = name;
        a.cost = cost;
        return a;
    }

    qint64 priceRows(const QString& barcode) {
        return number(QStringLiteral("SELECT COUNT(*) FROM Price_History WHERE EAN_CODE = :b"),
                      {{QStringLiteral(":b"), barcode}});
    }

    RecordingHook hook;
};

TEST_P(GoodsRepositoryTest, ANewArticleGetsItsStockRowOnBranchOneAndItsFirstPrice) {
    GoodsRepository goods = repository();
    GoodsArticle a =
        article(QStringLiteral(" 6260000000017 "), QStringLiteral("شیر کم‌چرب"), 48000);
    a.specCode = QStringLiteral(" 17 ");
    a.weighed = true;
    a.favourite = true;
    a.favoriteTab = 2;
    a.askQuantity = true;
    const CheckResult saved = goods.save(a);
    ASSERT_TRUE(saved.ok) << saved.message.toStdString();
    EXPECT_EQ(saved.message, listmessages::kSaved);
    EXPECT_GT(a.id, 0);
    EXPECT_EQ(a.barcode, QStringLiteral("6260000000017"));

    Session s = db().session();
    SqlQuery stock(s, QStringLiteral("SELECT Import, Export, Stock, Branch FROM Stock "
                                     "WHERE Barcode = '6260000000017'"));
    ASSERT_TRUE(stock.exec() && stock.next());
    EXPECT_EQ(stock.number(0), 0.0);
    EXPECT_EQ(stock.number(1), 0.0);
    EXPECT_EQ(stock.number(2), 0.0);
    EXPECT_EQ(stock.integer(3), 1);

    SqlQuery row(s, QStringLiteral("SELECT Spec_Code, GType, Type, ISFavorite, FavoriteTab, AQIS, "
                                   "ISActive FROM Goods WHERE ID = :id"));
    row.bind(QStringLiteral(":id"), a.id);
    ASSERT_TRUE(row.exec() && row.next());
    EXPECT_EQ(row.text(0), QStringLiteral("17"));
    EXPECT_EQ(row.integer(1), 1);
    EXPECT_EQ(row.integer(2), 1);
    EXPECT_EQ(row.integer(3), 1);
    EXPECT_EQ(row.integer(4), 2);
    EXPECT_EQ(row.integer(5), 1);
    EXPECT_EQ(row.integer(6), 1);

    SqlQuery price(s, QStringLiteral("SELECT UserID, DateTime, Price FROM Price_History "
                                     "WHERE EAN_CODE = '6260000000017'"));
    ASSERT_TRUE(price.exec() && price.next());
    EXPECT_EQ(price.integer(0), kUser);
    // The fixed clock stands at 21 March 2025, 09:30: Farvardin 1st, 1404.
    EXPECT_EQ(price.text(1), QStringLiteral("1404/01/01 09:30:00"));
    EXPECT_EQ(price.number(2), 48000.0);
    EXPECT_FALSE(price.next());
    EXPECT_TRUE(goods.find(QStringLiteral("6260000000017"))->weighed);
}

// Every field comes back as saved; the values all differ, so that a column read in the
// place of its neighbour shows. Quotes and SQL words are stored as typed.
TEST_P(GoodsRepositoryTest, EveryFieldIsReadBackAsSaved) {
    GoodsRepository goods = repository();
    GoodsArticle a = article(QStringLiteral("3001"),
                             QStringLiteral("O'Brien's \"best\"'); DROP TABLE Goods; --"), 1100);
    a.specCode = QStringLiteral("31");
    a.enName = QStringLiteral("50% off_ [x] \\ ''");
    a.cost2 = 1200;
    a.articlePrice = 1300;
    a.taxValue = 9;
    a.unit = 7;
    a.favoriteTab = 3;
    a.favourite = true;
    a.askQuantity = true;
    a.stockNo1 = QStringLiteral("'A1'");
    a.stockNo2 = QStringLiteral("B2");
    a.note = QStringLiteral("note");
    a.inPacket = 12;
    a.minimum = 4;
    a.maximum = 40;
    const CheckResult saved = goods.save(a);
    ASSERT_TRUE(saved.ok) << saved.message.toStdString();
    const std::optional<GoodsArticle> r = goods.find(QStringLiteral("3001"));
    ASSERT_TRUE(r.has_value());
    EXPECT_EQ(r->specCode, a.specCode);
    EXPECT_EQ(r->name, a.name);
    EXPECT_EQ(r->enName, a.enName);
    EXPECT_EQ(r->cost, 1100.0);
    EXPECT_EQ(r->cost2, 1200.0);
    EXPECT_EQ(r->articlePrice, 1300.0);
    EXPECT_EQ(r->taxValue, 9.0);
    EXPECT_EQ(r->unit, 7);
    EXPECT_FALSE(r->weighed);  // neither Type nor GType marks it
    EXPECT_EQ(number(QStringLiteral("SELECT Type * 10 + GType FROM Goods WHERE EAN_Code = '3001'")),
              0);
    EXPECT_TRUE(r->favourite);
    EXPECT_EQ(r->favoriteTab, 3);
    EXPECT_TRUE(r->askQuantity);
    EXPECT_EQ(r->stockNo1, a.stockNo1);
    EXPECT_EQ(r->stockNo2, a.stockNo2);
    EXPECT_TRUE(r->active);
    EXPECT_EQ(r->note, a.note);
    EXPECT_EQ(r->inPacket, 12.0);
    EXPECT_EQ(r->minimum, 4.0);
    EXPECT_EQ(r->maximum, 40.0);
}

TEST_P(GoodsRepositoryTest, APriceRowIsWrittenOnlyWhenTheSalePriceChanges) {
    GoodsRepository goods = repository();
    GoodsArticle a = article(QStringLiteral("1001"), QStringLiteral("Tea"), 1000);
    ASSERT_TRUE(goods.save(a).ok);
    ASSERT_EQ(priceRows(QStringLiteral("1001")), 1);

    a.name = QStringLiteral("Black tea");
    a.cost2 = 900;  // the second price is not the sale price of the history
    ASSERT_TRUE(goods.save(a).ok);
    EXPECT_EQ(priceRows(QStringLiteral("1001")), 1);

    a.cost = 1250;
    clock.advanceSeconds(60);
    ASSERT_TRUE(goods.save(a).ok);
    EXPECT_EQ(priceRows(QStringLiteral("1001")), 2);
    EXPECT_EQ(goods.latestPrice(QStringLiteral("1001")), 1250.0);

    ASSERT_TRUE(goods.save(a).ok);
    EXPECT_EQ(priceRows(QStringLiteral("1001")), 2);
    EXPECT_EQ(rows(QStringLiteral("Goods")), 1);
    EXPECT_EQ(rows(QStringLiteral("Stock")), 1);
}

TEST_P(GoodsRepositoryTest, BadInputIsRefusedWithItsMessageAndNothingIsSaved) {
    GoodsRepository goods = repository();
    GoodsArticle first = article(QStringLiteral("3003"), QStringLiteral("Rice"), 10);
    ASSERT_TRUE(goods.save(first).ok);
    hook.saved.clear();

    struct Case {
        const char* what;
        GoodsArticle input;
        QString message;
    };
    const Case cases[] = {
        {"empty barcode", article(QStringLiteral("  "), QStringLiteral("X"), 1),
         goodsmessages::kEnterBarcode},
        {"only a quote", article(QStringLiteral("'"), QStringLiteral("X"), 1),
         goodsmessages::kEnterBarcode},
        {"empty name", article(QStringLiteral("3004"), QStringLiteral("   "), 1),
         listmessages::kEnterName},
        {"barcode used", article(QStringLiteral("3003"), QStringLiteral("Other"), 1),
         goodsmessages::kBarcodeTaken},
        {"barcode used, typed with blanks",
         article(QStringLiteral(" 3003"), QStringLiteral("O"), 1), goodsmessages::kBarcodeTaken},
    };
    for (const Case& c : cases) {
        GoodsArticle input = c.input;
        const CheckResult result = goods.save(input);
        EXPECT_FALSE(result.ok) << c.what;
        EXPECT_EQ(result.message, c.message) << c.what;
        EXPECT_EQ(input.id, 0) << c.what;
    }
    EXPECT_EQ(rows(QStringLiteral("Goods")), 1);
    EXPECT_EQ(rows(QStringLiteral("Stock")), 1);
    EXPECT_EQ(rows(QStringLiteral("Price_History")), 1);
    EXPECT_TRUE(hook.saved.isEmpty());
}

TEST_P(GoodsRepositoryTest, DeleteTakesTheRowsHangingOnTheBarcodeAndLeavesOthers) {
    GoodsRepository goods = repository();
    GoodsArticle gone = article(QStringLiteral("4004"), QStringLiteral("Gone"), 5);
    gone.specCode = QStringLiteral("44");
    GoodsArticle kept = article(QStringLiteral("4005"), QStringLiteral("Kept"), 5);
    ASSERT_TRUE(goods.save(gone).ok);
    ASSERT_TRUE(goods.save(kept).ok);
    for (const char* barcode : {"4004", "4005"}) {
        const SqlBinds b{{QStringLiteral(":b"), QString::fromLatin1(barcode)}};
        ASSERT_TRUE(
            exec(QStringLiteral("INSERT INTO tblRelatedCode (Ean_Code, Price) VALUES (:b, 1)"), b));
        ASSERT_TRUE(
            exec(QStringLiteral("INSERT INTO SetItem (SetId, Ean_Code) VALUES (9, :b)"), b));
        ASSERT_TRUE(exec(
            QStringLiteral("INSERT INTO ItemLock (Ean_Code, Qty, IsLock) VALUES (:b, 2, 1)"), b));
    }

    const CheckResult allowed = goods.canDelete(QStringLiteral("4004"));
    EXPECT_TRUE(allowed.ok);
    EXPECT_EQ(allowed.message, listmessages::kDeleteQuestion);
    ASSERT_TRUE(goods.remove(QStringLiteral("4004")).ok);

    for (const QString& table :
         {QStringLiteral("Goods WHERE EAN_Code"), QStringLiteral("Stock WHERE Barcode"),
          QStringLiteral("tblRelatedCode WHERE Ean_Code"), QStringLiteral("SetItem WHERE Ean_Code"),
          QStringLiteral("ItemLock WHERE Ean_Code"),
          QStringLiteral("Price_History WHERE EAN_CODE")}) {
        EXPECT_EQ(
            number(QStringLiteral("SELECT COUNT(*) FROM ") + table + QStringLiteral(" = '4004'")),
            0)
            << table.toStdString();
        EXPECT_EQ(
            number(QStringLiteral("SELECT COUNT(*) FROM ") + table + QStringLiteral(" = '4005'")),
            1)
            << table.toStdString();
    }
    ASSERT_EQ(hook.deleted.size(), 1);
    EXPECT_EQ(hook.deleted.first().barcode, QStringLiteral("4004"));
    EXPECT_EQ(hook.deleted.first().specCode, QStringLiteral("44"));
}

TEST_P(GoodsRepositoryTest, AnArticleNamedByDocumentsIsNotDeletedButCanBeTakenOutOfUse) {
    GoodsRepository goods = repository();
    GoodsArticle sold = article(QStringLiteral("5005"), QStringLiteral("Sold"), 5);
    ASSERT_TRUE(goods.save(sold).ok);
    addDocument(procedures::kSale, QStringLiteral("1"), {{QStringLiteral("5005")}});

    EXPECT_EQ(goods.documentLineCount(QStringLiteral("5005")), 1);
    const CheckResult allowed = goods.canDelete(QStringLiteral("5005"));
    EXPECT_FALSE(allowed.ok);
    EXPECT_EQ(allowed.message, goodsmessages::inDocumentsRefusal());
    const CheckResult removed = goods.remove(QStringLiteral("5005"));
    EXPECT_FALSE(removed.ok);
    EXPECT_EQ(removed.message, goodsmessages::inDocumentsRefusal());
    EXPECT_EQ(rows(QStringLiteral("Goods")), 1);
    EXPECT_EQ(rows(QStringLiteral("Stock")), 1);
    EXPECT_EQ(rows(QStringLiteral("Whs_QTYDocD")), 1);
    EXPECT_TRUE(hook.deleted.isEmpty());

    ASSERT_TRUE(goods.setActive(QStringLiteral("5005"), false));
    EXPECT_FALSE(goods.find(QStringLiteral("5005"))->active);
    EXPECT_FALSE(goods.setActive(QStringLiteral("no such"), false));
}

TEST_P(GoodsRepositoryTest, TheProposedBarcodeFollowsTheNewestArticle) {
    GoodsRepository goods = repository();
    EXPECT_EQ(goods.proposedBarcode(), QStringLiteral("1"));
    GoodsArticle older = article(QStringLiteral("6260000000099"), QStringLiteral("Old"), 1);
    GoodsArticle newest = article(QStringLiteral("6260000000009"), QStringLiteral("New"), 1);
    ASSERT_TRUE(goods.save(older).ok);
    ASSERT_TRUE(goods.save(newest).ok);
    EXPECT_EQ(goods.proposedBarcode(), QStringLiteral("6260000000010"));
}

SANDOGH_INSTANTIATE_BACKENDS(GoodsRepositoryTest);

}  // namespace
}  // namespace sandogh
