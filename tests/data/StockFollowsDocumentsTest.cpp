// Stock following each document write (added, edited, deleted) agrees with the full
// sp_StockRepair recompute after every step of a mixed history.

#include <QMap>
#include <functional>

#include "ShopFixture.h"
#include "data/procedures/StockProcedures.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

using namespace procedures;

class StockFollowsDocumentsTest : public test::ShopFixture {
protected:
    struct Row {
        double import = 0;
        double exported = 0;
        double stock = 0;
        bool operator==(const Row&) const = default;
    };
    using Rows = QMap<QString, Row>;

    Rows stockRows() {
        Session s = session();
        SqlQuery q(s, QStringLiteral("SELECT Barcode, Import, Export, Stock FROM Stock"));
        EXPECT_TRUE(q.exec());
        Rows rows;
        while (q.next()) {
            rows.insert(q.text(0), {q.number(1), q.number(2), q.number(3)});
        }
        return rows;
    }

    static QList<procedures::StockDocumentLine> linesOf(const QList<Line>& lines) {
        QList<procedures::StockDocumentLine> out;
        for (const Line& l : lines) {
            procedures::StockDocumentLine line;
            line.eanCode = l.barcode;
            line.qty = l.qty;
            out << line;
        }
        return out;
    }

    // One document written as the screens write it: header, lines, Stock following.
    qint64 write(int transType, const QList<Line>& lines, bool internal = false,
                 std::optional<int> docType = std::nullopt) {
        procedures::StockDocumentHeader h;
        h.docNo = QString::number(++m_docNo);
        h.transType = transType;
        h.docDate = QStringLiteral("1404/01/05");
        h.docType = docType;
        Session s = session();
        Transaction tx(s);
        qint64 code = 0;
        bool ok = false;
        if (internal) {
            code = StockDocumentWriter::insertInternalHeader(s, h);
            ok = code > 0;
            for (const procedures::StockDocumentLine& l : linesOf(lines)) {
                ok = ok && StockDocumentWriter::insertInternalLine(s, code, l) > 0;
            }
            ok = ok && StockDocumentWriter::addInternalToStock(s, code);
        } else {
            code = StockDocumentWriter::insertHeader(s, h);
            ok = code > 0 && StockDocumentWriter::insertLines(s, code, linesOf(lines)) &&
                 StockDocumentWriter::addToStock(s, code);
        }
        EXPECT_TRUE(ok && tx.commit()) << s.lastError().text().toStdString();
        return code;
    }

    bool inTransaction(const std::function<bool(Session&)>& change) {
        Session s = session();
        Transaction tx(s);
        return change(s) && tx.commit();
    }

    // The Stock rows as the writes left them agree with a full sp_StockRepair recompute.
    void agreesWithTheRecompute(const char* step) {
        SCOPED_TRACE(step);
        const Rows followed = stockRows();
        ASSERT_TRUE(inTransaction([](Session& s) { return procedures::sp_StockRepair(s); }));
        const Rows recomputed = stockRows();
        EXPECT_EQ(followed.keys(), recomputed.keys());
        for (auto it = recomputed.cbegin(); it != recomputed.cend(); ++it) {
            const Row got = followed.value(it.key());
            EXPECT_NEAR(got.import, it->import, 1e-9) << it.key().toStdString();
            EXPECT_NEAR(got.exported, it->exported, 1e-9) << it.key().toStdString();
            EXPECT_NEAR(got.stock, it->stock, 1e-9) << it.key().toStdString();
        }
    }

    int m_docNo = 0;
};

TEST_P(StockFollowsDocumentsTest, EveryStepAgreesWithTheFullRecompute) {
    const QString a = QStringLiteral("A1");
    const QString b = QStringLiteral("B2");
    const QString c = QStringLiteral("C3");
    for (const QString& g : {a, b, c}) {
        addGoods(g);
    }
    ASSERT_TRUE(inTransaction([](Session& s) { return procedures::sp_StockRepair(s); }));

    write(kPurchase, {{a, 10}, {b, 5}, {a, 2.5}});
    agreesWithTheRecompute("purchase");
    const qint64 sale = write(kSale, {{a, 3}, {b, 1}, {a, 0.25}});
    agreesWithTheRecompute("sale");
    write(kSaleReturn, {{a, 1}});
    agreesWithTheRecompute("sale return");
    const qint64 purchaseReturn = write(kPurchaseReturn, {{b, 2}});
    agreesWithTheRecompute("purchase return");
    write(kSale, {{a, 50}}, false, 1);
    agreesWithTheRecompute("paper with a DocType");
    write(kPurchase, {{a, 7}}, true);
    agreesWithTheRecompute("internal receipt");
    const qint64 internalSent = write(kSale, {{b, 1}, {c, 2}}, true);
    agreesWithTheRecompute("internal dispatch");
    EXPECT_TRUE(inTransaction([&](Session& s) {
        return StockDocumentWriter::replaceLines(s, sale, linesOf({{a, 1}, {c, 4}}));
    }));
    agreesWithTheRecompute("edit: lines replaced, a new article");
    EXPECT_TRUE(inTransaction(
        [&](Session& s) { return StockDocumentWriter::deleteDocument(s, purchaseReturn); }));
    agreesWithTheRecompute("delete");
    EXPECT_TRUE(inTransaction(
        [&](Session& s) { return StockDocumentWriter::deleteInternalDocument(s, internalSent); }));
    agreesWithTheRecompute("internal delete");
    ASSERT_TRUE(
        exec(QStringLiteral("DELETE FROM Stock WHERE Barcode = :b"), {{QStringLiteral(":b"), a}}));
    write(kSale, {{a, 2}, {b, 1}});
    agreesWithTheRecompute("article that lost its Stock row sold again");
    write(kSale, {{QStringLiteral("ZZ"), 1}});
    agreesWithTheRecompute("article without a Stock row and without Goods");
    // Not vacuous: the history moved every article.
    const Rows end = stockRows();
    EXPECT_DOUBLE_EQ(end.value(a).stock, 10 + 2.5 - 1 + 1 + 7 - 2);
    EXPECT_DOUBLE_EQ(end.value(c).stock, -4);
    EXPECT_EQ(messages().count(), 0);
}

SANDOGH_INSTANTIATE_BACKENDS(StockFollowsDocumentsTest);

}  // namespace
}  // namespace sandogh
