// The saved sales list on both backends: the three choices, the filters combined, the
// customer matched as typed, the empty date mask, and pages that follow each other
// without a gap or a repeat when numbers repeat across days.

#include <gtest/gtest.h>

#include <QSet>

#include "SavedSalesTest.h"
#include "data/repositories/SaleListQuery.h"
#include "sales/SaleListModel.h"

namespace sandogh::test {
namespace {

class SaleListTest : public SavedSalesTest {
protected:
    // Sales 10 .. 10 + n - 1 (keys 100 ..), with daily numbers repeating every `perDay`.
    void addSales(int n, int perDay) {
        for (int i = 0; i < n; ++i) {
            const qint64 code = 100 + i;
            const QString date =
                QStringLiteral("1404/01/%1").arg(1 + i / perDay, 2, 10, QLatin1Char('0'));
            addDocument(code, 2, QString::number(1 + i % perDay), QStringLiteral("2222"), 1, 1000,
                        date, 1, 1000 * (i + 1), 0);
        }
    }
    QStringList docNos(const SaleListModel& model) {
        QStringList list;
        for (int i = 0; i < model.rowCount(); ++i) {
            list << model.row(i).docNo;
        }
        return list;
    }
};

TEST_P(SaleListTest, TheThreeChoicesReadPagesInNumberOrderUpToTheirLimit) {
    addSales(620, 310);  // numbers 1 .. 310 on two days
    SaleListModel model(db());
    SaleListQuery::Filter filter;
    model.load(SaleList::Choice::Last500, filter);
    EXPECT_EQ(model.rowCount(), SaleList::kPageRows);
    while (model.canFetchMore()) {
        model.fetchMore();
    }
    ASSERT_EQ(model.rowCount(), 500);
    EXPECT_EQ(model.row(0).docNo, QStringLiteral("310"));
    EXPECT_EQ(model.row(1).docNo, QStringLiteral("310"));
    EXPECT_GT(model.row(0).code, model.row(1).code);
    EXPECT_EQ(model.row(499).docNo, QStringLiteral("61"));

    model.load(SaleList::Choice::First500, filter);
    while (model.canFetchMore()) {
        model.fetchMore();
    }
    ASSERT_EQ(model.rowCount(), 500);
    EXPECT_EQ(model.row(0).docNo, QStringLiteral("1"));
    EXPECT_EQ(model.row(499).docNo, QStringLiteral("250"));  // 1 and 2 before 10: numbers

    model.load(SaleList::Choice::All, filter);
    QSet<qint64> seen;
    while (model.canFetchMore()) {
        model.fetchMore();
    }
    for (int i = 0; i < model.rowCount(); ++i) {
        seen.insert(model.row(i).code);
    }
    EXPECT_EQ(model.rowCount(), 620);
    EXPECT_EQ(seen.size(), 620);
    EXPECT_EQ(model.data(model.index(0, SaleListModel::DocSum)).toString(),
              QStringLiteral("620,000"));
}

TEST_P(SaleListTest, TheFiltersCombineAndTheCustomerIsFoundAsTyped) {
    addSales(6, 3);
    exec(QStringLiteral("UPDATE Whs_QTYDocH SET CompanyID = 501 WHERE Code IN (101, 104, 105)"));
    exec(
        QStringLiteral("UPDATE Whs_QTYDocH SET Base = 'B-77', BaseKey = 'b-77' WHERE Code IN "
                       "(104, 102)"));
    exec(QStringLiteral("UPDATE Whs_QTYDocH SET DocDate = NULL WHERE Code = 105"));
    Session s = db().session();
    const auto codes = [&](const SaleListQuery::Filter& f) {
        QList<qint64> list;
        for (const SaleListQuery::Row& r : SaleListQuery::page(s, f, true, {}, 50)) {
            list << r.code;
        }
        return list;
    };
    SaleListQuery::Filter f;
    // Typed with the Persian letters and a zero-width non-joiner; stored with the Arabic.
    f.customer = QStringLiteral("علی کری\u200Cمی");
    EXPECT_EQ(codes(f), (QList<qint64>{105, 104, 101}));
    f.base = QStringLiteral("77");
    EXPECT_EQ(codes(f), (QList<qint64>{104}));
    f.docDate = QStringLiteral("1404/01/02");
    EXPECT_EQ(codes(f), (QList<qint64>{104}));
    f.docNo = QStringLiteral("1");
    EXPECT_EQ(codes(f), (QList<qint64>{}));
    f = {};
    f.docNo = QStringLiteral("2");
    EXPECT_EQ(codes(f), (QList<qint64>{104, 101}));
    f.docNo = QStringLiteral("3");
    f.docDate = QStringLiteral("____/__/__");
    const QList<SaleListQuery::Row> masked = SaleListQuery::page(s, f, true, {}, 50);
    ASSERT_EQ(masked.size(), 1);
    EXPECT_EQ(masked.first().docDate, QStringLiteral("____/__/__"));
    EXPECT_EQ(masked.first().customerName, QStringLiteral("علي كريمي"));
    f = {};
    f.transType = 3;
    EXPECT_TRUE(codes(f).isEmpty());
}

SANDOGH_INSTANTIATE_BACKENDS(SaleListTest);

}  // namespace
}  // namespace sandogh::test
