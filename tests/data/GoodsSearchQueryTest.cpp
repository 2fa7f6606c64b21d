// The till's goods search on both backends: words as people type them, anywhere in the
// name, and the codes an article is known by.

#include <gtest/gtest.h>

#include "data/ShopFixture.h"
#include "data/Transaction.h"
#include "data/repositories/GoodsRepository.h"
#include "data/repositories/GoodsSearchQuery.h"

namespace sandogh {
namespace {

class GoodsSearchQueryTest : public test::ShopBackendTest {
protected:
    void SetUp() override {
        test::ShopBackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        // Saved as the goods screen saves them, so that the search form is written.
        GoodsRepository goods(db(), clock, 1);
        const struct {
            const char* barcode;
            QString name;
            const char* spec;
        } articles[] = {
            {"6260001", QStringLiteral("چای سبز ممتاز گلستان"), "11"},
            // Arabic yeh and kaf as older data holds them, and a zero-width non-joiner.
            {"6260002", QStringLiteral("چاي كيسه‌اي احمد"), "12"},
            {"6260003", QStringLiteral("Green Tea Lipton ۱۰۰ gr"), "13"},
            {"6260004", QStringLiteral("برنج هاشمی"), "6260001"},
            {"7770005", QStringLiteral("چای سیاه"), "15"},
        };
        for (const auto& a : articles) {
            GoodsArticle article;
            article.barcode = QString::fromLatin1(a.barcode);
            article.name = a.name;
            article.specCode = QString::fromLatin1(a.spec);
            article.cost = 1000;
            ASSERT_TRUE(goods.save(article).ok) << a.barcode;
        }
        ASSERT_TRUE(goods.setActive(QStringLiteral("7770005"), false));
        Session s = db().session();
        ASSERT_TRUE(
            s.exec(QStringLiteral("UPDATE Goods SET ComplexCode = '0102' "
                                  "WHERE EAN_Code = '6260003'")));
    }

    QStringList barcodes(const QString& typed) {
        const GoodsSearchQuery::Result r = GoodsSearchQuery(db()).find(typed);
        EXPECT_TRUE(r.ok);
        QStringList found;
        for (const GoodsSearchQuery::Row& row : r.rows) {
            found << row.barcode;
        }
        return found;
    }
};

TEST_P(GoodsSearchQueryTest, FindsWhatPeopleTypeWhicheverLettersAndDigitsTheyUse) {
    const struct {
        QString typed;
        QStringList found;
    } cases[] = {
        // A word in the middle of a name.
        {QStringLiteral("ممتاز"), {QStringLiteral("6260001")}},
        // Arabic yeh typed finds Persian yeh stored, and the other way round; the
        // inactive article is left out.
        {QStringLiteral("چاي"), {QStringLiteral("6260001"), QStringLiteral("6260002")}},
        {QStringLiteral("کیسه ای"), {QStringLiteral("6260002")}},
        {QStringLiteral("كيسه‌اي"), {QStringLiteral("6260002")}},
        // Every word must be there, in any order and case; short words too.
        {QStringLiteral("tea GREEN"), {QStringLiteral("6260003")}},
        {QStringLiteral("چای گل"), {QStringLiteral("6260001")}},
        {QStringLiteral("100"), {QStringLiteral("6260003")}},
        {QStringLiteral("۱۰۰ gr"), {QStringLiteral("6260003")}},
        // Codes come first: a barcode prefix, the Spec_Code, the structured code.
        {QStringLiteral("۶۲۶۰۰۰۱"), {QStringLiteral("6260001"), QStringLiteral("6260004")}},
        {QStringLiteral("12"), {QStringLiteral("6260002")}},
        {QStringLiteral("010"), {QStringLiteral("6260003")}},
        {QStringLiteral("قهوه"), {}},
        {QStringLiteral("  "), {}},
        // LIKE's wildcards are plain characters.
        {QStringLiteral("%"), {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed.toStdString());
        EXPECT_EQ(barcodes(c.typed), c.found);
    }
}

TEST_P(GoodsSearchQueryTest, TheDatabaseFoldsNamesAsTheProgramDoes) {
    // The step that adds the search form fills it for the articles already there.
    Session s = db().session();
    const QString sql = QStringLiteral("SELECT ") +
                        s.dialect().searchKeyExpression(QStringLiteral("CAST(:t AS VARCHAR(200))"));
    for (const QString& text :
         {QStringLiteral("چاي كيسه‌اي ۱۲۳ ٤٥٦ Tea"), QStringLiteral("ى")}) {
        EXPECT_EQ(s.scalarText(sql, {{QStringLiteral(":t"), text}}),
                  GoodsSearchQuery::searchKey(text));
    }
    // Changing the name changes what it is found by.
    GoodsRepository goods(db(), clock, 1);
    std::optional<GoodsArticle> tea = goods.find(QStringLiteral("6260001"));
    ASSERT_TRUE(tea);
    tea->name = QStringLiteral("چای ارل گری");
    ASSERT_TRUE(goods.save(*tea).ok);
    EXPECT_EQ(barcodes(QStringLiteral("ممتاز")), QStringList());
    EXPECT_EQ(barcodes(QStringLiteral("ارل")), QStringList{QStringLiteral("6260001")});
}

SANDOGH_INSTANTIATE_BACKENDS(GoodsSearchQueryTest);

}  // namespace
}  // namespace sandogh
