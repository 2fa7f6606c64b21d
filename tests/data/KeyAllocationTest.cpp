// Keys allocated inside the insert (largest plus one): numbering from an empty table,
// the retry of key conflicts under a savepoint, and seats racing for one key.

#include <QElapsedTimer>
#include <QSet>
#include <QThread>
#include <atomic>
#include <future>
#include <thread>

#include "ShopFixture.h"
#include "data/procedures/KeyConflictRetry.h"
#include "data/procedures/ReturningInsert.h"
#include "data/repositories/DocumentNumbering.h"

namespace sandogh {
namespace {

using procedures::KeyConflictRetry;
using procedures::StockDocumentHeader;
using procedures::StockDocumentWriter;

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

TEST_P(KeyAllocationTest, LinesCarryTheKeyTheirHeaderWasGiven) {
    Session s = session();
    Transaction tx(s);
    const qint64 first = StockDocumentWriter::insertHeader(s, saleHeader(QStringLiteral("1")));
    const qint64 second = StockDocumentWriter::insertHeader(s, saleHeader(QStringLiteral("2")));
    procedures::StockDocumentLine line;
    line.eanCode = QStringLiteral("626");
    line.qty = 2;
    line.userId = 7;
    const qint64 lineId = StockDocumentWriter::insertLine(s, first, line);
    ASSERT_GT(lineId, 0);
    ASSERT_TRUE(tx.commit());
    EXPECT_EQ(second, first + 1);
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT Code FROM Whs_QTYDocD WHERE ID = :id"),
                            {{QStringLiteral(":id"), lineId}}),
              first);
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT UserID FROM Whs_QTYDocD WHERE ID = :id"),
                            {{QStringLiteral(":id"), lineId}}),
              7);
}

TEST_P(KeyAllocationTest, AConflictIsRetriedAndOnlyTheFailedAttemptIsUndone) {
    Session s = session();
    Transaction tx(s);
    const qint64 kept = StockDocumentWriter::insertHeader(s, saleHeader(QStringLiteral("1")));
    ASSERT_EQ(kept, 1);
    int attempts = 0;
    const qint64 key = KeyConflictRetry::run(s, [&](DbError& error) {
        ++attempts;
        return attempts == 1 ? insertTakenCode(s, kept, error)
                             : StockDocumentWriter::insertHeaderOnce(
                                   s, saleHeader(QStringLiteral("2")), error);
    });
    EXPECT_EQ(attempts, 2);
    EXPECT_EQ(key, 2);
    // The transaction is still usable after the failed statement (PostgreSQL included).
    EXPECT_EQ(StockDocumentWriter::insertHeader(s, saleHeader(QStringLiteral("3"))), 3);
    ASSERT_TRUE(tx.commit());
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 3);
    EXPECT_EQ(messages().count(), 0);
}

TEST_P(KeyAllocationTest, ConflictsInEveryAttemptGiveUpWithTheConflict) {
    Session s = session();
    Transaction tx(s);
    ASSERT_EQ(StockDocumentWriter::insertHeader(s, saleHeader(QStringLiteral("1"))), 1);
    int attempts = 0;
    DbError last;
    const qint64 key = KeyConflictRetry::run(
        s,
        [&](DbError& error) {
            ++attempts;
            return insertTakenCode(s, 1, error);
        },
        3, &last);
    EXPECT_EQ(key, 0);
    EXPECT_EQ(attempts, 3);
    EXPECT_TRUE(last.isKeyConflict());
    EXPECT_EQ(StockDocumentWriter::insertHeader(s, saleHeader(QStringLiteral("2"))), 2);
    ASSERT_TRUE(tx.commit());
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

// Two PostgreSQL seats taking the same key at the same moment: the second insert waits
// for the first seat's transaction and, once it commits, fails on the key.
class KeyAllocationRaceTest : public test::ShopFixture {
protected:
    // Seat B writes a header in its own thread while seat A holds key 1 uncommitted; A
    // commits as soon as B is seen waiting for it. B's key and error.
    std::pair<qint64, DbError> race(bool retry) {
        Session a = session();
        Transaction txA(a);
        DbError errorA;
        EXPECT_EQ(StockDocumentWriter::insertHeaderOnce(a, saleHeader(QStringLiteral("1")), errorA),
                  1);
        auto seatB = std::async(std::launch::async, [this, retry] {
            std::unique_ptr<Database> desk = testDatabase().openAnother();
            Session b = desk->session();
            Transaction txB(b);
            DbError error;
            const qint64 key =
                retry ? StockDocumentWriter::insertHeader(b, saleHeader(QStringLiteral("2")))
                      : StockDocumentWriter::insertHeaderOnce(b, saleHeader(QStringLiteral("2")),
                                                              error);
            if (retry && key <= 0) {
                error = b.lastError();
            }
            if (key > 0) {
                EXPECT_TRUE(txB.commit());
            }
            return std::make_pair(key, error);
        });
        EXPECT_TRUE(waitForALockWaiter());
        EXPECT_TRUE(txA.commit());
        return seatB.get();
    }

    bool waitForALockWaiter() {
        std::unique_ptr<Database> observer = testDatabase().openAnother();
        Session s = observer->session();
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 20000) {
            if (s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM pg_stat_activity WHERE "
                                             "wait_event_type = :kind AND datname = "
                                             "current_database()"),
                              {{QStringLiteral(":kind"), QStringLiteral("Lock")}}) > 0) {
                return true;
            }
            QThread::msleep(10);
        }
        return false;
    }
};

TEST_P(KeyAllocationRaceTest, TheRetryGivesTheLoserTheNextKey) {
    const auto [key, error] = race(true);
    EXPECT_EQ(key, 2) << error.text().toStdString();
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(DISTINCT Code) FROM Whs_QTYDocH")), 2);
    EXPECT_EQ(messages().count(), 0);
}

SANDOGH_INSTANTIATE_POSTGRES_ONLY(KeyAllocationRaceTest);

}  // namespace
}  // namespace sandogh
