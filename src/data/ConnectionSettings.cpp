#include "data/ConnectionSettings.h"

#include <QDir>

namespace sandogh {

namespace {

bool keyIs(const QString& key, std::initializer_list<const char*> names) {
    for (const char* name : names) {
        if (key.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

bool isTrue(const QString& value) {
    const QString v = value.trimmed();
    return keyIs(v, {"SSPI", "true", "yes"});
}

// "host" or "host,port" into its parts; false for a port that is not a number.
bool splitServer(const QString& dataSource, QString& host, int& port, QString* error) {
    const int comma = dataSource.indexOf(QLatin1Char(','));
    host = (comma < 0 ? dataSource : dataSource.left(comma)).trimmed();
    if (comma >= 0) {
        bool ok = false;
        const int value = dataSource.mid(comma + 1).trimmed().toInt(&ok);
        if (!ok || value <= 0 || value > 65535) {
            if (error != nullptr) {
                *error =
                    QStringLiteral("شماره پورت در Data Source فايل Provider.txt درست نيست: \"%1\"")
                        .arg(dataSource);
            }
            return false;
        }
        port = value;
    }
    return true;
}

// An ODBC attribute value, braced when it holds a character that would end it early.
QString odbcValue(const QString& value) {
    static const QString special = QStringLiteral(";{}=");
    bool brace = value != value.trimmed();
    for (const QChar c : value) {
        brace = brace || special.contains(c);
    }
    if (!brace) {
        return value;
    }
    QString escaped = value;
    escaped.replace(QLatin1Char('}'), QStringLiteral("}}"));
    return QLatin1Char('{') + escaped + QLatin1Char('}');
}

}  // namespace

QList<QPair<QString, QString>> ConnectionSettings::parsePairs(const QString& connectionString) {
    QList<QPair<QString, QString>> pairs;
    const qsizetype n = connectionString.size();
    qsizetype i = 0;
    while (i < n) {
        const qsizetype eq = connectionString.indexOf(QLatin1Char('='), i);
        const qsizetype semi = connectionString.indexOf(QLatin1Char(';'), i);
        if (eq < 0 || (semi >= 0 && semi < eq)) {
            // A piece without "=": nothing to keep, skip to the next separator.
            if (semi < 0) {
                break;
            }
            i = semi + 1;
            continue;
        }
        const QString key = connectionString.mid(i, eq - i).trimmed();
        qsizetype j = eq + 1;
        while (j < n && connectionString.at(j).isSpace()) {
            ++j;
        }
        QString value;
        if (j < n && (connectionString.at(j) == QLatin1Char('"') ||
                      connectionString.at(j) == QLatin1Char('\''))) {
            const QChar quote = connectionString.at(j);
            ++j;
            while (j < n) {
                if (connectionString.at(j) == quote) {
                    if (j + 1 < n && connectionString.at(j + 1) == quote) {
                        value += quote;
                        j += 2;
                        continue;
                    }
                    ++j;
                    break;
                }
                value += connectionString.at(j++);
            }
            const qsizetype next = connectionString.indexOf(QLatin1Char(';'), j);
            i = next < 0 ? n : next + 1;
        } else {
            const qsizetype next = connectionString.indexOf(QLatin1Char(';'), j);
            value = connectionString.mid(j, next < 0 ? -1 : next - j).trimmed();
            i = next < 0 ? n : next + 1;
        }
        if (!key.isEmpty()) {
            pairs.append({key, value});
        }
    }
    return pairs;
}

bool ConnectionSettings::parse(const QString& connectionString, const QString& programDir,
                               ConnectionSettings& settings, QString* error) {
    ConnectionSettings s;
    s.connectionString = connectionString;
    for (const auto& [key, value] : parsePairs(connectionString)) {
        if (keyIs(key, {"Provider"})) {
            s.provider = value;
        } else if (keyIs(key, {"Data Source", "Server", "Address", "Addr", "Network Address"})) {
            s.dataSource = value;
        } else if (keyIs(key, {"Initial Catalog", "Database"})) {
            s.catalog = value;
        } else if (keyIs(key, {"User ID", "UID", "User"})) {
            s.user = value;
        } else if (keyIs(key, {"Password", "PWD"})) {
            s.password = value;
        } else if (keyIs(key, {"Integrated Security", "Trusted_Connection"})) {
            s.integratedSecurity = isTrue(value);
        }
    }
    auto fail = [error](const QString& reason) {
        if (error != nullptr) {
            *error = reason;
        }
        return false;
    };
    const QString provider = s.provider.trimmed();
    if (provider.compare(QLatin1String("SQLite"), Qt::CaseInsensitive) == 0) {
        s.backend = Backend::SQLite;
        QString folder = s.dataSource;
        folder.replace(QLatin1Char('\\'), QLatin1Char('/'));
        s.sqliteFolder = QDir::cleanPath(QDir(programDir).absoluteFilePath(folder));
    } else if (provider.compare(QLatin1String("PostgreSQL"), Qt::CaseInsensitive) == 0) {
        s.backend = Backend::PostgreSQL;
    } else if (provider.startsWith(QLatin1String("SQLOLEDB"), Qt::CaseInsensitive) ||
               provider.startsWith(QLatin1String("SQLNCLI"), Qt::CaseInsensitive) ||
               provider.startsWith(QLatin1String("MSOLEDBSQL"), Qt::CaseInsensitive)) {
        s.backend = Backend::SqlServer;
    } else if (provider.isEmpty()) {
        return fail(QStringLiteral("فايل Provider.txt سطر Provider ندارد"));
    } else {
        return fail(QStringLiteral("Provider ناشناخته در فايل Provider.txt: \"%1\"؛ SQLite، "
                                   "PostgreSQL، SQLOLEDB، SQLNCLI يا MSOLEDBSQL بنويسيد")
                        .arg(s.provider));
    }
    if (s.catalog.trimmed().isEmpty()) {
        return fail(QStringLiteral("فايل Provider.txt سطر Initial Catalog ندارد"));
    }
    if (s.backend != Backend::SQLite) {
        if (!splitServer(s.dataSource, s.host, s.port, error)) {
            return false;
        }
        if (s.host.isEmpty()) {
            return fail(QStringLiteral("فايل Provider.txt سطر Data Source ندارد"));
        }
    }
    settings = s;
    return true;
}

QString ConnectionSettings::qtDriver() const {
    switch (backend) {
        case Backend::SQLite:
            return QStringLiteral("QSQLITE");
        case Backend::PostgreSQL:
            return QStringLiteral("QPSQL");
        case Backend::SqlServer:
            return QStringLiteral("QODBC");
    }
    return {};
}

QString ConnectionSettings::sqliteFile(const QString& database) const {
    const QString name = database.isEmpty() ? catalog : database;
    return QDir(sqliteFolder).filePath(name + QStringLiteral(".sqlite"));
}

ConnectionSettings::OdbcPlatform ConnectionSettings::defaultOdbcPlatform(const QString& provider) {
#ifdef Q_OS_WIN
    return provider.startsWith(QLatin1String("SQLOLEDB"), Qt::CaseInsensitive)
               ? OdbcPlatform::WindowsLegacy
               : OdbcPlatform::WindowsDriver17;
#else
    Q_UNUSED(provider);
    return OdbcPlatform::FreeTds;
#endif
}

QString ConnectionSettings::odbcConnectionString(const QString& database) const {
    return odbcConnectionString(database, defaultOdbcPlatform(provider));
}

QString ConnectionSettings::odbcConnectionString(const QString& database,
                                                 OdbcPlatform platform) const {
    const QString db = database.isEmpty() ? catalog : database;
    QString s;
    switch (platform) {
        case OdbcPlatform::FreeTds:
            s = QStringLiteral("Driver={FreeTDS};Server=") + odbcValue(host) + QLatin1Char(';');
            if (port > 0) {
                s += QStringLiteral("Port=%1;").arg(port);
            }
            break;
        case OdbcPlatform::WindowsDriver17:
        case OdbcPlatform::WindowsLegacy:
            s = platform == OdbcPlatform::WindowsDriver17
                    ? QStringLiteral("Driver={ODBC Driver 17 for SQL Server};")
                    : QStringLiteral("Driver={SQL Server};");
            s += QStringLiteral("Server=") +
                 odbcValue(port > 0 ? host + QStringLiteral(",%1").arg(port) : host) +
                 QLatin1Char(';');
            break;
    }
    s += QStringLiteral("Database=") + odbcValue(db) + QLatin1Char(';');
    if (integratedSecurity && user.isEmpty() && platform != OdbcPlatform::FreeTds) {
        s += QStringLiteral("Trusted_Connection=yes;");
    } else {
        s += QStringLiteral("UID=") + odbcValue(user) + QStringLiteral(";PWD=") +
             odbcValue(password) + QLatin1Char(';');
    }
    if (platform == OdbcPlatform::FreeTds) {
        s += QStringLiteral("TDS_Version=7.4;ClientCharset=UTF-8;");
    }
    return s;
}

ConnectionSettings ConnectionSettings::withCatalog(const QString& catalogName) const {
    ConnectionSettings s = *this;
    s.catalog = catalogName;
    return s;
}

}  // namespace sandogh
