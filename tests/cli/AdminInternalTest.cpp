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
    const QString b = QStringLiteral("--branch");
    const QString send = QStringLiteral("send");
    const QString all = QStringLiteral("--all-unsent");
    const QList<QStringList> wrong = {
        {},
        {QStringLiteral("bogus")},
        {QStringLiteral("sell")},
        {QStringLiteral("sell"), QStringLiteral("1001")},
        {QStringLiteral("sell"), b, QStringLiteral("x"), QStringLiteral("1001")},
        sell({}),
        sell({QStringLiteral("--return"), QStringLiteral("1001")}),
        sell({QStringLiteral("--of"), QStringLiteral("1"), QStringLiteral("1001")}),
        sell({QStringLiteral("--return"), QStringLiteral("--of"), QStringLiteral("x"),
              QStringLiteral("1001")}),
        sell({QStringLiteral("--unknown"), QStringLiteral("1001")}),
        {send},
        {send, b, QStringLiteral("x"), all},
        {send, b, QStringLiteral("1")},
        {send, b, QStringLiteral("1"), all, QStringLiteral("7")},
        {send, b, QStringLiteral("1"), all, QStringLiteral("--out")},
        {QStringLiteral("receive")},
        {QStringLiteral("receive"), QStringLiteral("a"), QStringLiteral("b")},
        {QStringLiteral("receive"), QStringLiteral("--force"), QStringLiteral("a")},
    };
    for (const QStringList& words : wrong) {
        SCOPED_TRACE(words.join(u' ').toStdString());
        const AdminProcess::Result r = internal(words);
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_TRUE(r.err.contains("usage: sandogh-admin internal"));
        EXPECT_TRUE(r.out.isEmpty());
    }
}

TEST_P(AdminInternalTest, ASaleAndItsReturnsPrintTheirNumbersAndAnUnknownBranchFails) {
    AdminProcess::Result r = internal(sell({QStringLiteral("1001"), QStringLiteral("3")}));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=1 DocNo=1 DocSum=7500\n"));

    const QStringList ret = sell({QStringLiteral("--return"), QStringLiteral("--of"),
                                  QStringLiteral("1"), QStringLiteral("1001")});
    r = internal(ret);
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=2 DocNo=1 DocSum=2500\n"));
    // The console agrees to the question: the second return replaces the first.
    r = internal(ret);
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=2 DocNo=1 DocSum=2500\nReplaced=1\n"));

    r = internal({QStringLiteral("sell"), QStringLiteral("--branch"), QStringLiteral("999"),
                  QStringLiteral("1001")});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains("no branch 999"));
    EXPECT_TRUE(r.out.isEmpty());
}

TEST_P(AdminInternalTest, SendPrintsTheFileAndReceivePrintsTheCounts) {
    ASSERT_EQ(internal(sell({QStringLiteral("1001")})).exitCode, 0);
    ASSERT_EQ(internal(sell({QStringLiteral("1001")})).exitCode, 0);
    const QStringList send{QStringLiteral("send"), QStringLiteral("--branch"), branch,
                           QStringLiteral("--out"), file()};
    AdminProcess::Result r = internal(send + QStringList{QStringLiteral("2")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QDir::toNativeSeparators(file()) + QStringLiteral("\t1\n"));
    r = internal(send + QStringList{QStringLiteral("--all-unsent")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QDir::toNativeSeparators(file()) + QStringLiteral("\t1\n"));
    r = internal(send + QStringList{QStringLiteral("--all-unsent")});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(
        QString::fromUtf8(r.err).contains(QStringLiteral("هيچ موردي براي ارسال انتخاب نشده است")));
    r = internal(send + QStringList{QStringLiteral("99")});
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

SANDOGH_INSTANTIATE_BACKENDS(AdminInternalTest);

}  // namespace
}  // namespace sandogh
