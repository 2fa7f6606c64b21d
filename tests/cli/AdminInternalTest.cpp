// sandogh-admin internal sell|send|receive: the words and options accepted, and what is
// printed for a sale, a return replacing an earlier one, a send and a receive.

#include <gtest/gtest.h>

#include "AdminShopTest.h"
#include "data/repositories/CenterBranchesRepository.h"

namespace sandogh {
namespace {

class AdminInternalTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        execAll(
            {"INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue) VALUES "
             "('1001', 'Bread', 2500, 2600, 0)"});
        Session s = db().session();
        branch = QString::number(CenterBranchesRepository::add(s, QStringLiteral("Branch"), 2));
    }
    AdminProcess::Result internal(const QStringList& words) {
        return runCommand(QStringLiteral("internal"), words);
    }
    QStringList sell(const QStringList& rest) {
        return QStringList{QStringLiteral("sell"), QStringLiteral("--branch"), branch} + rest;
    }
    QString file() { return QDir(dir()).filePath(QStringLiteral("out/RptFactors.txt")); }

    QString branch;
};

TEST_P(AdminInternalTest, WrongWordsAndOptionsAreUsageErrors) {
    const QList<QStringList> wrong = {
        {},
        words("bogus"),
        words("sell"),
        words("sell 1001"),
        words("sell --branch x 1001"),
        sell({}),
        sell(words("--return 1001")),
        sell(words("--of 1 1001")),
        sell(words("--return --of x 1001")),
        sell(words("--unknown 1001")),
        words("send"),
        words("send --branch x --all-unsent"),
        words("send --branch 1"),
        words("send --branch 1 --all-unsent 7"),
        words("send --branch 1 --all-unsent --out"),
        words("receive"),
        words("receive a b"),
        words("receive --force a"),
    };
    for (const QStringList& wrongWords : wrong) {
        SCOPED_TRACE(wrongWords.join(u' ').toStdString());
        const AdminProcess::Result r = internal(wrongWords);
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_TRUE(r.err.contains("usage: sandogh-admin internal"));
        EXPECT_TRUE(r.out.isEmpty());
    }
}

TEST_P(AdminInternalTest, ASaleAndItsReturnsPrintTheirNumbersAndAnUnknownBranchFails) {
    AdminProcess::Result r = internal(sell(words("1001 3")));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=1 DocNo=1 DocSum=7500\n"));

    const QStringList ret = sell(words("--return --of 1 1001"));
    r = internal(ret);
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=2 DocNo=1 DocSum=2500\n"));
    // The console agrees to the question: the second return replaces the first.
    r = internal(ret);
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=2 DocNo=1 DocSum=2500\nReplaced=1\n"));

    r = internal(words("sell --branch 999 1001"));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains("no branch 999"));
    EXPECT_TRUE(r.out.isEmpty());
}

TEST_P(AdminInternalTest, SendPrintsTheFileAndReceivePrintsTheCounts) {
    for (int sale = 0; sale < 2; ++sale) {
        ASSERT_EQ(internal(sell(words("1001"))).exitCode, 0);
    }
    const QStringList send{QStringLiteral("send"), QStringLiteral("--branch"), branch,
                           QStringLiteral("--out"), file()};
    AdminProcess::Result r = internal(send + words("2"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QDir::toNativeSeparators(file()) + QStringLiteral("\t1\n"));
    r = internal(send + words("--all-unsent"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QDir::toNativeSeparators(file()) + QStringLiteral("\t1\n"));
    r = internal(send + words("--all-unsent"));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(
        QString::fromUtf8(r.err).contains(QStringLiteral("هيچ موردي براي ارسال انتخاب نشده است")));
    r = internal(send + words("99"));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(QString::fromUtf8(r.err).contains(QStringLiteral("no internal sale 99")));

    r = internal(words("receive") << file());
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("received 1, already here 0\n"));
    r = internal(words("receive") << file());
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_EQ(r.outText(), QStringLiteral("received 0, already here 1\n"));
    r = internal(words("receive") << QDir(dir()).filePath(QStringLiteral("x.txt")));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(QString::fromUtf8(r.err).contains(QStringLiteral("not named RptFactors.txt")));
}

SANDOGH_INSTANTIATE_BACKENDS(AdminInternalTest);

}  // namespace
}  // namespace sandogh
