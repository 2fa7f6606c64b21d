// sandogh-admin internal sell: its arguments, what it prints for a sale and for a return
// that replaces an earlier one, and its refusals.

#include <gtest/gtest.h>

#include "AdminShopTest.h"
#include "data/Database.h"
#include "data/repositories/CenterBranchesRepository.h"

namespace sandogh {
namespace {

class AdminInternalSellTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Session s = db().session();
        ASSERT_TRUE(s.exec(
            QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue) VALUES "
                           "('1001', 'Bread', 2500, 2600, 0)")));
        branch = QString::number(CenterBranchesRepository::add(s, QStringLiteral("Branch"), 2));
    }
    AdminProcess::Result internal(QStringList words) {
        words.prepend(QStringLiteral("sell"));
        return runCommand(QStringLiteral("internal"), words);
    }
    QString branch;
};

TEST_P(AdminInternalSellTest, BadArgumentsAreUsageErrors) {
    const QString b = QStringLiteral("--branch");
    const QList<QStringList> cases{
        {},
        {QStringLiteral("1001")},
        {b, QStringLiteral("x"), QStringLiteral("1001")},
        {b, branch},
        {b, branch, QStringLiteral("--return"), QStringLiteral("1001")},
        {b, branch, QStringLiteral("--of"), QStringLiteral("1"), QStringLiteral("1001")},
        {b, branch, QStringLiteral("--return"), QStringLiteral("--of"), QStringLiteral("x"),
         QStringLiteral("1001")},
        {b, branch, QStringLiteral("--unknown"), QStringLiteral("1001")},
    };
    for (const QStringList& words : cases) {
        SCOPED_TRACE(words.join(u' ').toStdString());
        const AdminProcess::Result r = internal(words);
        EXPECT_EQ(r.exitCode, 2);
        EXPECT_TRUE(r.err.contains("usage: sandogh-admin internal sell"));
        EXPECT_TRUE(r.out.isEmpty());
    }
    EXPECT_EQ(runCommand(QStringLiteral("internal"), {QStringLiteral("fly")}).exitCode, 2);
}

TEST_P(AdminInternalSellTest, ASaleAndTheReturnsOfItPrintTheirNumbers) {
    AdminProcess::Result r =
        internal({QStringLiteral("--branch"), branch, QStringLiteral("1001"), QStringLiteral("3")});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=1 DocNo=1 DocSum=7500\n"));

    const QStringList ret{QStringLiteral("--branch"), branch,
                          QStringLiteral("--return"), QStringLiteral("--of"),
                          QStringLiteral("1"),        QStringLiteral("1001")};
    r = internal(ret);
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=2 DocNo=1 DocSum=2500\n"));
    // The console agrees to the question: the second return replaces the first.
    r = internal(ret);
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("Code=2 DocNo=1 DocSum=2500\nReplaced=1\n"));
}

TEST_P(AdminInternalSellTest, AnUnknownBranchFails) {
    AdminProcess::Result r =
        internal({QStringLiteral("--branch"), QStringLiteral("999"), QStringLiteral("1001")});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains("no branch 999"));
    EXPECT_TRUE(r.out.isEmpty());
}

SANDOGH_INSTANTIATE_BACKENDS(AdminInternalSellTest);

}  // namespace
}  // namespace sandogh
