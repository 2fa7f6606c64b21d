#include "data/DatabaseProvisioner.h"

#include <QAtomicInt>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <functional>

namespace sandogh {

namespace {

QAtomicInt g_nextMaintenance{0};

bool setError(QString* error, const QString& text) {
    if (error != nullptr) {
        *error = text;
    }
    return false;
}

// Runs work on a connection to the server's maintenance database.
bool withMaintenance(const ConnectionSettings& settings, QString* error,
                     const std::function<bool(QSqlDatabase&)>& work) {
    const QString name =
        QStringLiteral("sandogh.maintenance.%1").arg(g_nextMaintenance.fetchAndAddRelaxed(1));
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(settings.qtDriver(), name);
        if (settings.backend == Backend::PostgreSQL) {
            db.setHostName(settings.host);
            db.setPort(settings.port > 0 ? settings.port : -1);
            db.setUserName(settings.user);
            db.setPassword(settings.password);
            db.setDatabaseName(QStringLiteral("postgres"));
            db.setConnectOptions(QStringLiteral("connect_timeout=5"));
        } else {
            db.setDatabaseName(settings.odbcConnectionString(QStringLiteral("master")));
        }
        if (!db.open()) {
            setError(error, QStringLiteral("cannot connect to %1: %2")
                                .arg(settings.host, db.lastError().text()));
        } else {
            if (settings.backend == Backend::PostgreSQL) {
                QSqlQuery(db).exec(QStringLiteral("SET client_min_messages TO WARNING"));
            }
            ok = work(db);
            db.close();
        }
    }
    QSqlDatabase::removeDatabase(name);
    return ok;
}

QString existsSql(Backend backend) {
    return backend == Backend::PostgreSQL
               ? QStringLiteral("SELECT COUNT(*) FROM pg_database WHERE datname = :name")
               : QStringLiteral("SELECT COUNT(*) FROM sys.databases WHERE name = :name");
}

bool queryExists(QSqlDatabase& db, const ConnectionSettings& settings, bool& found,
                 QString* error) {
    QSqlQuery q(db);
    q.prepare(existsSql(settings.backend));
    q.bindValue(QStringLiteral(":name"), settings.catalog);
    if (!q.exec() || !q.next()) {
        return setError(error, q.lastError().text());
    }
    found = q.value(0).toLongLong() > 0;
    return true;
}

}  // namespace

QString DatabaseProvisioner::quoteDatabaseName(Backend backend, const QString& name) {
    QString escaped = name;
    if (backend == Backend::SqlServer) {
        escaped.replace(QLatin1Char(']'), QStringLiteral("]]"));
        return QLatin1Char('[') + escaped + QLatin1Char(']');
    }
    escaped.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

bool DatabaseProvisioner::exists(const ConnectionSettings& settings, bool& found, QString* error) {
    if (settings.backend == Backend::SQLite) {
        found = QFileInfo::exists(settings.sqliteFile());
        return true;
    }
    return withMaintenance(
        settings, error, [&](QSqlDatabase& db) { return queryExists(db, settings, found, error); });
}

DatabaseProvisioner::Outcome DatabaseProvisioner::ensureExists(const ConnectionSettings& settings,
                                                               QString* error) {
    if (settings.backend == Backend::SQLite) {
        const QString file = settings.sqliteFile();
        if (QFileInfo::exists(file)) {
            return Outcome::Existed;
        }
        if (!QDir().mkpath(settings.sqliteFolder)) {
            setError(error,
                     QStringLiteral("cannot create the folder %1").arg(settings.sqliteFolder));
            return Outcome::Failed;
        }
        QFile created(file);
        if (!created.open(QIODevice::WriteOnly)) {
            setError(error,
                     QStringLiteral("cannot create %1: %2").arg(file, created.errorString()));
            return Outcome::Failed;
        }
        return Outcome::Created;  // an empty file is an empty SQLite database
    }
    Outcome outcome = Outcome::Failed;
    withMaintenance(settings, error, [&](QSqlDatabase& db) {
        bool found = false;
        if (!queryExists(db, settings, found, error)) {
            return false;
        }
        if (found) {
            outcome = Outcome::Existed;
            return true;
        }
        QString create = QStringLiteral("CREATE DATABASE ") +
                         quoteDatabaseName(settings.backend, settings.catalog);
        if (settings.backend == Backend::PostgreSQL) {
            create += QStringLiteral(" TEMPLATE template0 ENCODING 'UTF8'");
        }
        QSqlQuery q(db);
        if (!q.exec(create)) {
            return setError(error, q.lastError().text());
        }
        outcome = Outcome::Created;
        return true;
    });
    return outcome;
}

bool DatabaseProvisioner::drop(const ConnectionSettings& settings, QString* error) {
    if (settings.backend == Backend::SQLite) {
        const QString file = settings.sqliteFile();
        for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
            if (QFileInfo::exists(file + suffix) && !QFile::remove(file + suffix)) {
                return setError(error, QStringLiteral("cannot remove %1").arg(file + suffix));
            }
        }
        return true;
    }
    return withMaintenance(settings, error, [&](QSqlDatabase& db) {
        const QString name = quoteDatabaseName(settings.backend, settings.catalog);
        const QString sql =
            settings.backend == Backend::PostgreSQL
                ? QStringLiteral("DROP DATABASE IF EXISTS %1 WITH (FORCE)").arg(name)
                : QStringLiteral("IF DB_ID(:name) IS NOT NULL DROP DATABASE %1").arg(name);
        QSqlQuery q(db);
        bool ok = false;
        if (settings.backend == Backend::SqlServer) {
            q.prepare(sql);
            q.bindValue(QStringLiteral(":name"), settings.catalog);
            ok = q.exec();
        } else {
            ok = q.exec(sql);  // DDL: PostgreSQL cannot prepare it
        }
        if (!ok) {
            return setError(error, q.lastError().text());
        }
        return true;
    });
}

bool DatabaseProvisioner::rename(const ConnectionSettings& settings, const QString& newName,
                                 QString* error) {
    if (settings.backend == Backend::SQLite) {
        const QString from = settings.sqliteFile();
        const QString to = settings.withCatalog(newName).sqliteFile();
        for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
            if (QFileInfo::exists(from + suffix) && !QFile::rename(from + suffix, to + suffix)) {
                return setError(error, QStringLiteral("cannot rename %1").arg(from + suffix));
            }
        }
        return true;
    }
    if (settings.backend != Backend::PostgreSQL) {
        return setError(error, QStringLiteral("renaming a database is not supported here"));
    }
    return withMaintenance(settings, error, [&](QSqlDatabase& db) {
        QSqlQuery q(db);
        q.prepare(
            QStringLiteral("SELECT pg_terminate_backend(pid) FROM pg_stat_activity "
                           "WHERE datname = :name AND pid <> pg_backend_pid()"));
        q.bindValue(QStringLiteral(":name"), settings.catalog);
        if (!q.exec() || !q.exec(QStringLiteral("ALTER DATABASE %1 RENAME TO %2")
                                     .arg(quoteDatabaseName(settings.backend, settings.catalog),
                                          quoteDatabaseName(settings.backend, newName)))) {
            return setError(error, q.lastError().text());
        }
        return true;
    });
}

QStringList DatabaseProvisioner::list(const ConnectionSettings& settings, QString* error) {
    QStringList names;
    if (settings.backend == Backend::SQLite) {
        for (const QFileInfo& file :
             QDir(settings.sqliteFolder)
                 .entryInfoList({QStringLiteral("*.sqlite")}, QDir::Files, QDir::Name)) {
            names << file.completeBaseName();
        }
        return names;
    }
    if (settings.backend != Backend::PostgreSQL) {
        setError(error, QStringLiteral("listing databases is not supported here"));
        return names;
    }
    withMaintenance(settings, error, [&](QSqlDatabase& db) {
        QSqlQuery q(db);
        if (!q.exec(QStringLiteral("SELECT datname FROM pg_database WHERE NOT datistemplate "
                                   "AND datname <> 'postgres' ORDER BY datname"))) {
            return setError(error, q.lastError().text());
        }
        while (q.next()) {
            names << q.value(0).toString();
        }
        return true;
    });
    return names;
}

namespace {

const QString kYearMarkerPrefix = QStringLiteral("sandogh-year-of:");

}  // namespace

QString DatabaseProvisioner::yearMarker(const QString& family) {
    return kYearMarkerPrefix + family;
}

QString DatabaseProvisioner::yearFamily(const ConnectionSettings& settings, QString* error) {
    if (settings.backend != Backend::PostgreSQL) {
        return settings.catalog;
    }
    QString family = settings.catalog;
    withMaintenance(settings, error, [&](QSqlDatabase& db) {
        QSqlQuery q(db);
        q.prepare(
            QStringLiteral("SELECT shobj_description(oid, 'pg_database') FROM pg_database "
                           "WHERE datname = :name"));
        q.bindValue(QStringLiteral(":name"), settings.catalog);
        if (!q.exec()) {
            return setError(error, q.lastError().text());
        }
        if (q.next()) {
            const QString comment = q.value(0).toString();
            if (comment.startsWith(kYearMarkerPrefix) &&
                comment.size() > kYearMarkerPrefix.size()) {
                family = comment.mid(kYearMarkerPrefix.size());
            }
        }
        return true;
    });
    return family;
}

bool DatabaseProvisioner::markYear(const ConnectionSettings& settings, const QString& family,
                                   QString* error) {
    if (settings.backend != Backend::PostgreSQL) {
        return true;
    }
    // COMMENT cannot be prepared, so the server quotes the name and the text itself
    // (format's %I and %L, both bound) and the statement it returns is run as it stands.
    return withMaintenance(settings, error, [&](QSqlDatabase& db) {
        QSqlQuery quoted(db);
        quoted.prepare(
            QStringLiteral("SELECT format('COMMENT ON DATABASE %I IS %L', CAST(:name AS TEXT), "
                           "CAST(:text AS TEXT))"));
        quoted.bindValue(QStringLiteral(":name"), settings.catalog);
        quoted.bindValue(QStringLiteral(":text"), yearMarker(family));
        if (!quoted.exec() || !quoted.next()) {
            return setError(error, quoted.lastError().text());
        }
        QSqlQuery q(db);
        if (!q.exec(quoted.value(0).toString())) {
            return setError(error, q.lastError().text());
        }
        return true;
    });
}

QStringList DatabaseProvisioner::years(const ConnectionSettings& settings, const QString& family,
                                       QString* error) {
    if (settings.backend != Backend::PostgreSQL) {
        return list(settings, error);
    }
    QStringList names;
    withMaintenance(settings, error, [&](QSqlDatabase& db) {
        QSqlQuery q(db);
        q.prepare(
            QStringLiteral("SELECT datname FROM pg_database WHERE NOT datistemplate AND "
                           "(datname = :family OR shobj_description(oid, 'pg_database') = "
                           ":marker) ORDER BY datname"));
        q.bindValue(QStringLiteral(":family"), family);
        q.bindValue(QStringLiteral(":marker"), yearMarker(family));
        if (!q.exec()) {
            return setError(error, q.lastError().text());
        }
        while (q.next()) {
            names << q.value(0).toString();
        }
        return true;
    });
    return names;
}

}  // namespace sandogh
