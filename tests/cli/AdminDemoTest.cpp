// sandogh-admin demo: a program folder without a connection file becomes a SQLite demo
// shop; running it again adds nothing and prints no passwords; a connection file is kept.

#include <gtest/gtest.h>

#include "AdminFolderTest.h"

namespace sandogh {
namespace {

class AdminDemoTest : public AdminFolderTest {};

TEST_F(AdminDemoTest, MakesTheShopOnceAndTellsThePasswordsOnce) {
    const AdminProcess::Result first = run(QStringLiteral("demo"));
    ASSERT_EQ(first.exitCode, 0) << first.err.toStdString();
    EXPECT_TRUE(first.outText().contains(QStringLiteral("wrote Provider.txt")));
    EXPECT_TRUE(
        first.outText().contains(QStringLiteral("user admin (administrator), password 1234")))
        << first.outText().toStdString();
    EXPECT_TRUE(first.outText().contains(QStringLiteral("user cashier (cashier), password 1111")));
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Data/Shop.sqlite"))));
    QFile provider(path(QStringLiteral("Provider.txt")));
    ASSERT_TRUE(provider.open(QIODevice::ReadOnly | QIODevice::Text));
    EXPECT_EQ(provider.readAll().split('\n').first(), QByteArray("Provider=SQLite;"));

    const AdminProcess::Result again = run(QStringLiteral("demo"));
    ASSERT_EQ(again.exitCode, 0) << again.err.toStdString();
    EXPECT_TRUE(again.outText().contains(QStringLiteral("nothing to add")))
        << again.outText().toStdString();
    EXPECT_FALSE(again.outText().contains(QStringLiteral("password")));
    EXPECT_FALSE(again.outText().contains(QStringLiteral("added")));

    EXPECT_EQ(AdminProcess::run({QStringLiteral("demo"), QStringLiteral("extra")}).exitCode, 2);
}

TEST_F(AdminDemoTest, AnExistingConnectionFileIsKept) {
    writeProvider(sqliteProvider(QStringLiteral("Shops"), QStringLiteral("Corner")));
    const AdminProcess::Result r = run(QStringLiteral("demo"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Shops/Corner.sqlite"))));
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("Data/Shop.sqlite"))));
}

}  // namespace
}  // namespace sandogh
