// The Provider value chooses the backend; the rest of the string says where the
// database is.

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

#include "data/ConnectionSettings.h"

namespace sandogh {
namespace {

const QString kProgramDir = QStringLiteral("/opt/sandogh");

struct ProviderCase {
    const char* name;
    const char* connectionString;
    bool ok;
    Backend backend;
    const char* where;  // the SQLite file, or the host; for a failure, a part of the message
    int port = 0;
    const char* catalog = "";
};

constexpr Backend kSQLite = Backend::SQLite;
constexpr Backend kPostgres = Backend::PostgreSQL;
constexpr Backend kServer = Backend::SqlServer;

const ProviderCase kProviderCases[] = {
    {"SQLiteFolderRelativeToProgram",
     "Provider=SQLite;Data Source=Data;Initial Catalog=Shop1404;User ID=;Password=;Persist "
     "Security Info=False;",
     true, kSQLite, "/opt/sandogh/Data/Shop1404.sqlite", 0, "Shop1404"},
    {"SQLiteProviderInAnyCase", "provider=sqlite;Data Source=.;Initial Catalog=Demo;", true,
     kSQLite, "/opt/sandogh/Demo.sqlite", 0, "Demo"},
    {"SQLiteWindowsSeparators", "Provider=SQLite;Data Source=Data\\Years;Initial Catalog=Shop;",
     true, kSQLite, "/opt/sandogh/Data/Years/Shop.sqlite", 0, "Shop"},
    {"SQLiteAbsoluteFolder", "Provider=SQLite;Data Source=/var/lib/shop;Initial Catalog=Shop;",
     true, kSQLite, "/var/lib/shop/Shop.sqlite", 0, "Shop"},
    {"PostgreSQLHostAndPort",
     "Provider=PostgreSQL;Data Source=db.shop.local,5433;Initial Catalog=shop1404;User "
     "ID=cash;Password=pw;",
     true, kPostgres, "db.shop.local", 5433, "shop1404"},
    {"PostgreSQLHostOnly", "Provider=PostgreSQL;Data Source=10.0.0.5;Initial Catalog=s;", true,
     kPostgres, "10.0.0.5", 0, "s"},
    {"SqlOleDb",
     "Provider=SQLOLEDB.1;Data Source=SRV\\SQLEXPRESS;Initial Catalog=Shop;User ID=sa;Password=x;",
     true, kServer, "SRV\\SQLEXPRESS", 0, "Shop"},
    {"SqlOleDbLowerCase", "Provider=sqloledb;Data Source=SRV,1433;Initial Catalog=Shop;", true,
     kServer, "SRV", 1433, "Shop"},
    {"NativeClient", "Provider=SQLNCLI11;Data Source=SRV;Initial Catalog=Shop;", true, kServer,
     "SRV", 0, "Shop"},
    {"MsOleDbSql", "Provider=MSOLEDBSQL.1;Data Source=SRV;Initial Catalog=Shop;", true, kServer,
     "SRV", 0, "Shop"},
    {"UnknownProvider", "Provider=OraOLEDB.Oracle;Data Source=x;Initial Catalog=y;", false, kSQLite,
     "OraOLEDB.Oracle"},
    {"NoProvider", "Data Source=x;Initial Catalog=y;", false, kSQLite, "Provider"},
    {"BadPort", "Provider=PostgreSQL;Data Source=h,port;Initial Catalog=y;", false, kSQLite,
     "port"},
    {"PortOutOfRange", "Provider=PostgreSQL;Data Source=h,70000;Initial Catalog=y;", false, kSQLite,
     "70000"},
    {"NoCatalog", "Provider=SQLite;Data Source=Data;", false, kSQLite, "Initial Catalog"},
    {"ServerWithoutHost", "Provider=SQLOLEDB;Data Source=;Initial Catalog=y;", false, kSQLite,
     "Data Source"},
    {"JoinedLinesWithoutSemicolons", "Provider=SQLiteData Source=DataInitial Catalog=Shop", false,
     kSQLite, "SQLiteData Source"},
};

TEST(ConnectionSettings, TheProviderChoosesTheBackendAndTheRestSaysWhere) {
    for (const ProviderCase& c : kProviderCases) {
        SCOPED_TRACE(c.name);
        ConnectionSettings s;
        QString error;
        ASSERT_EQ(ConnectionSettings::parse(QString::fromUtf8(c.connectionString), kProgramDir, s,
                                            &error),
                  c.ok)
            << error.toStdString();
        const QString where = QString::fromUtf8(c.where);
        if (!c.ok) {
            EXPECT_TRUE(error.contains(where)) << error.toStdString();
            continue;
        }
        EXPECT_EQ(s.backend, c.backend);
        EXPECT_EQ(s.catalog, QString::fromUtf8(c.catalog));
        EXPECT_EQ(s.port, c.port);
        EXPECT_EQ(c.backend == kSQLite ? s.sqliteFile() : s.host, where);
        if (c.backend == kSQLite) {
            EXPECT_TRUE(s.host.isEmpty());
        }
    }
}

struct OdbcCase {
    const char* name;
    const char* connectionString;  // kPlain when null
    ConnectionSettings::OdbcPlatform platform;
    const char* database;
    const char* expected;
};

const char* const kPlain =
    "Provider=SQLOLEDB.1;Persist Security Info=False;User ID=sa;Password=123;Initial "
    "Catalog=Shop1404;Data Source=SRV01;";
constexpr auto kFreeTds = ConnectionSettings::OdbcPlatform::FreeTds;
constexpr auto kDriver17 = ConnectionSettings::OdbcPlatform::WindowsDriver17;

const OdbcCase kOdbcCases[] = {
    {"FreeTds", nullptr, kFreeTds, "",
     "Driver={FreeTDS};Server=SRV01;Database=Shop1404;UID=sa;PWD=123;TDS_Version=7.4;"
     "ClientCharset=UTF-8;"},
    {"FreeTdsWithPort",
     "Provider=SQLNCLI11;User ID=sa;Password=p;Initial Catalog=S;Data Source=10.0.0.2,1500;",
     kFreeTds, "",
     "Driver={FreeTDS};Server=10.0.0.2;Port=1500;Database=S;UID=sa;PWD=p;TDS_Version=7.4;"
     "ClientCharset=UTF-8;"},
    {"FreeTdsOtherDatabase", nullptr, kFreeTds, "master",
     "Driver={FreeTDS};Server=SRV01;Database=master;UID=sa;PWD=123;TDS_Version=7.4;"
     "ClientCharset=UTF-8;"},
    {"PasswordWithSemicolonIsBraced",
     "Provider=SQLOLEDB;User ID=sa;Password=\"a;b}c\";Initial Catalog=S;Data Source=H;", kFreeTds,
     "",
     "Driver={FreeTDS};Server=H;Database=S;UID=sa;PWD={a;b}}c};TDS_Version=7.4;"
     "ClientCharset=UTF-8;"},
    {"WindowsDriver17", nullptr, kDriver17, "",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV01;Database=Shop1404;UID=sa;PWD=123;"},
    {"WindowsDriver17WithPort",
     "Provider=MSOLEDBSQL;User ID=u;Password=p;Initial Catalog=S;Data Source=H,1500;", kDriver17,
     "", "Driver={ODBC Driver 17 for SQL Server};Server=H,1500;Database=S;UID=u;PWD=p;"},
    {"WindowsLegacyIntegratedSecurity",
     "Provider=SQLOLEDB.1;Integrated Security=SSPI;Initial Catalog=Shop;Data "
     "Source=.\\SQLEXPRESS;",
     ConnectionSettings::OdbcPlatform::WindowsLegacy, "",
     "Driver={SQL Server};Server=.\\SQLEXPRESS;Database=Shop;Trusted_Connection=yes;"},
};

TEST(ConnectionSettings, BuildsTheOdbcConnectionString) {
    for (const OdbcCase& c : kOdbcCases) {
        SCOPED_TRACE(c.name);
        ConnectionSettings s;
        QString error;
        ASSERT_TRUE(ConnectionSettings::parse(
            QString::fromUtf8(c.connectionString ? c.connectionString : kPlain), kProgramDir, s,
            &error))
            << error.toStdString();
        EXPECT_EQ(s.odbcConnectionString(QString::fromUtf8(c.database), c.platform),
                  QString::fromUtf8(c.expected));
    }
}

TEST(ConnectionSettingsPairs, QuotedValuesKeepSemicolonsAndQuotes) {
    const auto pairs = ConnectionSettings::parsePairs(
        QStringLiteral(" Provider = SQLite ;Password='it''s;x';Broken;Data Source=\"a;b\";x="));
    ASSERT_EQ(pairs.size(), 4);
    EXPECT_EQ(pairs[0].first, QStringLiteral("Provider"));
    EXPECT_EQ(pairs[0].second, QStringLiteral("SQLite"));
    EXPECT_EQ(pairs[1].second, QStringLiteral("it's;x"));
    EXPECT_EQ(pairs[2].first, QStringLiteral("Data Source"));
    EXPECT_EQ(pairs[2].second, QStringLiteral("a;b"));
    EXPECT_EQ(pairs[3].first, QStringLiteral("x"));
    EXPECT_TRUE(pairs[3].second.isEmpty());
}

}  // namespace
}  // namespace sandogh
