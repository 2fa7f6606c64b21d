#include "app/ShopBackup.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "app/ShopInfo.h"
#include "app/TarArchive.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/backup/SqliteFileCopy.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"

namespace sandogh {

namespace {

const QString kShopMember = QStringLiteral("shop");
const QString kDumpMember = QStringLiteral("shop.dump");
// pg_dump and pg_restore get this long; a shop of a million documents dumps in minutes.
constexpr int kClientTimeoutMs = 60 * 60 * 1000;

ShopBackup::Result failed(const QString& error) {
    ShopBackup::Result result;
    result.error = error;
    return result;
}

QString sha256(const QString& file) {
    QFile in(file);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!in.open(QIODevice::ReadOnly) || !hash.addData(&in)) {
        return {};
    }
    return QString::fromLatin1(hash.result().toHex());
}

QString stamp() {
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_HHmmss"));
}

// Runs a PostgreSQL client program against the server of settings.
QString runClient(const ConnectionSettings& settings, const QString& name,
                  const QStringList& words) {
    const QString program = ShopBackup::findClientProgram(name);
    if (program.isEmpty()) {
        return QStringLiteral(
                   "%1 was not found on this machine: install the PostgreSQL client programs "
                   "(Debian: apt-get install postgresql-client) or put them on the PATH")
            .arg(name);
    }
    QStringList args{QStringLiteral("--host"), settings.host, QStringLiteral("--username"),
                     settings.user, QStringLiteral("--no-password")};
    if (settings.port > 0) {
        args << QStringLiteral("--port") << QString::number(settings.port);
    }
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("PGPASSWORD"), settings.password);
    process.setProcessEnvironment(env);
    process.start(program, args + words);
    if (!process.waitForFinished(kClientTimeoutMs) ||
        process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return QStringLiteral("%1 failed: %2")
            .arg(name, QString::fromLocal8Bit(process.readAllStandardError()).trimmed());
    }
    return {};
}

// The SQLite databases of a shop: the shop's own ("") and each scale vendor's.
QStringList sqliteDatabases() {
    return QStringList{QString()} + Migrator::otherDatabasesOf(shopMigrations());
}

QString memberOf(const QString& database) {
    return (database.isEmpty() ? kShopMember : database) + QStringLiteral(".sqlite");
}

// Puts the live file (with its journal files) aside and the checked copy in its place.
QString swapSqlite(const QString& live, const QString& copy, const QString& aside) {
    if (QFileInfo::exists(live)) {
        QString error;
        // What the write-ahead log holds belongs to the file put aside.
        SqliteFileCopy::checkpoint(live, &error);
        for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
            if (QFileInfo::exists(live + suffix) && !QFile::rename(live + suffix, aside + suffix)) {
                return QStringLiteral("cannot move %1 aside").arg(live + suffix);
            }
        }
    }
    if (!QFile::rename(copy, live)) {
        // The live file goes back where it was.
        QFile::rename(aside, live);
        return QStringLiteral("cannot put the restored copy in place of %1").arg(live);
    }
    return {};
}

}  // namespace

QString ShopBackup::findClientProgram(const QString& name) {
    QString found = QStandardPaths::findExecutable(name);
    if (found.isEmpty()) {
        // Debian keeps each server version's programs in a folder of its own.
        const QDir versions(QStringLiteral("/usr/lib/postgresql"));
        QStringList list = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        std::reverse(list.begin(), list.end());
        for (const QString& version : list) {
            const QString candidate = versions.filePath(version + QStringLiteral("/bin/") + name);
            if (QFileInfo(candidate).isExecutable()) {
                return candidate;
            }
        }
    }
    return found;
}

QString ShopBackup::defaultArchive(const ConnectionSettings& settings, const QString& folder) {
    return QDir(folder).filePath(settings.catalog + QLatin1Char('-') + stamp() +
                                 QStringLiteral(".tar"));
}

ShopBackup::Result ShopBackup::backup(Database& database, const QString& archive) {
    const ConnectionSettings& settings = database.settings();
    Result result;
    result.archive = QFileInfo(archive).absoluteFilePath();
    result.schemaVersion = Migrator(database).currentVersion();
    if (result.schemaVersion <= 0) {
        return failed(QStringLiteral("the shop database cannot be read"));
    }
    QTemporaryDir work(QFileInfo(result.archive).absolutePath() +
                       QStringLiteral("/.sandogh-backup-XXXXXX"));
    if (!work.isValid()) {
        return failed(QStringLiteral("cannot make a work folder beside %1").arg(archive));
    }

    QList<TarArchive::Member> members;
    if (settings.backend == Backend::SQLite) {
        for (const QString& name : sqliteDatabases()) {
            const QString live = settings.sqliteFile(name);
            if (!name.isEmpty() && !QFileInfo::exists(live)) {
                continue;
            }
            const QString copy = work.filePath(memberOf(name));
            QString error;
            if (!SqliteFileCopy::snapshot(live, copy, &error)) {
                return failed(QStringLiteral("cannot copy %1: %2").arg(live, error));
            }
            members.append({memberOf(name), copy});
        }
    } else if (settings.backend == Backend::PostgreSQL) {
        const QString dump = work.filePath(kDumpMember);
        const QString error =
            runClient(settings, QStringLiteral("pg_dump"),
                      {QStringLiteral("--format=custom"), QStringLiteral("--no-owner"),
                       QStringLiteral("--file"), dump, settings.catalog});
        if (!error.isEmpty()) {
            return failed(error);
        }
        members.append({kDumpMember, dump});
    } else {
        return failed(QStringLiteral("backups of %1 are taken with its own tools")
                          .arg(backendName(settings.backend)));
    }

    QJsonArray files;
    for (const TarArchive::Member& member : members) {
        files.append(QJsonObject{{QStringLiteral("name"), member.name},
                                 {QStringLiteral("sha256"), sha256(member.file)}});
    }
    QJsonObject manifest;
    manifest.insert(QStringLiteral("format"), QString::fromLatin1(kFormat));
    manifest.insert(QStringLiteral("backend"), backendName(settings.backend));
    manifest.insert(QStringLiteral("schemaVersion"), result.schemaVersion);
    manifest.insert(QStringLiteral("date"), QDateTime::currentDateTime().toString(Qt::ISODate));
    manifest.insert(QStringLiteral("shopName"), ShopInfo(database).shopName());
    manifest.insert(QStringLiteral("catalog"), settings.catalog);
    manifest.insert(QStringLiteral("files"), files);
    const QString manifestFile = work.filePath(QString::fromLatin1(kManifestName));
    QFile out(manifestFile);
    if (!out.open(QIODevice::WriteOnly) || out.write(QJsonDocument(manifest).toJson()) < 0 ||
        !out.flush()) {
        return failed(QStringLiteral("cannot write the manifest"));
    }
    out.close();
    members.prepend({QString::fromLatin1(kManifestName), manifestFile});

    // Written under another name first: a half-written archive never looks whole.
    const QString part = result.archive + QStringLiteral(".part");
    QString error;
    if (!TarArchive::write(part, members, &error)) {
        QFile::remove(part);
        return failed(error);
    }
    QFile::remove(result.archive);
    if (!QFile::rename(part, result.archive)) {
        return failed(QStringLiteral("cannot write %1").arg(result.archive));
    }
    result.ok = true;
    return result;
}

ShopBackup::Result ShopBackup::restore(const ConnectionSettings& settings, const QString& archive) {
    const bool sqlite = settings.backend == Backend::SQLite;
    // The copy is put together beside the live files, so that putting it in place is a
    // rename on the same disk.
    QTemporaryDir work(sqlite ? settings.sqliteFolder + QStringLiteral("/.sandogh-restore-XXXXXX")
                              : QString());
    if (!work.isValid()) {
        return failed(QStringLiteral("cannot make a work folder for the restore"));
    }
    QStringList names;
    QString error;
    if (!TarArchive::extract(archive, work.path(), &names, &error)) {
        return failed(error);
    }
    QFile in(work.filePath(QString::fromLatin1(kManifestName)));
    if (!in.open(QIODevice::ReadOnly)) {
        return failed(QStringLiteral("%1 holds no manifest").arg(archive));
    }
    const QJsonObject manifest = QJsonDocument::fromJson(in.readAll()).object();
    if (manifest.value(QStringLiteral("format")).toString() != QLatin1String(kFormat)) {
        return failed(QStringLiteral("%1 is not a backup of this program").arg(archive));
    }
    if (manifest.value(QStringLiteral("backend")).toString() != backendName(settings.backend)) {
        return failed(QStringLiteral("%1 is a backup of a %2 shop")
                          .arg(archive, manifest.value(QStringLiteral("backend")).toString()));
    }
    Result result;
    result.schemaVersion = manifest.value(QStringLiteral("schemaVersion")).toInt();
    const int newest = shopMigrations().last().version;
    if (result.schemaVersion > newest) {
        return failed(QStringLiteral("%1 was taken by a newer program (schema version %2; this "
                                     "program knows up to %3)")
                          .arg(archive)
                          .arg(result.schemaVersion)
                          .arg(newest));
    }
    QStringList listed;
    for (const QJsonValue& value : manifest.value(QStringLiteral("files")).toArray()) {
        const QString name = value.toObject().value(QStringLiteral("name")).toString();
        const QString wanted = value.toObject().value(QStringLiteral("sha256")).toString();
        if (!names.contains(name) || wanted.isEmpty() || sha256(work.filePath(name)) != wanted) {
            return failed(QStringLiteral("%1 fails its checksum (%2): it was changed or damaged")
                              .arg(archive, name));
        }
        listed << name;
    }
    if (listed.size() + 1 != names.size() || listed.isEmpty()) {
        return failed(QStringLiteral("%1 holds members its manifest does not list").arg(archive));
    }

    const QString aside = QStringLiteral("_before_") + stamp();
    if (sqlite) {
        for (const QString& name : listed) {
            if (!SqliteFileCopy::isWhole(work.filePath(name), &error)) {
                return failed(QStringLiteral("the restored copy %1 fails its integrity check: %2")
                                  .arg(name, error));
            }
        }
        for (const QString& name : sqliteDatabases()) {
            if (!listed.contains(memberOf(name))) {
                continue;
            }
            const QString live = settings.sqliteFile(name);
            const QString put =
                settings.withCatalog(QFileInfo(live).completeBaseName() + aside).sqliteFile();
            error = swapSqlite(live, work.filePath(memberOf(name)), put);
            if (!error.isEmpty()) {
                return failed(error);
            }
            if (name.isEmpty()) {
                result.previous = put;
            }
        }
        result.ok = true;
        return result;
    }

    if (!listed.contains(kDumpMember)) {
        return failed(QStringLiteral("%1 holds no database dump").arg(archive));
    }
    const ConnectionSettings staged =
        settings.withCatalog(settings.catalog + QStringLiteral("_restore") + aside);
    if (DatabaseProvisioner::ensureExists(staged, &error) == DatabaseProvisioner::Outcome::Failed) {
        return failed(error);
    }
    error = runClient(settings, QStringLiteral("pg_restore"),
                      {QStringLiteral("--no-owner"), QStringLiteral("--exit-on-error"),
                       QStringLiteral("--dbname"), staged.catalog, work.filePath(kDumpMember)});
    int stagedVersion = 0;
    if (error.isEmpty()) {
        Database copy(staged, nullptr);
        stagedVersion = Migrator(copy).currentVersion();
    }
    if (!error.isEmpty() || stagedVersion != result.schemaVersion) {
        QString ignored;
        DatabaseProvisioner::drop(staged, &ignored);
        return failed(error.isEmpty() ? QStringLiteral("the restored copy is not whole") : error);
    }
    bool exists = false;
    if (!DatabaseProvisioner::exists(settings, exists, &error)) {
        return failed(error);
    }
    // The copy stays one of the shop's fiscal years, as the live database was.
    const QString family =
        exists ? DatabaseProvisioner::yearFamily(settings, &error) : settings.catalog;
    if (family != settings.catalog && !DatabaseProvisioner::markYear(staged, family, &error)) {
        QString ignored;
        DatabaseProvisioner::drop(staged, &ignored);
        return failed(error);
    }
    result.previous = settings.catalog + aside;
    if (exists && !DatabaseProvisioner::rename(settings, result.previous, &error)) {
        return failed(error);
    }
    if (!DatabaseProvisioner::rename(staged, settings.catalog, &error)) {
        return failed(error);
    }
    result.ok = true;
    return result;
}

}  // namespace sandogh
