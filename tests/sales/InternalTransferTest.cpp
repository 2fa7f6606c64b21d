// Internal sale invoices carried from one shop to another in RptFactors.txt, on both
// backends: the sent state, the branch's stock rising by exactly the quantities, a second
// receipt of the same file adding nothing, and refused files leaving nothing written.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <thread>
#include <vector>

#include "SaleShopTest.h"
#include "data/procedures/StockDocumentWriter.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "sales/InternalReceive.h"
#include "sales/InternalSend.h"
#include "sales/SaleDelete.h"

namespace sandogh::test {
namespace {

using namespace procedures;
using Outcome = InternalReceive::Outcome;

// A note with the file's separator and a line break in it.
const QString kNote = QStringLiteral("يادداشت, با ويرگول\nو سطر دوم");

class InternalTransferTest : public SaleShopTest {
protected:
    void SetUpShop() override {
        bool skip = false;
        m_branchShop = createOrReport(backend(), &skip);
        ASSERT_NE(m_branchShop, nullptr);
        const Migrator::Result r = Migrator(branchDb()).apply(shopMigrations());
        ASSERT_TRUE(r.ok) << r.message.toStdString();
        for (const QString& barcode : {QStringLiteral("1111"), QStringLiteral("2222")}) {
            addGoods({barcode, 5000});
            Session b = branchDb().session();
            ASSERT_TRUE(b.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost) VALUES "
                                              "(:b, 'G', 5000)"),
                               {{QStringLiteral(":b"), barcode}}));
        }
        addGoods({QStringLiteral("3333"), 700});  // the centre's only
        Session s = db().session();
        m_branch = CenterBranchesRepository::add(s, QStringLiteral("شعبه شمال"),
                                                 CenterBranchesRepository::kBranch);
        ASSERT_GT(m_branch, 0);
    }
    void TearDown() override {
        m_branchShop.reset();
        SaleShopTest::TearDown();
    }

    Database& branchDb() { return m_branchShop->database(); }
    RecordingMessageService& branchMessages() { return m_branchShop->messages(); }

    // An internal sale of the centre to the branch, its stock taken out.
    qint64 sellInternally(const QString& docNo, const QList<std::pair<QString, double>>& lines) {
        StockDocumentHeader h;
        h.docNo = docNo;
        h.transType = kSale;
        h.companyId = m_branch;
        h.docDate = QStringLiteral("1404/01/01");
        h.note = kNote;
        QList<Line> rows;
        for (const auto& [barcode, qty] : lines) {
            rows.append({barcode, qty, 5000, 5000 * qty});
        }
        const qint64 code = writeDocument(h, rows, true);
        Session s = db().session();
        EXPECT_TRUE(StockDocumentWriter::addInternalToStock(s, code));
        return code;
    }

    InternalSend sender() { return InternalSend(db(), messages()); }
    InternalReceive receiver() {
        return InternalReceive(branchDb(), branchMessages(), clock(), {3, 2});
    }
    // The file of the given invoices, sent to a folder of its own.
    QString send(const QList<qint64>& codes) {
        const QString folder = m_files.filePath(QStringLiteral("Velbari"));
        InternalSend s = sender();
        EXPECT_EQ(s.send(m_branch, codes, InternalSend::pathIn(folder), QStringLiteral("Shop A")),
                  InternalSend::Outcome::Sent);
        return s.writtenFile();
    }

    double branchStock(const QString& barcode) {
        Session b = branchDb().session();
        return b.scalarNumber(QStringLiteral("SELECT Stock FROM Stock WHERE Barcode = :b"),
                              {{QStringLiteral(":b"), barcode}});
    }
    qint64 branchDocuments() {
        Session b = branchDb().session();
        return b.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocHInternal")) +
               b.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocDInternal"));
    }
    QList<bool> sentStates() {
        QList<bool> states;
        for (const auto& invoice : sender().invoices(m_branch)) {
            states << invoice.sent;
        }
        return states;
    }
    QString writeFile(const QString& name, const QByteArray& bytes) {
        QDir().mkpath(m_files.filePath(name).section(u'/', 0, -2));
        QFile f(m_files.filePath(name));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        return f.fileName();
    }
    static QByteArray read(const QString& path) {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    int m_branch = 0;
    std::atomic<int> m_failed{0};
    QTemporaryDir m_files;
    std::unique_ptr<TestDatabase> m_branchShop;
};

TEST_P(InternalTransferTest, TheBranchStockRisesByTheSentQuantitiesOnceOnly) {
    const qint64 first = sellInternally(QStringLiteral("1"), {{QStringLiteral("1111"), 2.5}});
    const qint64 second = sellInternally(
        QStringLiteral("2"), {{QStringLiteral("1111"), 4}, {QStringLiteral("2222"), 7}});
    sellInternally(QStringLiteral("3"), {{QStringLiteral("2222"), 100}});  // not ticked
    EXPECT_EQ(sentStates(), (QList<bool>{false, false, false}));

    const QString path = send({first, second});
    EXPECT_EQ(QFileInfo(path).fileName(), QStringLiteral("RptFactors.txt"));
    EXPECT_EQ(messages().countOf(InternalSend::doneText()), 1);
    EXPECT_EQ(sentStates(), (QList<bool>{true, true, false}));

    const double stock1 = branchStock(QStringLiteral("1111"));
    const double stock2 = branchStock(QStringLiteral("2222"));
    InternalReceive r = receiver();
    ASSERT_EQ(r.receive(path), Outcome::Received) << r.problem().toStdString();
    EXPECT_EQ(r.receivedCount(), 2);
    EXPECT_EQ(branchMessages().countOf(InternalReceive::doneText()), 1);
    EXPECT_DOUBLE_EQ(branchStock(QStringLiteral("1111")), stock1 + 6.5);
    EXPECT_DOUBLE_EQ(branchStock(QStringLiteral("2222")), stock2 + 7);
    {
        // Receipts from the centre row, the note and the centre's number kept.
        Session b = branchDb().session();
        EXPECT_EQ(
            b.scalarInt64(
                QStringLiteral(
                    "SELECT COUNT(*) FROM Whs_QTYDocHInternal H INNER JOIN tblCenterBranches C "
                    "ON C.ID = H.CompanyID WHERE H.TransType = 1 AND C.TypeNo = 1 AND "
                    "H.Atf = '2' AND H.UserID = 3 AND H.StationID = 2 AND H.Note = :n"),
                {{QStringLiteral(":n"), kNote}}),
            1);
    }

    const qint64 documents = branchDocuments();
    EXPECT_EQ(receiver().receive(path), Outcome::AlreadyReceived);
    EXPECT_EQ(branchMessages().countOf(InternalReceive::alreadyReceivedText()), 1);
    EXPECT_EQ(branchDocuments(), documents);
    EXPECT_DOUBLE_EQ(branchStock(QStringLiteral("1111")), stock1 + 6.5);
}

TEST_P(InternalTransferTest, TwoDesksReceivingTheSameFileAtOnceAddItOnce) {
    const QString path = send({sellInternally(QStringLiteral("1"), {{QStringLiteral("2222"), 3}}),
                               sellInternally(QStringLiteral("2"), {{QStringLiteral("2222"), 4}})});
    std::atomic<int> received{0};
    std::atomic<int> already{0};
    std::vector<std::thread> desks;
    for (int desk = 0; desk < 2; ++desk) {
        desks.emplace_back([&, desk] {
            RecordingMessageService deskMessages;
            std::unique_ptr<Database> db = m_branchShop->openAnother(&deskMessages);
            const Outcome o =
                InternalReceive(*db, deskMessages, clock(), {3, desk + 1}).receive(path);
            ++(o == Outcome::Received          ? received
               : o == Outcome::AlreadyReceived ? already
                                               : m_failed);
        });
    }
    for (std::thread& t : desks) {
        t.join();
    }
    EXPECT_EQ(received.load(), 1);
    EXPECT_EQ(already.load(), 1);
    EXPECT_EQ(m_failed.load(), 0);
    EXPECT_DOUBLE_EQ(branchStock(QStringLiteral("2222")), 7);
}

TEST_P(InternalTransferTest, ARefusedFileWritesNothing) {
    const qint64 code = sellInternally(QStringLiteral("1"),
                                       {{QStringLiteral("1111"), 3}, {QStringLiteral("2222"), 1}});
    const qint64 unknown = sellInternally(QStringLiteral("2"), {{QStringLiteral("3333"), 1}});
    const QByteArray good = read(send({code}));
    const QByteArray withUnknown = read(send({code, unknown}));
    // The ways a file can be damaged: TransferFileTest; here one of them is refused whole.
    const QString rpt = QStringLiteral("RptFactors.txt");
    const struct {
        const char* name;
        QString path;
        Outcome outcome;
        QString message;
    } cases[] = {
        {"unknown barcode", writeFile(QStringLiteral("u/") + rpt, withUnknown),
         Outcome::UnknownGoods, InternalReceive::unknownGoodsText()},
        {"cut short", writeFile(QStringLiteral("t/") + rpt, good.left(good.size() * 2 / 3)),
         Outcome::Garbled, InternalReceive::garbledText()},
        {"another name", writeFile(QStringLiteral("Factors.txt"), good), Outcome::BadName,
         InternalReceive::badNameText()},
        {"no file", QString(), Outcome::NoFile, InternalReceive::noFileText()},
    };
    const double stock = branchStock(QStringLiteral("1111"));
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        branchMessages().clear();
        EXPECT_EQ(receiver().receive(c.path), c.outcome);
        EXPECT_EQ(branchMessages().countOf(c.message), 1);
        EXPECT_EQ(branchDocuments(), 0);
        EXPECT_DOUBLE_EQ(branchStock(QStringLiteral("1111")), stock);
    }
    EXPECT_EQ(receiver().receive(writeFile(QStringLiteral("ok/") + rpt, good)), Outcome::Received);
    EXPECT_DOUBLE_EQ(branchStock(QStringLiteral("1111")), stock + 3);
}

TEST_P(InternalTransferTest, NothingTickedOrNoBranchIsSaidAndNothingMarked) {
    sellInternally(QStringLiteral("1"), {{QStringLiteral("1111"), 1}});
    EXPECT_EQ(sender().send(m_branch, {}, m_files.filePath(QStringLiteral("x/RptFactors.txt")),
                            QStringLiteral("A")),
              InternalSend::Outcome::NothingTicked);
    EXPECT_EQ(messages().countOf(InternalSend::nothingTickedText()), 1);
    EXPECT_EQ(sentStates(), QList<bool>{false});
    EXPECT_FALSE(QFile::exists(m_files.filePath(QStringLiteral("x/RptFactors.txt"))));
    // An invoice gone since the list was read stops the send before anything is marked.
    const qint64 kept = sellInternally(QStringLiteral("2"), {{QStringLiteral("2222"), 1}});
    EXPECT_EQ(
        sender().send(m_branch, {kept, kept + 50},
                      m_files.filePath(QStringLiteral("x/RptFactors.txt")), QStringLiteral("A")),
        InternalSend::Outcome::Failed);
    EXPECT_EQ(messages().countOf(SaleDelete::notFoundText()), 1);
    EXPECT_EQ(sentStates(), (QList<bool>{false, false}));
    EXPECT_FALSE(QFile::exists(m_files.filePath(QStringLiteral("x/RptFactors.txt"))));

    ASSERT_EQ(sender().branches()->size(), 1);
    exec(QStringLiteral("DELETE FROM tblCenterBranches"));
    EXPECT_TRUE(sender().branches()->isEmpty());
    EXPECT_EQ(messages().countOf(InternalSend::noBranchesText()), 1);
}

}  // namespace

SANDOGH_INSTANTIATE_BACKENDS(InternalTransferTest);

}  // namespace sandogh::test
