// sandogh-admin backup and restore on every backend: a backup taken while another process
// saves a hundred sales restores to a whole shop (every sale with its lines and voucher),
// and an archive changed after it was written is refused with the live shop untouched.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include "AdminProcess.h"
#include "AdminShopTest.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/Session.h"

namespace sandogh {
namespace {

// Sales that miss their lines or their voucher: a half sale.
const QString kHalfSales = QStringLiteral(
    "SELECT COUNT(*) FROM Whs_QTYDocH H WHERE H.TransType = 2 AND (NOT EXISTS (SELECT 1 FROM "
    "Whs_QTYDocD D WHERE D.Code = H.Code) OR NOT EXISTS (SELECT 1 FROM tblDocumentH V WHERE "
    "V.ID = H.DocumentHID))");
const QString kSales = QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH WHERE TransType = 2");

class AdminBackupTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        execAll({
            "INSERT INTO Goods (EAN_Code, Name, Cost, Cost2, TaxValue) VALUES "
            "('1001', 'Bread', 2500, 2600, 0)",
            "INSERT INTO Stations (ID, Station_Name) VALUES (1, 'Desk 1')",
            "INSERT INTO Users (Name, UserName, Active) VALUES ('Cashier', 'cashier', 1)",
            "INSERT INTO tblPaymentType (Code, Name) VALUES (1, 'Cash')",
        });
    }

    void TearDown() override {
        if (!previous.isEmpty() && settings().backend == Backend::PostgreSQL) {
            QString ignored;
            DatabaseProvisioner::drop(settings().withCatalog(previous), &ignored);
        }
        AdminShopTest::TearDown();
    }

    const ConnectionSettings& settings() { return testDatabase().settings(); }

    // A count on the shop as it is on disk now (the fixture's connections may still hold a
    // database a restore has put aside).
    qint64 count(const QString& sql) {
        Database fresh(settings(), nullptr);
        Session s = fresh.session();
        return s.scalarInt64(sql, {}, -1);
    }

    QString archive() { return QDir(dir()).filePath(QStringLiteral("shop-backup.tar")); }

    AdminProcess::Result backUp() {
        return runCommand(QStringLiteral("backup"), words("--out") << archive());
    }

    QString previous;
};

TEST_P(AdminBackupTest, ABackupTakenWhileSellingRestoresWholeSales) {
    QProcess seller;
    seller.start(
        AdminProcess::binaryPath(),
        (words("sell --dir") << dir()) + words("--user cashier --station 1 --repeat 100 1001"));
    ASSERT_TRUE(seller.waitForStarted());
    // The backup starts once the first sale is in.
    while (!seller.canReadLine() && seller.state() == QProcess::Running) {
        seller.waitForReadyRead(1000);
    }
    const AdminProcess::Result backup = backUp();
    ASSERT_TRUE(seller.waitForFinished(600000));
    ASSERT_EQ(seller.exitCode(), 0) << seller.readAllStandardError().toStdString();
    ASSERT_EQ(backup.exitCode, 0) << backup.err.toStdString();
    EXPECT_EQ(backup.outText().trimmed(), QDir::toNativeSeparators(archive()));
    EXPECT_EQ(count(kSales), 100);

    const AdminProcess::Result restore = runCommand(QStringLiteral("restore"), {archive()});
    ASSERT_EQ(restore.exitCode, 0) << restore.err.toStdString();
    const QString kept = restore.outText().section(QStringLiteral("kept as "), 1).trimmed();
    previous = QFileInfo(kept).completeBaseName();
    if (settings().backend == Backend::SQLite) {
        previous.clear();
        EXPECT_TRUE(QFileInfo::exists(kept)) << kept.toStdString();
        Database fresh(settings(), nullptr);
        Session s = fresh.session();
        EXPECT_EQ(s.scalarText(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    } else {
        previous = kept;
    }
    const qint64 restored = count(kSales);
    EXPECT_GE(restored, 1);
    EXPECT_LE(restored, 100);
    EXPECT_EQ(count(kHalfSales), 0);
}

TEST_P(AdminBackupTest, AChangedArchiveIsRefusedAndTheShopUntouched) {
    const QStringList sale = words("--user cashier --station 1 1001");
    ASSERT_EQ(runCommand(QStringLiteral("sell"), sale).exitCode, 0);
    ASSERT_EQ(backUp().exitCode, 0);
    ASSERT_EQ(runCommand(QStringLiteral("sell"), sale).exitCode, 0);
    // One byte of the database copy (past the manifest, the first members) changes.
    QFile file(archive());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const qint64 at = file.size() - 2048;
    ASSERT_TRUE(file.seek(at));
    const char byte = file.read(1).at(0);
    ASSERT_TRUE(file.seek(at));
    file.write(QByteArray(1, static_cast<char>(byte ^ 0x5a)));
    file.close();

    const AdminProcess::Result restore = runCommand(QStringLiteral("restore"), {archive()});
    EXPECT_EQ(restore.exitCode, 1);
    EXPECT_TRUE(restore.err.contains("checksum")) << restore.err.toStdString();
    EXPECT_EQ(count(kSales), 2);
    // No copy of this shop was set aside (other tests' shops on the same server are not ours).
    for (const QString& name : DatabaseProvisioner::list(settings(), nullptr)) {
        EXPECT_FALSE(name.startsWith(settings().catalog) &&
                     name.contains(QLatin1String("_before_")))
            << name.toStdString();
    }
}

SANDOGH_INSTANTIATE_BACKENDS(AdminBackupTest);

}  // namespace
}  // namespace sandogh
