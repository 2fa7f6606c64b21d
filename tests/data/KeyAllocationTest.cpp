// Keys allocated inside the insert (largest plus one): numbering from an empty table,
// the retry of key conflicts under a savepoint, and seats racing for one key.

#include <QSet>
#include <atomic>
#include <future>
#include <thread>

#include "ShopFixture.h"
#include "data/procedures/KeyConflictRetry.h"
#include "data/procedures/ReturningInsert.h"
#include "data/repositories/DocumentNumbering.h"

namespace sandogh {
namespace {

using namespace procedures;

StockDocumentHeader saleHeader(const QString& docNo) {
    StockDocumentHeader h;
    h.docNo = docNo;
    h.transType = procedures::kSale;
    h.docDate = QStringLiteral("1404/02/01");
    return h;
}

// Writes a header under a Code that is already taken: a key conflict on demand.
qint64 insertTakenCode(Session& s, qint64 code, DbError& error) {
    SqlQuery q(s, QStringLiteral("INSERT INTO Whs_QTYDocH (Code, DocNo, TransType) "
                                 "VALUES (:code, :docNo, :transType)"));
    q.setLogging(FailureLogging::QuietKeyConflicts);
    q.bind(QStringLiteral(":code"), code)
        .bind(QStringLiteral(":docNo"), QStringLiteral("9"))
        .bind(QStringLiteral(":transType"), 2);
    if (!q.exec()) {
        error = q.error();
        return 0;
    }
    return code;
}

class KeyAllocationTest : public test::ShopFixture {};

// Only the failed attempt is undone; conflicts in every attempt give up with the conflict.
TEST_P(KeyAllocationTest, AConflictIsRetriedUnderASavepointUpToTheLastAttempt) {
    Session s = session();
    Transaction tx(s);
    const qint64 kept = StockDocumentWriter::insertHeader(s, saleHeader(QStringLiteral("1")));
    ASSERT_EQ(kept, 1);
    int attempts = 0;
    const qint64 key = KeyConflictRetry::run(s, [&](DbError& error) {
        ++attempts;
        return attempts == 1
                   ? insertTakenCode(s, kept, error)
                   : StockDocumentWriter::insertHeaderUnlocked(s, saleHeader(QStringLiteral("2")));
    });
    EXPECT_EQ(attempts, 2);
    EXPECT_EQ(key, 2);

    attempts = 0;
    DbError last;
    const auto conflict = [&](DbError& error) {
        ++attempts;
        return insertTakenCode(s, kept, error);
    };
    EXPECT_EQ(KeyConflictRetry::run(s, conflict, 3, &last), 0);
    EXPECT_EQ(attempts, 3);
    EXPECT_TRUE(last.isKeyConflict());
    // The transaction is still usable after the failed statements (PostgreSQL included),
    // and lines carry the key their header was given.
    EXPECT_EQ(StockDocumentWriter::insertHeader(s, saleHeader(QStringLiteral("3"))), 3);
    procedures::StockDocumentLine line;
    line.eanCode = QStringLiteral("626");
    line.userId = 7;
    const qint64 lineId = StockDocumentWriter::insertLine(s, key, line);
    ASSERT_GT(lineId, 0);
    ASSERT_TRUE(tx.commit());
    EXPECT_EQ(count(QStringLiteral("SELECT Code * 10 + UserID FROM Whs_QTYDocD WHERE ID = :id"),
                    {{QStringLiteral(":id"), lineId}}),
              27);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 3);
    EXPECT_EQ(messages().count(), 0);
}

TEST_P(KeyAllocationTest, ConcurrentSeatsNeverShareAKey) {
    constexpr int kSeats = 3;
    constexpr int kDocuments = 15;
    std::atomic<int> failures{0};
    std::vector<std::thread> seats;
    for (int seat = 0; seat < kSeats; ++seat) {
        seats.emplace_back([&, seat] {
            std::unique_ptr<Database> desk = testDatabase().openAnother();
            for (int i = 0; i < kDocuments; ++i) {
                Session s = desk->session();
                Transaction tx(s);
                const qint64 code = StockDocumentWriter::insertHeader(
                    s, saleHeader(QString::number(seat * 100 + i)));
                procedures::StockDocumentLine line;
                line.eanCode = QString::number(seat);
                if (code <= 0 || StockDocumentWriter::insertLine(s, code, line) <= 0 ||
                    !tx.commit()) {
                    ++failures;
                }
            }
        });
    }
    for (std::thread& t : seats) {
        t.join();
    }
    EXPECT_EQ(failures.load(), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), kSeats * kDocuments);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(DISTINCT Code) FROM Whs_QTYDocH")),
              kSeats * kDocuments);
    EXPECT_EQ(count(QStringLiteral("SELECT MAX(Code) FROM Whs_QTYDocH")), kSeats * kDocuments);
    // Every line sits under a header of its own seat.
    EXPECT_EQ(count(QStringLiteral(
                  "SELECT COUNT(*) FROM Whs_QTYDocD D INNER JOIN Whs_QTYDocH H ON H.Code = D.Code "
                  "WHERE CAST(H.DocNo AS BIGINT) / 100 = CAST(D.EAN_Code AS BIGINT)")),
              kSeats * kDocuments);
}

SANDOGH_INSTANTIATE_BACKENDS(KeyAllocationTest);

// Two PostgreSQL seats writing a header at the same moment: the second passes over the
// key that the first holds uncommitted instead of waiting for the first to end (the sale
// writes its header before the desks' lock, a purchase under it: neither may wait for
// the other).
class KeyAllocationRaceTest : public test::ShopFixture {};

TEST_P(KeyAllocationRaceTest, ASeatPassesOverAKeyHeldByAnOpenTransaction) {
    Session a = session();
    Transaction txA(a);
    ASSERT_EQ(StockDocumentWriter::insertHeaderUnlocked(a, saleHeader(QString())), 1);
    auto seatB = std::async(std::launch::async, [this] {
        std::unique_ptr<Database> desk = testDatabase().openAnother();
        Session b = desk->session();
        Transaction txB(b);
        // A wait for seat A would end here in an error rather than in a hung test.
        b.exec(QStringLiteral("SET LOCAL lock_timeout = '20s'"));
        const qint64 key = StockDocumentWriter::insertHeader(b, saleHeader(QStringLiteral("2")));
        return key > 0 && txB.commit() ? key : 0;
    });
    EXPECT_EQ(seatB.get(), 2);
    ASSERT_TRUE(txA.commit());
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(DISTINCT Code) FROM Whs_QTYDocH")), 2);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE DocNo IS NULL")), 1);
    EXPECT_EQ(messages().count(), 0);
}

SANDOGH_INSTANTIATE_POSTGRES_ONLY(KeyAllocationRaceTest);

}  // namespace
}  // namespace sandogh
