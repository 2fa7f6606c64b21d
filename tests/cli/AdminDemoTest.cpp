// sandogh-admin demo: a program folder without a connection file becomes a SQLite demo
// shop; running it again adds nothing and prints no passwords.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "AdminProcess.h"

namespace sandogh {
namespace {

class DemoTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(program.isValid() && settings.isValid());
        qputenv("SANDOGH_SETTINGS", settings.path().toUtf8());
    }
    void TearDown() override { qunsetenv("SANDOGH_SETTINGS"); }

    AdminProcess::Result demo() {
        return AdminProcess::run({QStringLiteral("demo"), QStringLiteral("--dir"), program.path()});
    }
    QString path(const QString& relative) const { return QDir(program.path()).filePath(relative); }

    QTemporaryDir program;
    QTemporaryDir settings;
};

TEST_F(DemoTest, MakesTheShopOnceAndTellsThePasswordsOnce) {
    const AdminProcess::Result first = demo();
    ASSERT_TRUE(first.started);
    ASSERT_EQ(first.exitCode, 0) << first.err.toStdString();
    EXPECT_TRUE(first.outText().contains(QStringLiteral("wrote Provider.txt")));
    EXPECT_TRUE(
        first.outText().contains(QStringLiteral("user admin (administrator), password 1234")))
        << first.outText().toStdString();
    EXPECT_TRUE(first.outText().contains(QStringLiteral("user cashier (cashier), password 1111")));
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Data/Shop.sqlite"))));

    QFile provider(path(QStringLiteral("Provider.txt")));
    ASSERT_TRUE(provider.open(QIODevice::ReadOnly | QIODevice::Text));
    const QStringList lines =
        QString::fromUtf8(provider.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_EQ(lines.size(), 6);
    EXPECT_EQ(lines.first(), QStringLiteral("Provider=SQLite;"));

    const AdminProcess::Result again = demo();
    ASSERT_EQ(again.exitCode, 0) << again.err.toStdString();
    EXPECT_TRUE(again.outText().contains(QStringLiteral("nothing to add")))
        << again.outText().toStdString();
    EXPECT_FALSE(again.outText().contains(QStringLiteral("password")));
    EXPECT_FALSE(again.outText().contains(QStringLiteral("added")));
}

TEST_F(DemoTest, AnExistingConnectionFileIsKept) {
    QFile provider(path(QStringLiteral("Provider.txt")));
    ASSERT_TRUE(provider.open(QIODevice::WriteOnly));
    provider.write(
        "Provider=SQLite;\r\nData Source=Shops;\r\nInitial Catalog=Corner;\r\n"
        "User ID=;\r\nPassword=;\r\nPersist Security Info=False;\r\n");
    provider.close();
    const AdminProcess::Result r = demo();
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Shops/Corner.sqlite"))));
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("Data/Shop.sqlite"))));
}

TEST_F(DemoTest, TakesNoArguments) {
    const AdminProcess::Result r =
        AdminProcess::run({QStringLiteral("demo"), QStringLiteral("extra")});
    EXPECT_EQ(r.exitCode, 2);
}

}  // namespace
}  // namespace sandogh
