// Bad input and damaged files at the command line: refused with their own message,
// nothing written.

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QTemporaryDir>

#include "AdminFolderTest.h"
#include "AdminShopTest.h"
#include "common/AmountText.h"

namespace sandogh {
namespace {

const QString kDamaged = QStringLiteral("فايل بانک اطلاعاتي آسيب ديده است");
const QString kNotANumber = QStringLiteral("عدد درستي نيست");
const QString kUnreachable = QStringLiteral("خطا در برقراري ارتباط با سرور بانک اطلاعاتي");

class AdminAmountTest : public AdminShopTest {};

TEST_P(AdminAmountTest, AmountsThatAreNoFiniteNumbersAreRefusedAndNothingIsSaved) {
    execAll(
        {"INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue) VALUES ('1001', "
         "'Bread', 2500, 0, 0)"});
    for (const char* option : {"--received", "--discount"}) {
        // What reads as an amount is AmountText's (tested under common); below zero is refused
        // here.
        for (const char* amount : {"1e20", "12x", "-5"}) {
            const AdminProcess::Result r = runCommand(
                QStringLiteral("sell"),
                {QString::fromLatin1(option), QString::fromLatin1(amount), QStringLiteral("1001")});
            EXPECT_EQ(r.exitCode, 2) << option << ' ' << amount;
            EXPECT_TRUE(QString::fromUtf8(r.err).contains(kNotANumber)) << r.err.toStdString();
        }
    }
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 0);
}

TEST_P(AdminAmountTest, CodesThatDoNotExistAreRefusedAndNothingIsSaved) {
    execAll({
        "INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue) VALUES ('1001', 'Bread', "
        "2500, 0, 0)",
        "INSERT INTO Stations (ID, Station_Name) VALUES (1, 'Desk 1')",
        "INSERT INTO DiscountType (Id, Name, IsImpactGift) VALUES (1, 'Off', 0)",
        "INSERT INTO tblPaymentType (Code, Name) VALUES (1, 'Cash')",
        "INSERT INTO Users (Name, UserName, Active) VALUES ('Cashier', 'cashier', 1)",
    });
    const struct {
        const char* words;
        const char* message;
    } cases[] = {
        {"--pay-type 7 1001", "نوع پرداخت انتخاب شده وجود ندارد"},
        {"--discount 100 --discount-type 9 1001", "نوع تخفيف انتخاب شده وجود ندارد"},
        {"--station 5 1001", "صندوق انتخاب شده وجود ندارد"},
    };
    for (const auto& c : cases) {
        const AdminProcess::Result r = runCommand(QStringLiteral("sell"), words(c.words));
        EXPECT_EQ(r.exitCode, 1) << c.words;
        EXPECT_EQ(QString::fromUtf8(r.err).count(QString::fromUtf8(c.message)), 1)
            << r.err.toStdString();
    }
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), 0);
    // The same sale with codes that exist is saved.
    const AdminProcess::Result saved =
        runCommand(QStringLiteral("sell"),
                   words("--user cashier --station 1 --discount 100 --discount-type 1 1001"));
    EXPECT_EQ(saved.exitCode, 0) << saved.err.toStdString();
}

TEST_P(AdminAmountTest, AnAmountReadBackThatIsNoNumberShowsAsUnreadable) {
    if (backend() != Backend::PostgreSQL) {
        GTEST_SKIP() << "SQLite keeps no NaN";
    }
    execAll(
        {"INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, DocSum, ReceivedPrice) "
         "VALUES (1, '1', 2, '1404/01/05', 'NaN', 'NaN')"});
    const AdminProcess::Result report =
        runCommand(QStringLiteral("report"), words("daily 1404/01/05"));
    EXPECT_EQ(report.exitCode, 0) << report.err.toStdString();
    EXPECT_TRUE(report.outText().contains(QString::fromStdString(AmountText::unreadable())))
        << report.outText().toStdString();
    QTemporaryDir out;
    const AdminProcess::Result receipt = runCommand(
        QStringLiteral("receipt"), words("1 --pdf") << out.filePath(QStringLiteral("r.pdf")));
    EXPECT_EQ(receipt.exitCode, 0) << receipt.err.toStdString();
}

SANDOGH_INSTANTIATE_BACKENDS(AdminAmountTest);

// A SQLite program folder of our own, for what happens around the shop file.
class AdminSqliteFileTest : public AdminFolderTest {
protected:
    void SetUp() override {
        AdminFolderTest::SetUp();
        writeProvider(sqliteProvider());
    }
    QByteArray digest(const QString& relative) const {
        QFile f(path(relative));
        return f.open(QIODevice::ReadOnly)
                   ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256)
                   : QByteArray();
    }
};

TEST_F(AdminSqliteFileTest, ADamagedShopFileIsRefusedAndLeftAsItWas) {
    ASSERT_EQ(run(QStringLiteral("init-db")).exitCode, 0);
    QFile shop(path(QStringLiteral("Data/Shop.sqlite")));
    ASSERT_TRUE(shop.open(QIODevice::ReadWrite));
    const qint64 size = shop.size();
    ASSERT_GT(size, 16 * 4096);
    // Pages in the middle of the file overwritten, as a failing disk leaves them.
    ASSERT_TRUE(shop.seek(size / 2));
    shop.write(QByteArray(3 * 4096, '\x5a'));
    shop.close();

    for (int damage = 0; damage < 2; ++damage) {
        if (damage == 1) {
            // Nothing of a database left at all.
            ASSERT_TRUE(shop.open(QIODevice::WriteOnly | QIODevice::Truncate));
            shop.write(QByteArray(8192, '\x07'));
            shop.close();
        }
        const QByteArray before = digest(QStringLiteral("Data/Shop.sqlite"));
        for (const QStringList& command : {words("init-db"), words("sell --dry-run 1001")}) {
            const AdminProcess::Result r = run(command.first(), command.mid(1));
            EXPECT_EQ(r.exitCode, 1) << command.join(' ').toStdString();
            EXPECT_TRUE(QString::fromUtf8(r.err).contains(kDamaged)) << r.err.toStdString();
            EXPECT_FALSE(QString::fromUtf8(r.err).contains(kUnreachable)) << r.err.toStdString();
        }
        EXPECT_EQ(digest(QStringLiteral("Data/Shop.sqlite")), before) << damage;
        EXPECT_FALSE(QFile::exists(path(QStringLiteral("Data/Shop.sqlite-wal")))) << damage;
    }
    QFile log(path(QStringLiteral("ErrorLog.txt")));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_EQ(log.readAll().count("ErrNumber : "), 4);  // each refusal recorded once
}

TEST_F(AdminSqliteFileTest, AnUnreachableDatabaseEndsADryRunWithTheConnectionMessage) {
    // No init-db: the shop file does not exist.
    const AdminProcess::Result r =
        run(QStringLiteral("sell"), words("--dry-run --user cashier 1001"));
    EXPECT_EQ(r.exitCode, 1);
    const QString err = QString::fromUtf8(r.err);
    EXPECT_EQ(err.count(kUnreachable), 1) << r.err.toStdString();
    EXPECT_FALSE(err.contains(QStringLiteral("no active user"))) << r.err.toStdString();
    EXPECT_TRUE(r.out.isEmpty());
}

}  // namespace
}  // namespace sandogh
