// sandogh-admin sales: the list as tab-separated rows with its choice and filters, a delete,
// and a reprint that asks for the date of a number found on two dates.

#include <gtest/gtest.h>

#include "AdminShopTest.h"
#include "data/Database.h"
#include "data/repositories/CenterBranchesRepository.h"
#include "data/repositories/SearchKeys.h"

namespace sandogh {
namespace {

class AdminSalesTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Session s = db().session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Code, Name, Value1, "
                                          "NameKey) VALUES (40, 10, 'C', :n, :f, :key)"),
                           {{QStringLiteral(":n"), QStringLiteral("رضا")},
                            {QStringLiteral(":f"), QStringLiteral("کریمی")},
                            {QStringLiteral(":key"),
                             SearchKeys::party(QStringLiteral("رضا"), QStringLiteral("کریمی"))}}));
        ASSERT_TRUE(s.exec(QStringLiteral(
            "INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, CompanyID, DocDate, DocSum, Base) "
            "VALUES (5, '1', 2, 40, '1404/01/01', 25000, 'B-1'), "
            "(6, '1', 2, NULL, '1404/01/02', 3000, ''), (7, '2', 2, NULL, '1404/01/02', 4000, "
            "'')")));
    }
    AdminProcess::Result sales(const QStringList& words) {
        return runCommand(QStringLiteral("sales"), words);
    }
};

TEST_P(AdminSalesTest, ListsDeletesAndReprints) {
    AdminProcess::Result r = sales(words("list"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(), QStringLiteral("2\t1404/01/02\t\t4000\t\t0\t7\t0\t0\n"
                                          "1\t1404/01/02\t\t3000\t\t0\t6\t0\t0\n"
                                          "1\t1404/01/01\tرضا کریمی\t25000\tB-1\t0\t5\t0\t40\n"));
    r = sales(words("list --first --customer كريمي --date 1404/01/01"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(r.outText().startsWith(QStringLiteral("1\t1404/01/01\t")));
    EXPECT_EQ(r.outText().count(u'\n'), 1);

    r = sales(words("reprint --number 1"));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(QString::fromUtf8(r.err).contains(QStringLiteral("--date")));
    r = sales(words("reprint --number 1 --date 1404/01/02"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(r.outText().contains(QStringLiteral(",چاپ مجدد,6,")));

    r = sales(words("delete --number 2 --date 1404/01/02"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(QString::fromUtf8(r.err).contains(QStringLiteral("عمليات حذف با موفقيت انجام شد")));
    EXPECT_EQ(db().session().scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 2);
}

TEST_P(AdminSalesTest, TheInternalSwitchListsAndDeletesInternalDocuments) {
    Session s = db().session();
    const int branch = CenterBranchesRepository::add(s, QStringLiteral("شعبه ۲"),
                                                     CenterBranchesRepository::kBranch);
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Whs_QTYDocHInternal (Code, DocNo, TransType, "
                                      "CompanyID, DocDate, DocSum) VALUES (1, '1', 2, :b, "
                                      "'1404/01/01', 700)"),
                       {{QStringLiteral(":b"), branch}}));
    AdminProcess::Result r = sales(words("list --internal"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(),
              QStringLiteral("1\t1404/01/01\tشعبه ۲\t700\t\t0\t1\t0\t%1\n").arg(branch));
    r = sales(words("delete --internal --number 1"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocHInternal")), 0);
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 3);
}

TEST_P(AdminSalesTest, BadArgumentsAreRefused) {
    const struct {
        const char* words;
        const char* err;
    } cases[] = {
        {"", "expected one of"},          {"list --kind 5", "--kind"},
        {"list --all --first", "one of"}, {"delete --number 1", "--date"},
        {"reprint", "--number"},          {"list --internal --kind 1", "--kind 2 or 3"},
    };
    for (const auto& c : cases) {
        const AdminProcess::Result r = sales(words(c.words));
        EXPECT_EQ(r.exitCode, 2) << c.words;
        EXPECT_TRUE(QString::fromUtf8(r.err).contains(QString::fromUtf8(c.err)))
            << r.err.toStdString();
    }
}

SANDOGH_INSTANTIATE_BACKENDS(AdminSalesTest);

}  // namespace
}  // namespace sandogh
