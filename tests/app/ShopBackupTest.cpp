// ShopBackup's archive on every backend: a plain tar that tar lists, and a restore that
// refuses an archive of a newer schema without touching the live shop.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include "app/ShopBackup.h"
#include "app/TarArchive.h"
#include "data/ShopFixture.h"
#include "data/schema/ShopSchema.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

class ShopBackupTest : public test::ShopBackendTest {
protected:
    QString archive() { return QDir(work.path()).filePath(QStringLiteral("b.tar")); }
    QTemporaryDir work;
};

TEST_P(ShopBackupTest, TheArchiveIsAPlainTarWithItsManifestFirst) {
    const ShopBackup::Result r = ShopBackup::backup(db(), archive());
    ASSERT_TRUE(r.ok) << r.error.toStdString();
    EXPECT_EQ(r.schemaVersion, shopMigrations().last().version);
    QProcess tar;
    tar.start(QStringLiteral("tar"), {QStringLiteral("-tf"), archive()});
    ASSERT_TRUE(tar.waitForFinished());
    ASSERT_EQ(tar.exitCode(), 0) << tar.readAllStandardError().toStdString();
    const QStringList names =
        QString::fromUtf8(tar.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_FALSE(names.isEmpty());
    EXPECT_EQ(names.first(), QString::fromLatin1(ShopBackup::kManifestName));
    EXPECT_TRUE(names.contains(db().backend() == Backend::SQLite ? QStringLiteral("shop.sqlite")
                                                                 : QStringLiteral("shop.dump")));
}

TEST_P(ShopBackupTest, AnArchiveOfANewerSchemaIsRefused) {
    ASSERT_TRUE(exec(QStringLiteral("INSERT INTO Stations (Station_Name) VALUES ('kept')")));
    ASSERT_TRUE(ShopBackup::backup(db(), archive()).ok);
    // The same members under a manifest that claims a later schema.
    QTemporaryDir parts;
    QStringList names;
    ASSERT_TRUE(TarArchive::extract(archive(), parts.path(), &names, nullptr));
    QFile manifest(parts.filePath(QString::fromLatin1(ShopBackup::kManifestName)));
    ASSERT_TRUE(manifest.open(QIODevice::ReadOnly));
    QJsonObject json = QJsonDocument::fromJson(manifest.readAll()).object();
    manifest.close();
    json.insert(QStringLiteral("schemaVersion"), shopMigrations().last().version + 1);
    ASSERT_TRUE(manifest.open(QIODevice::WriteOnly | QIODevice::Truncate));
    manifest.write(QJsonDocument(json).toJson());
    manifest.close();
    QList<TarArchive::Member> members;
    for (const QString& name : names) {
        members.append({name, parts.filePath(name)});
    }
    ASSERT_TRUE(TarArchive::write(archive(), members, nullptr));

    const ShopBackup::Result r = ShopBackup::restore(db().settings(), archive());
    EXPECT_FALSE(r.ok);
    EXPECT_TRUE(r.error.contains(QLatin1String("newer"))) << r.error.toStdString();
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Stations WHERE Station_Name = 'kept'")),
              1);
}

SANDOGH_INSTANTIATE_BACKENDS(ShopBackupTest);

}  // namespace
}  // namespace sandogh
