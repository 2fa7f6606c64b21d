#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <initializer_list>

#include "AdminProcess.h"
#include "data/ShopFixture.h"

namespace sandogh {

// The shop fixture's database named by the Provider.txt of its program folder and prepared
// by sandogh-admin init-db, with this machine's settings in a temporary folder.
class AdminShopTest : public test::ShopFixture {
protected:
    void SetUp() override {
        ShopFixture::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        ASSERT_TRUE(settings.isValid());
        qputenv("SANDOGH_SETTINGS", settings.path().toUtf8());
        QFile provider(QDir(dir()).filePath(QStringLiteral("Provider.txt")));
        ASSERT_TRUE(provider.open(QIODevice::WriteOnly));
        provider.write(testDatabase().providerText().toUtf8());
        provider.close();
        const AdminProcess::Result init =
            AdminProcess::run({QStringLiteral("init-db"), QStringLiteral("--dir"), dir()});
        ASSERT_EQ(init.exitCode, 0) << init.err.toStdString();
    }
    void TearDown() override {
        qunsetenv("SANDOGH_SETTINGS");
        ShopFixture::TearDown();
    }
    QString dir() { return testDatabase().programDir(); }

    // Runs each statement on the shop; fails the test at the first that fails.
    void execAll(std::initializer_list<const char*> statements) {
        for (const char* sql : statements) {
            ASSERT_TRUE(exec(QString::fromLatin1(sql))) << sql;
        }
    }

    // sandogh-admin COMMAND --dir DIR WORDS...
    AdminProcess::Result runCommand(const QString& command, QStringList words) {
        words.prepend(dir());
        words.prepend(QStringLiteral("--dir"));
        words.prepend(command);
        return AdminProcess::run(words);
    }

    // Every sale whole after desks saved at once or were killed: two lines under each of the
    // headers, their total the header's, no line without its header, each header its own
    // balanced voucher and no voucher without one.
    void expectWholeSales(qint64 headers) {
        EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH")), headers);
        EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocH H WHERE (SELECT COUNT(*) "
                                       "FROM Whs_QTYDocD D WHERE D.Code = H.Code) <> 2 OR "
                                       "H.DocSum <> (SELECT SUM(D.Price) FROM Whs_QTYDocD D WHERE "
                                       "D.Code = H.Code)")),
                  0);
        EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Whs_QTYDocD D LEFT JOIN Whs_QTYDocH H "
                                       "ON H.Code = D.Code WHERE H.Code IS NULL")),
                  0);
        EXPECT_EQ(count(QStringLiteral("SELECT COUNT(DISTINCT H.DocumentHID) FROM Whs_QTYDocH H "
                                       "INNER JOIN tblDocumentH V ON V.ID = H.DocumentHID")),
                  headers);
        EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM tblDocumentH")), headers);
        EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM tblDocumentH V WHERE (SELECT "
                                       "COALESCE(SUM(Debt), 0) - COALESCE(SUM(Credit), 0) FROM "
                                       "tblDocumentD D WHERE D.DocumentHID = V.ID) <> 0")),
                  0);
    }

    QTemporaryDir settings;
};

}  // namespace sandogh
