// The internal documents' list, delete and reprint on both backends: the list with the
// branch as the party, the delete by kind and number with the stock that
// follows and a failure that leaves everything as it was, and a number on two dates that
// asks for the date (the ordinary reprint differs only in the documents it reads).

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "SavedSalesTest.h"
#include "data/procedures/StockProcedures.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "data/repositories/InternalSaleListQuery.h"
#include "sales/ReceiptReader.h"
#include "sales/SaleDelete.h"
#include "sales/SaleListModel.h"
#include "sales/SaleReceipt.h"
#include "sales/SaleReprint.h"
#include "support/LaunchRecorder.h"

namespace sandogh::test {
namespace {

class InternalDocumentsTest : public SavedSalesTest {
protected:
    void SetUpShop() override {
        SavedSalesTest::SetUpShop();
        Session s = db().session();
        // Stored with the Arabic letter forms; searched as typed with the Persian ones.
        m_branch = CenterBranchesRepository::add(s, QStringLiteral("شعبه يك"),
                                                 CenterBranchesRepository::kBranch);
        m_other = CenterBranchesRepository::add(s, QStringLiteral("Branch B"),
                                                CenterBranchesRepository::kBranch);
        ASSERT_GT(m_branch, 0);
        ASSERT_GT(m_other, 0);
    }

    // An internal document with its lines as the internal sale screen leaves it.
    qint64 addInternal(int transType, const QString& docNo,
                       const QList<QPair<QString, double>>& lines,
                       const QString& date = QStringLiteral("1404/01/01"), int branch = 0,
                       int station = 1) {
        const qint64 code = ++m_lastCode;
        insert(
            "Whs_QTYDocHInternal (Code, DocNo, TransType, CompanyID, DocDate, StationID, DocSum)",
            {code, docNo, transType, branch == 0 ? m_branch : branch, date, station,
             1000.0 * code});
        for (const auto& [barcode, qty] : lines) {
            insert("Whs_QTYDocDInternal (Code, EAN_Code, Qty, Fee, Price)",
                   {code, barcode, qty, 100, 100 * qty});
        }
        return code;
    }
    void repairStock() {
        Session s = db().session();
        ASSERT_TRUE(procedures::sp_StockRepair(s));
    }
    qint64 internalRows(qint64 code) {
        const SqlBinds c{{QStringLiteral(":c"), code}};
        return count(QStringLiteral("Whs_QTYDocHInternal"), QStringLiteral("Code = :c"), c) +
               count(QStringLiteral("Whs_QTYDocDInternal"), QStringLiteral("Code = :c"), c);
    }
    SaleDelete deleter() { return SaleDelete(db(), messages(), clock(), {7, 1}); }

    int m_branch = 0;
    int m_other = 0;
    qint64 m_lastCode = 0;
};

// The list's paging is the ordinary list's (SaleListTest); here its internal rows.
TEST_P(InternalDocumentsTest, TheListReadsInternalDocumentsWithTheBranchAsParty) {
    addInternal(2, QStringLiteral("1"), {});
    addInternal(2, QStringLiteral("2"), {}, QStringLiteral("1404/01/01"), m_other);
    addInternal(3, QStringLiteral("9"), {});
    // An ordinary sale, whose number the list must not show.
    addDocument(900, 2, QStringLiteral("777"), QStringLiteral("2222"), 1, 1000);

    SaleListModel model(db(), DocumentFamily::Internal);
    model.load(SaleList::Choice::Last500, {});
    ASSERT_EQ(model.rowCount(), 2);  // the sales, newest number first
    EXPECT_EQ(model.row(0).docNo, QStringLiteral("2"));
    EXPECT_EQ(model.row(0).customerName, QStringLiteral("Branch B"));
    EXPECT_EQ(model.row(1).customerName, QStringLiteral("شعبه يك"));
    EXPECT_EQ(model.row(1).customerId, m_branch);
    EXPECT_EQ(model.headerData(SaleListModel::CustomerName, Qt::Horizontal).toString(),
              QStringLiteral("شعبه"));
    SaleListQuery::Filter f;
    f.transType = 3;
    model.load(SaleList::Choice::All, f);
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.row(0).docNo, QStringLiteral("9"));
}

TEST_P(InternalDocumentsTest, TheBranchNumberAndDateFiltersCombine) {
    const qint64 a = addInternal(2, QStringLiteral("1"), {}, QStringLiteral("1404/01/01"));
    const qint64 b = addInternal(2, QStringLiteral("2"), {}, QStringLiteral("1404/01/02"));
    addInternal(2, QStringLiteral("3"), {}, QStringLiteral("1404/01/02"), m_other);
    Session s = db().session();
    const auto codes = [&](const SaleListQuery::Filter& f) {
        QList<qint64> list;
        for (const SaleListQuery::Row& r : InternalSaleListQuery::page(s, f, true, {}, 50)) {
            list << r.code;
        }
        return list;
    };
    SaleListQuery::Filter f;
    f.customer = QStringLiteral("شعبه یک");  // typed with the Persian yeh and kaf
    EXPECT_EQ(codes(f), (QList<qint64>{b, a}));
    f.docDate = QStringLiteral("1404/01/02");
    EXPECT_EQ(codes(f), (QList<qint64>{b}));
    f.docNo = QStringLiteral("1");
    EXPECT_TRUE(codes(f).isEmpty());
}

TEST_P(InternalDocumentsTest, TheDeleteFindsByKindAndNumberAndStockFollowsTheRemainingLines) {
    const qint64 sale = addInternal(2, QStringLiteral("5"),
                                    {{QStringLiteral("2222"), 4}, {QStringLiteral("3333"), 2}});
    const qint64 back = addInternal(3, QStringLiteral("5"), {{QStringLiteral("2222"), 1}});
    const qint64 kept = addInternal(2, QStringLiteral("6"), {{QStringLiteral("2222"), 3}});
    repairStock();
    ASSERT_EQ(stock(QStringLiteral("2222")), 50 - 4 + 1 - 3);

    struct Case {
        int transType;
        QString docNo;
        SaleDelete::Outcome outcome;
        QString message;
    };
    const QList<Case> cases{
        {2, QStringLiteral("77"), SaleDelete::Outcome::NotFound, SaleDelete::notFoundText()},
        {3, QStringLiteral("6"), SaleDelete::Outcome::NotFound, SaleDelete::notFoundText()},
        {2, QStringLiteral(" 5 "), SaleDelete::Outcome::Deleted, SaleDelete::internalDoneText()},
        {2, QStringLiteral("5"), SaleDelete::Outcome::NotFound, SaleDelete::notFoundText()},
    };
    for (const Case& c : cases) {
        messages().clear();
        EXPECT_EQ(deleter().deleteInternal(c.transType, c.docNo), c.outcome)
            << c.transType << " " << c.docNo.toStdString();
        EXPECT_EQ(messages().countOf(c.message), 1) << c.docNo.toStdString();
    }
    EXPECT_EQ(internalRows(sale), 0);
    EXPECT_EQ(internalRows(back), 2);  // the return with the same number stays
    EXPECT_EQ(internalRows(kept), 2);
    EXPECT_EQ(stock(QStringLiteral("2222")), 50 + 1 - 3);
    EXPECT_EQ(stock(QStringLiteral("3333")), 50);
}

TEST_P(InternalDocumentsTest, AFailureInsideTheDeleteLeavesTheDocumentAndStockAsTheyWere) {
    const qint64 sale = addInternal(2, QStringLiteral("5"), {{QStringLiteral("2222"), 4}});
    repairStock();
    const double before = stock(QStringLiteral("2222"));
    // The header goes after the lines and the stock: everything before it has run.
    refuse(QStringLiteral("Whs_QTYDocHInternal"), QStringLiteral("DELETE"));
    EXPECT_EQ(deleter().deleteInternal(2, QStringLiteral("5")), SaleDelete::Outcome::Failed);
    EXPECT_EQ(messages().countOf(Database::connectionFailureMessage()), 1);
    EXPECT_EQ(messages().countOf(SaleDelete::internalDoneText()), 0);
    EXPECT_EQ(internalRows(sale), 2);
    EXPECT_EQ(stock(QStringLiteral("2222")), before);
}

TEST_P(InternalDocumentsTest, ReprintAsksTheDateOfANumberOnTwoDatesAndPrintsTheBranch) {
    addInternal(2, QStringLiteral("8"), {{QStringLiteral("2222"), 1}});
    const qint64 second = addInternal(2, QStringLiteral("8"), {{QStringLiteral("3333"), 2}},
                                      QStringLiteral("1404/01/02"));
    addInternal(2, QStringLiteral("9"), {{QStringLiteral("3333"), 2}}, QStringLiteral("1404/01/02"),
                0, 2);
    // An ordinary sale numbered 8 is not an internal one.
    addDocument(900, 2, QStringLiteral("8"), QStringLiteral("2222"), 1, 1000);

    SaleReprint reprint(db(), messages(), DocumentFamily::Internal);
    EXPECT_EQ(reprint.lastNumber(2, 1), QStringLiteral("8"));
    EXPECT_EQ(reprint.lastNumber(3, 1), QString());
    EXPECT_EQ(reprint.find(2, QStringLiteral("8")).status, SaleReprint::Lookup::Status::NeedsDate);
    const SaleReprint::Lookup found =
        reprint.find(2, QStringLiteral("8"), QStringLiteral("1404/01/02"));
    ASSERT_EQ(found.status, SaleReprint::Lookup::Status::Found);
    EXPECT_EQ(found.code, second);
    EXPECT_EQ(reprint.find(3, QStringLiteral("8")).status, SaleReprint::Lookup::Status::NotFound);
    EXPECT_EQ(reprint.find(2, QStringLiteral("8"), QStringLiteral("1404/01/03")).status,
              SaleReprint::Lookup::Status::NotFound);
    EXPECT_EQ(messages().countOf(ReceiptReader::notFoundText()), 2);
    // The ordinary documents' reprint reads the ordinary sales only.
    EXPECT_EQ(SaleReprint(db(), messages()).find(2, QStringLiteral("8")).code, 900);

    QTemporaryDir folder;
    QFile program(folder.filePath(QStringLiteral("Companion.exe")));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.close();
    setOption("Programs", "Companion", program.fileName());
    LaunchRecorder launcher;
    SaleReceipt receipt(db(), settings(), messages(), launcher, folder.path(), nullptr, nullptr);
    ASSERT_TRUE(SaleReprint::print(receipt, found.code, false, DocumentFamily::Internal));
    ASSERT_EQ(launcher.calls.size(), 1);
    const QString command = launcher.calls.first().arguments.value(0);
    for (const QString& part :
         {ReceiptReader::reprintTitle(), QStringLiteral("شعبه يك"), QStringLiteral("1404/01/02")}) {
        EXPECT_TRUE(command.contains(part))
            << part.toStdString() << " in " << command.toStdString();
    }
}

SANDOGH_INSTANTIATE_BACKENDS(InternalDocumentsTest);

}  // namespace
}  // namespace sandogh::test
