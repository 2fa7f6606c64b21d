#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "SaleShopTest.h"
#include "devices/CompanionHandOff.h"
#include "sales/PaymentAccounts.h"
#include "sales/PaymentSplit.h"
#include "sales/SettlementTexts.h"
#include "sales/TerminalHandOffs.h"
#include "support/LaunchRecorder.h"

namespace sandogh::test {
namespace {

class PaymentAccountsTest : public SaleShopTest {
protected:
    int account(int code, int parentCode, const QString& name, bool open = true) {
        insert("tblAccountingGroup (Code, ParentCode, Name, IsOpen)",
               {code, parentCode, name, open ? 1 : 0});
        return ShopFixture::account(code);
    }
};

TEST_P(PaymentAccountsTest, OpenBankLedgersAndTheCashBoxWithTheirTerminals) {
    const int cash = account(12, 1, QStringLiteral("صندوق"));
    const int mellat = account(901, 9, QStringLiteral("Mellat"));
    const int closed = account(902, 9, QStringLiteral("Closed"), false);
    account(101, 10, QStringLiteral("Customers"));
    account(13, 1, QStringLiteral("Petty"));
    const int saman = account(903, 9, QStringLiteral("Saman"));
    insert("tblBanks (AccountingGroupId, PosId)", {mellat, qint64(31005566)});
    insert("tblBanks (AccountingGroupId, PosId)", {saman, QVariant()});

    PaymentAccounts accounts(db());
    QList<int> ids;
    for (const PaymentAccounts::Account& a : accounts.accounts()) {
        ids << a.id;
    }
    EXPECT_EQ(ids, (QList<int>{cash, mellat, saman}));
    EXPECT_FALSE(ids.contains(closed));
    EXPECT_EQ(accounts.posIdOf(mellat), QStringLiteral("31005566"));
    EXPECT_EQ(accounts.posIdOf(saman), QString());
    EXPECT_EQ(accounts.posIdOf(cash), QString());
    EXPECT_EQ(messages().count(), 0);
}

TEST(PaymentSplit, RowsMustComeToThePayableAmount) {
    const auto row = [](SalePayment::Kind kind, double amount) {
        SalePayment p;
        p.kind = kind;
        p.amount = amount;
        return p;
    };
    struct Case {
        const char* name;
        QList<SalePayment> rows;
        double payable;
        bool addsUp;
        double remaining;
    } const cases[] = {
        {"empty", {}, 0, false, 0},
        {"one", {row(SalePayment::Cash, 95000)}, 95000, true, 0},
        {"split",
         {row(SalePayment::Cash, 45000), row(SalePayment::BankTerminal, 50000)},
         95000,
         true,
         0},
        {"short", {row(SalePayment::Cheque, 94999)}, 95000, false, 1},
        {"over",
         {row(SalePayment::Cash, 60000), row(SalePayment::Cash, 40000)},
         95000,
         false,
         -5000},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(PaymentSplit::addsUp(c.rows, c.payable), c.addsUp);
        EXPECT_DOUBLE_EQ(PaymentSplit::remaining(c.rows, c.payable), c.remaining);
    }
    EXPECT_EQ(PaymentSplit::kindName(SalePayment::Cash), QStringLiteral("نقدي"));
    EXPECT_EQ(PaymentSplit::kindName(SalePayment::BankTerminal), QStringLiteral("پوز بانکي"));
    EXPECT_EQ(PaymentSplit::kindName(SalePayment::Cheque), QStringLiteral("چک"));
    EXPECT_TRUE(PaymentSplit::mismatchMessage(100000, 95000).contains(QStringLiteral("95,000")));
}

TEST(TerminalHandOffs, EachTerminalGetsItsCommandAndTheWholeAmount) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    ASSERT_TRUE(QDir(dir.path()).mkpath(QStringLiteral("KotrimoAcc")));
    const QString program = dir.filePath(QStringLiteral("KotrimoAcc/KotrimoAcc.exe"));
    QFile file(program);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    LaunchRecorder launcher;
    CompanionHandOff companion(launcher, program);
    TerminalHandOffs terminals(companion);

    using T = TerminalHandOffs::Terminal;
    const struct {
        T terminal;
        const char* command;
    } cases[] = {
        {T::Mellat, "mnuPosMellat,"},
        {T::Saman, "mnuPosSaman,"},
        {T::Pasargad, "mnuPosPasargad,"},
        {T::Kish, "mnuKishPsp,"},
        {T::AsanPardakht, "mnuAsanPardakhtPsp,"},
        {T::Damavand, "mnuDamavandPsp,"},
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(terminals.payOn(c.terminal, 1250000.4));
        EXPECT_EQ(launcher.calls.last().arguments,
                  QStringList{QString::fromLatin1(c.command) + QStringLiteral("1250000")});
    }
    EXPECT_TRUE(terminals.chequeReceipt());
    EXPECT_EQ(launcher.calls.last().arguments,
              QStringList{QStringLiteral("mnuChequeAndTravelRecept")});
    EXPECT_EQ(TerminalHandOffs::commandText(QStringLiteral("mnuPosSaman,"), 95000),
              QStringLiteral("mnuPosSaman,95000"));

    // Without the companion program nothing starts.
    CompanionHandOff missing(launcher, dir.filePath(QStringLiteral("none/KotrimoAcc.exe")));
    TerminalHandOffs none(missing);
    const qsizetype before = launcher.calls.size();
    EXPECT_FALSE(none.payOn(T::Mellat, 1000));
    EXPECT_EQ(launcher.calls.size(), before);
}

SANDOGH_INSTANTIATE_BACKENDS(PaymentAccountsTest);

}  // namespace
}  // namespace sandogh::test
