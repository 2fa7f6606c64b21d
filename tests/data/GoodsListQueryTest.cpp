#include <gtest/gtest.h>

#include <QSet>

#include "data/ShopFixture.h"
#include "data/Transaction.h"
#include "data/repositories/GoodsListQuery.h"
#include "data/repositories/GoodsSearchQuery.h"

namespace sandogh {
namespace {

using Column = GoodsListQuery::SearchColumn;

class GoodsListQueryTest : public test::ShopBackendTest {
protected:
    void SetUp() override {
        test::ShopBackendTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Session s = db().session();
        Transaction tx(s);
        ASSERT_TRUE(tx.isActive());
        // 37 articles. Barcodes 626000 + n, not in insert order; special codes
        // repeat in runs of three so that ties cross page boundaries; names hold a
        // common word in every third article.
        for (int i = 0; i < 37; ++i) {
            const int n = (i * 17) % 37;  // a permutation of 0..36
            const QString barcode = QStringLiteral("626%1").arg(n, 4, 10, QLatin1Char('0'));
            const QString special = QStringLiteral("S%1").arg(n / 3, 2, 10, QLatin1Char('0'));
            const QString name = n % 3 == 0
                                     ? QStringLiteral("پنیر لیقوان %1").arg(n)
                                     : QStringLiteral("Item %1").arg(n, 2, 10, QLatin1Char('0'));
            ASSERT_TRUE(
                s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Spec_Code, Name, NameKey, "
                                      "Cost, ISActive) VALUES (:b, :s, :n, :k, :c, :a)"),
                       {{QStringLiteral(":b"), barcode},
                        {QStringLiteral(":s"), special},
                        {QStringLiteral(":n"), name},
                        {QStringLiteral(":k"), GoodsSearchQuery::searchKey(name)},
                        {QStringLiteral(":c"), n * 100},
                        {QStringLiteral(":a"), n == 5 ? 0 : 1}}));
        }
        // Wildcards of LIKE in the data: searched for literally, never as patterns.
        ASSERT_TRUE(
            s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Spec_Code, Name, NameKey) VALUES "
                                  "('99%1', 'X_1', '100% juice', '100% juice')")));
        ASSERT_TRUE(
            s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Spec_Code, Name, NameKey) VALUES "
                                  "('99a1', 'XY1', '100 juice', '100 juice')")));
        ASSERT_TRUE(tx.commit());
    }

    // Every row of a search, read page by page.
    QList<GoodsListQuery::Row> readAll(Column column, const QString& text, int pageRows,
                                       int* pages = nullptr) {
        GoodsListQuery query(db(), column, text);
        QList<GoodsListQuery::Row> all;
        GoodsListQuery::Position at;
        int count = 0;
        for (;;) {
            const GoodsListQuery::Page page = query.fetch(at, pageRows);
            EXPECT_TRUE(page.ok);
            if (!page.ok) {
                break;
            }
            ++count;
            EXPECT_LE(page.rows.size(), pageRows);
            all << page.rows;
            at = page.next;
            if (page.atEnd) {
                break;
            }
            EXPECT_EQ(page.rows.size(), pageRows) << "a page that is not the last is full";
            if (count > 100) {
                ADD_FAILURE() << "the pages never end";
                break;
            }
        }
        if (pages != nullptr) {
            *pages = count;
        }
        return all;
    }

    static QStringList barcodes(const QList<GoodsListQuery::Row>& rows) {
        QStringList list;
        for (const auto& r : rows) {
            list << r.barcode;
        }
        return list;
    }
};

TEST_P(GoodsListQueryTest, PagesWithoutSearchCoverEveryArticleOnceInBarcodeOrder) {
    struct Case {
        int pageRows;
        int pages;
    };
    // 39 articles: pages of 10 end with 9; pages of 13 end exactly (the last full page is
    // followed by no empty one); one page holds everything.
    for (const Case c : {Case{10, 4}, Case{13, 3}, Case{100, 1}, Case{1, 39}}) {
        int pages = 0;
        const auto rows = readAll(Column::None, {}, c.pageRows, &pages);
        const QStringList list = barcodes(rows);
        QStringList sorted = list;
        sorted.sort();
        EXPECT_EQ(list.size(), 39) << c.pageRows;
        EXPECT_EQ(list, sorted) << c.pageRows;
        EXPECT_EQ(QSet<QString>(list.begin(), list.end()).size(), 39) << c.pageRows;
        EXPECT_EQ(pages, c.pages) << c.pageRows;
    }
}

TEST_P(GoodsListQueryTest, SearchesFindWhatTheyShouldInTheirOrder) {
    struct Case {
        Column column;
        QString text;
        QStringList expected;
    };
    const Case cases[] = {
        {Column::Barcode,
         QStringLiteral("626001"),
         {"6260010", "6260011", "6260012", "6260013", "6260014", "6260015", "6260016", "6260017",
          "6260018", "6260019"}},
        {Column::Barcode, QStringLiteral(" '6260036' "), {"6260036"}},
        {Column::Barcode, QStringLiteral("99%"), {"99%1"}},
        {Column::Barcode, QStringLiteral("7"), {}},
        // Ties of the special code are taken in the order of the rows' IDs, which
        // is the insert order of the permutation.
        {Column::SpecCode, QStringLiteral("S01"), {"6260005", "6260004", "6260003"}},
        {Column::SpecCode, QStringLiteral("X_"), {"99%1"}},
        {Column::SpecCode, QStringLiteral("s01"), {}},
        {Column::Name, QStringLiteral("100%"), {"99%1"}},
        // Names order as text: "... 3" before "... 30".
        {Column::Name, QStringLiteral("لیقوان 3"), {"6260003", "6260030", "6260033", "6260036"}},
        {Column::Name, QStringLiteral("Item 3"), {"6260031", "6260032", "6260034", "6260035"}},
    };
    for (const Case& c : cases) {
        const QStringList found = barcodes(readAll(c.column, c.text, 2));
        EXPECT_EQ(found, c.expected) << c.text.toStdString();
    }
}

// Ties of the special code (runs of three) and of equal names are taken in ID order.
TEST_P(GoodsListQueryTest, TiesAcrossPagesLoseAndRepeatNothing) {
    ASSERT_TRUE(exec(QStringLiteral(
        "UPDATE Goods SET Name = 'Same', NameKey = 'same' WHERE EAN_Code LIKE '626000%'")));
    const struct {
        Column column;
        const char* text;
        qsizetype rows;
    } cases[] = {{Column::SpecCode, "S", 37}, {Column::Name, "Same", 10}};
    for (const auto& c : cases) {
        for (const int pageRows : {1, 2, 4}) {
            SCOPED_TRACE(std::string(c.text) + " " + std::to_string(pageRows));
            const auto rows = readAll(c.column, QString::fromLatin1(c.text), pageRows);
            ASSERT_EQ(rows.size(), c.rows);
            for (qsizetype i = 1; i < rows.size(); ++i) {
                const auto& a = rows.at(i - 1);
                const auto& b = rows.at(i);
                const QString& keyA = c.column == Column::Name ? a.name : a.specCode;
                const QString& keyB = c.column == Column::Name ? b.name : b.specCode;
                EXPECT_TRUE(keyA < keyB || (keyA == keyB && a.id < b.id)) << i;
            }
        }
    }
}

TEST(GoodsListQueryText, PrefixBoundsAndLikeEscapes) {
    EXPECT_EQ(GoodsListQuery::prefixUpperBound(QStringLiteral("626")), QStringLiteral("627"));
    EXPECT_EQ(GoodsListQuery::prefixUpperBound(QStringLiteral("a9")), QStringLiteral("a:"));
    EXPECT_EQ(GoodsListQuery::prefixUpperBound(QString()), QString());
    EXPECT_EQ(GoodsListQuery::escapeLike(QStringLiteral("50%_[a]\\")),
              QStringLiteral("50\\%\\_\\[a]\\\\"));
}

SANDOGH_INSTANTIATE_BACKENDS(GoodsListQueryTest);

}  // namespace
}  // namespace sandogh
