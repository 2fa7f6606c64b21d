// sandogh-admin internal send|receive: the words and options accepted, and what is printed.

#include <gtest/gtest.h>

#include "AdminShopTest.h"
#include "data/Database.h"

namespace sandogh {
namespace {

class AdminInternalTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Session s = db().session();
        ASSERT_TRUE(
            s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost) VALUES "
                                  "('5555', 'G', 100)")));
        ASSERT_TRUE(
            s.exec(QStringLiteral("INSERT INTO tblCenterBranches (Name, TypeNo) VALUES "
                                  "('B', 2)")));
        branch = s.scalarText(QStringLiteral("SELECT MAX(ID) FROM tblCenterBranches"));
        ASSERT_TRUE(s.exec(
            QStringLiteral("INSERT INTO Whs_QTYDocHInternal (Code, DocNo, TransType, CompanyID, "
                           "DocDate) VALUES (1, '7', 2, :b, '1404/01/01'), (2, '8', 2, :b, "
                           "'1404/01/01')"),
            {{QStringLiteral(":b"), branch.toInt()}}));
        ASSERT_TRUE(s.exec(QStringLiteral(
            "INSERT INTO Whs_QTYDocDInternal (Code, EAN_Code, Qty, Fee, Price) VALUES "
            "(1, '5555', 1, 100, 100), (2, '5555', 2, 100, 200)")));
    }
    AdminProcess::Result internal(const QStringList& words) {
        return runCommand(QStringLiteral("internal"), words);
    }
    QString file() { return QDir(dir()).filePath(QStringLiteral("out/RptFactors.txt")); }

    QString branch;
};

TEST_P(AdminInternalTest, WrongWordsAndOptionsAreUsageErrors) {
    const QList<QStringList> wrong = {
        {},
        {QStringLiteral("bogus")},
        {QStringLiteral("send")},
        {QStringLiteral("send"), QStringLiteral("--branch"), QStringLiteral("x"),
         QStringLiteral("--all-unsent")},
        {QStringLiteral("send"), QStringLiteral("--branch"), QStringLiteral("1")},
        {QStringLiteral("send"), QStringLiteral("--branch"), QStringLiteral("1"),
         QStringLiteral("--all-unsent"), QStringLiteral("7")},
        {QStringLiteral("send"), QStringLiteral("--branch"), QStringLiteral("1"),
         QStringLiteral("--all-unsent"), QStringLiteral("--out")},
        {QStringLiteral("receive")},
        {QStringLiteral("receive"), QStringLiteral("a"), QStringLiteral("b")},
        {QStringLiteral("receive"), QStringLiteral("--force"), QStringLiteral("a")},
    };
    for (const QStringList& words : wrong) {
        SCOPED_TRACE(words.join(u' ').toStdString());
        const AdminProcess::Result r = internal(words);
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_TRUE(QString::fromUtf8(r.err).contains(QStringLiteral("usage:")));
        EXPECT_TRUE(r.out.isEmpty());
    }
}

TEST_P(AdminInternalTest, SendPrintsTheFileAndReceivePrintsTheCounts) {
    AdminProcess::Result r = internal({QStringLiteral("send"), QStringLiteral("--branch"), branch,
                                       QStringLiteral("--out"), file(), QStringLiteral("8")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QDir::toNativeSeparators(file()) + QStringLiteral("\t1\n"));
    r = internal({QStringLiteral("send"), QStringLiteral("--branch"), branch,
                  QStringLiteral("--all-unsent"), QStringLiteral("--out"), file()});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QDir::toNativeSeparators(file()) + QStringLiteral("\t1\n"));
    r = internal({QStringLiteral("send"), QStringLiteral("--branch"), branch,
                  QStringLiteral("--all-unsent"), QStringLiteral("--out"), file()});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(
        QString::fromUtf8(r.err).contains(QStringLiteral("هيچ موردي براي ارسال انتخاب نشده است")));
    r = internal(
        {QStringLiteral("send"), QStringLiteral("--branch"), branch, QStringLiteral("99")});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(QString::fromUtf8(r.err).contains(QStringLiteral("no internal sale 99")));

    r = internal({QStringLiteral("receive"), file()});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("received 1, already here 0\n"));
    r = internal({QStringLiteral("receive"), file()});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.outText(), QStringLiteral("received 0, already here 1\n"));
    r = internal({QStringLiteral("receive"), QDir(dir()).filePath(QStringLiteral("x.txt"))});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(QString::fromUtf8(r.err).contains(QStringLiteral("not named RptFactors.txt")));
}

}  // namespace

SANDOGH_INSTANTIATE_BACKENDS(AdminInternalTest);

}  // namespace sandogh
