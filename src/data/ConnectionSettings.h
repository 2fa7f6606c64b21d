#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include "data/Backend.h"

namespace sandogh {

// Where the shop database is, taken apart from the assembled connection string of
// the connection file. The Provider value chooses the backend:
//   SQLite                               Data Source = folder of the database files (relative
//                                        to the program folder), file <folder>/<catalog>.sqlite
//   PostgreSQL                           Data Source = host or "host,port"
//   SQLOLEDB*, SQLNCLI*, MSOLEDBSQL*     Microsoft SQL Server through ODBC
struct ConnectionSettings {
    // The ODBC driver names the SQL Server connection string can name.
    enum class OdbcPlatform { FreeTds, WindowsDriver17, WindowsLegacy };

    Backend backend = Backend::SQLite;
    QString connectionString;  // as assembled from the file
    QString provider;          // the Provider value as written
    QString dataSource;        // the Data Source value as written
    QString catalog;           // the Initial Catalog value: the database of the fiscal year
    QString host;              // server host (PostgreSQL, SQL Server)
    int port = 0;              // 0: the server's default
    QString user;
    QString password;
    bool integratedSecurity = false;  // SQL Server: the Windows login instead of user/password
    QString sqliteFolder;             // absolute folder of the SQLite files

    // The key/value pairs of an OLE DB connection string, in order. Keys are trimmed;
    // values may be quoted with " or ' to hold a semicolon.
    static QList<QPair<QString, QString>> parsePairs(const QString& connectionString);

    // Takes the connection string apart. False with a reason in error for an unknown or
    // missing provider, a missing catalog or a bad port.
    static bool parse(const QString& connectionString, const QString& programDir,
                      ConnectionSettings& settings, QString* error);

    // The Qt SQL driver of the backend: QSQLITE, QPSQL or QODBC.
    QString qtDriver() const;

    // The SQLite file of a database: the catalog's when database is empty, else the
    // file of another database (a scale vendor's) beside it.
    QString sqliteFile(const QString& database = {}) const;

    // The ODBC connection string for SQL Server; database empty for the catalog.
    QString odbcConnectionString(const QString& database = {}) const;
    QString odbcConnectionString(const QString& database, OdbcPlatform platform) const;
    static OdbcPlatform defaultOdbcPlatform(const QString& provider);

    // The same server with another database (the maintenance database, a test database).
    ConnectionSettings withCatalog(const QString& catalogName) const;
};

}  // namespace sandogh
