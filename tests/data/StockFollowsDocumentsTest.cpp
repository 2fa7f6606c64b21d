// Stock and the movements per month following each document write (added, edited, deleted)
// agree with the full sp_StockRepair recompute and with the lines after every step of a
// mixed history.

#include <QMap>
#include <algorithm>
#include <functional>

#include "ShopFixture.h"
#include "data/procedures/StockProcedures.h"
#include "data/repositories/SaleEditRepository.h"
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
            line.price = l.price;
            line.mFee = l.mFee;
            line.discount = l.discount;
            line.taxValue = l.taxValue;
            out << line;
        }
        return out;
    }

    // One document written as the screens write it: header, lines, Stock following.
    qint64 write(int transType, const QList<Line>& lines, bool internal = false,
                 std::optional<int> docType = std::nullopt, const char* date = "1404/01/05") {
        procedures::StockDocumentHeader h;
        h.docNo = QString::number(++m_docNo);
        h.transType = transType;
        h.docDate = QString::fromLatin1(date);
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

    // StockMonth per "month article", its figures in the table's order; rows of noughts
    // (what a deleted document leaves) are as good as none.
    using Months = QMap<QString, QList<double>>;
    static void dropNoughts(Months& months) {
        months.removeIf([](const auto& it) {
            return std::all_of(it->cbegin(), it->cend(), [](double v) { return v == 0; });
        });
    }
    Months months() {
        Session s = session();
        SqlQuery q(s, QStringLiteral("SELECT YearMonth, Barcode, PurchaseQty, PurchaseValue, "
                                     "PurchaseReturnQty, SaleQty, SaleAmount, ReturnQty, "
                                     "ReturnAmount, SaleLines, InternalIn, InternalOut "
                                     "FROM StockMonth"));
        EXPECT_TRUE(q.exec());
        Months rows;
        while (q.next()) {
            QList<double>& f = rows[q.text(0) + QLatin1Char(' ') + q.text(1)];
            for (int i = 2; i < 12; ++i) {
                f << q.number(i);
            }
        }
        dropNoughts(rows);
        return rows;
    }
    // The same worked out here from every line.
    Months monthsOfLines() {
        Session s = session();
        Months rows;
        for (const bool internal : {false, true}) {
            SqlQuery q(s, QStringLiteral("SELECT H.DocDate, H.TransType, %1, D.EAN_Code, D.Qty, "
                                         "D.Price, D.MFee, D.Discount, D.TaxValue FROM %2 D "
                                         "INNER JOIN %3 H ON H.Code = D.Code")
                              .arg(internal ? QStringLiteral("0") : QStringLiteral("H.DocType"),
                                   internal ? QStringLiteral("Whs_QTYDocDInternal")
                                            : QStringLiteral("Whs_QTYDocD"),
                                   internal ? QStringLiteral("Whs_QTYDocHInternal")
                                            : QStringLiteral("Whs_QTYDocH")));
            EXPECT_TRUE(q.exec());
            while (q.next()) {
                const int kind = q.integer(1);
                if ((!internal && !q.isNull(2)) || kind < 1 || kind > 4) {
                    continue;
                }
                QList<double>& f = rows[q.text(0).left(7) + QLatin1Char(' ') + q.text(3)];
                f.resize(10);
                const double qty = q.number(4);
                const double price = q.number(5);
                const double net = q.number(6) * (1 - q.number(7) / 100);
                if (internal) {
                    f[kind % 2 == 1 ? 8 : 9] += qty;
                } else if (kind == 1) {
                    f[0] += qty;
                    f[1] += qty * net * (1 + q.number(8) / 100);
                } else if (kind == 4) {
                    f[2] += qty;
                } else {
                    f[kind == 2 ? 3 : 5] += qty;
                    f[kind == 2 ? 4 : 6] += price;
                    f[7] += 1;
                }
            }
        }
        dropNoughts(rows);
        return rows;
    }
    static void expectSame(const Months& got, const Months& want, const char* step) {
        EXPECT_EQ(got.keys(), want.keys()) << step;
        for (auto it = want.cbegin(); it != want.cend(); ++it) {
            for (int i = 0; i < 10; ++i) {
                EXPECT_NEAR(got.value(it.key()).value(i), it->at(i), 1e-6)
                    << step << ' ' << it.key().toStdString() << " figure " << i;
            }
        }
    }

    bool inTransaction(const std::function<bool(Session&)>& change) {
        Session s = session();
        Transaction tx(s);
        return change(s) && tx.commit();
    }

    // The Stock rows and the months as the writes left them agree with the lines and with a
    // full sp_StockRepair recompute.
    void agreesWithTheRecompute(const char* step) {
        SCOPED_TRACE(step);
        const Rows followed = stockRows();
        const Months lines = monthsOfLines();
        expectSame(months(), lines, step);
        ASSERT_TRUE(inTransaction([](Session& s) { return procedures::sp_StockRepair(s); }));
        expectSame(months(), lines, step);
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

    write(kPurchase, {{a, 10, 0, 0, 100, 10, 9}, {b, 5, 0, 0, 50}, {a, 2.5, 0, 0, 80}});
    agreesWithTheRecompute("purchase");
    const qint64 sale = write(kSale, {{a, 3, 0, 450}, {b, 1, 0, 80}, {a, 0.25, 0, 40}}, false,
                              std::nullopt, "1404/02/01");
    agreesWithTheRecompute("sale");
    write(kSaleReturn, {{a, 1, 0, 150}}, false, std::nullopt, "1404/02/31");
    agreesWithTheRecompute("sale return");
    const qint64 purchaseReturn =
        write(kPurchaseReturn, {{b, 2}}, false, std::nullopt, "1403/12/30");
    agreesWithTheRecompute("purchase return");
    write(kSale, {{a, 50}}, false, 1);
    agreesWithTheRecompute("paper with a DocType");
    write(kPurchase, {{a, 7}}, true);
    agreesWithTheRecompute("internal receipt");
    write(kSaleReturn, {{c, 1}}, true);
    agreesWithTheRecompute("internal return");
    const qint64 internalSent = write(kSale, {{b, 1}, {c, 2}}, true);
    agreesWithTheRecompute("internal dispatch");
    EXPECT_TRUE(inTransaction([&](Session& s) {
        return StockDocumentWriter::replaceLines(s, sale, linesOf({{a, 1, 0, 9}, {c, 4, 0, 70}}));
    }));
    agreesWithTheRecompute("edit: lines replaced, a new article");
    EXPECT_TRUE(inTransaction([&](Session& s) {
        const auto before = SaleEditRepository::lines(s, sale);
        return !before.isEmpty() && SaleEditRepository::deleteLine(s, before.first().line.id) &&
               StockDocumentWriter::insertLine(s, sale, linesOf({{b, 2, 0, 30}})[0]) > 0 &&
               procedures::sp_StockRepair(s, {before.first().line.eanCode, b});
    }));
    agreesWithTheRecompute("edit line by line, then a scoped repair");
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
    EXPECT_DOUBLE_EQ(end.value(a).stock, 10 + 2.5 + 1 + 7 - 2);  // the sale's line of A edited away
    EXPECT_DOUBLE_EQ(end.value(c).stock, 1 - 4);
    EXPECT_EQ(months().size(), 7);
    EXPECT_EQ(messages().count(), 0);
}

SANDOGH_INSTANTIATE_BACKENDS(StockFollowsDocumentsTest);

}  // namespace
}  // namespace sandogh
