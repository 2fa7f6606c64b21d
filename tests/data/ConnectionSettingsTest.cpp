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
    QString connectionString;
    bool ok;
    Backend backend;
    QString host;
    int port;
    QString catalog;
    QString sqliteFile;     // for SQLite
    QString errorContains;  // for failures
};

void PrintTo(const ProviderCase& c, std::ostream* os) {
    *os << c.name;
}

std::vector<ProviderCase> providerCases() {
    return {
        {"SQLiteFolderRelativeToProgram",
         QStringLiteral("Provider=SQLite;Data Source=Data;Initial Catalog=Shop1404;User ID=;"
                        "Password=;Persist Security Info=False;"),
         true,
         Backend::SQLite,
         {},
         0,
         QStringLiteral("Shop1404"),
         QStringLiteral("/opt/sandogh/Data/Shop1404.sqlite"),
         {}},
        {"SQLiteProviderInAnyCase",
         QStringLiteral("provider=sqlite;Data Source=.;Initial Catalog=Demo;"),
         true,
         Backend::SQLite,
         {},
         0,
         QStringLiteral("Demo"),
         QStringLiteral("/opt/sandogh/Demo.sqlite"),
         {}},
        {"SQLiteWindowsSeparators",
         QStringLiteral("Provider=SQLite;Data Source=Data\\Years;Initial Catalog=Shop;"),
         true,
         Backend::SQLite,
         {},
         0,
         QStringLiteral("Shop"),
         QStringLiteral("/opt/sandogh/Data/Years/Shop.sqlite"),
         {}},
        {"SQLiteAbsoluteFolder",
         QStringLiteral("Provider=SQLite;Data Source=/var/lib/shop;Initial Catalog=Shop;"),
         true,
         Backend::SQLite,
         {},
         0,
         QStringLiteral("Shop"),
         QStringLiteral("/var/lib/shop/Shop.sqlite"),
         {}},
        {"PostgreSQLHostAndPort",
         QStringLiteral("Provider=PostgreSQL;Data Source=db.shop.local,5433;Initial "
                        "Catalog=shop1404;User ID=cash;Password=pw;"),
         true,
         Backend::PostgreSQL,
         QStringLiteral("db.shop.local"),
         5433,
         QStringLiteral("shop1404"),
         {},
         {}},
        {"PostgreSQLHostOnly",
         QStringLiteral("Provider=PostgreSQL;Data Source=10.0.0.5;Initial Catalog=s;"),
         true,
         Backend::PostgreSQL,
         QStringLiteral("10.0.0.5"),
         0,
         QStringLiteral("s"),
         {},
         {}},
        {"SqlOleDb",
         QStringLiteral("Provider=SQLOLEDB.1;Data Source=SRV\\SQLEXPRESS;Initial "
                        "Catalog=Shop;User ID=sa;Password=x;"),
         true,
         Backend::SqlServer,
         QStringLiteral("SRV\\SQLEXPRESS"),
         0,
         QStringLiteral("Shop"),
         {},
         {}},
        {"SqlOleDbLowerCase",
         QStringLiteral("Provider=sqloledb;Data Source=SRV,1433;Initial Catalog=Shop;"),
         true,
         Backend::SqlServer,
         QStringLiteral("SRV"),
         1433,
         QStringLiteral("Shop"),
         {},
         {}},
        {"NativeClient",
         QStringLiteral("Provider=SQLNCLI11;Data Source=SRV;Initial Catalog=Shop;"),
         true,
         Backend::SqlServer,
         QStringLiteral("SRV"),
         0,
         QStringLiteral("Shop"),
         {},
         {}},
        {"MsOleDbSql",
         QStringLiteral("Provider=MSOLEDBSQL.1;Data Source=SRV;Initial Catalog=Shop;"),
         true,
         Backend::SqlServer,
         QStringLiteral("SRV"),
         0,
         QStringLiteral("Shop"),
         {},
         {}},
        {"UnknownProvider",
         QStringLiteral("Provider=OraOLEDB.Oracle;Data Source=x;Initial Catalog=y;"),
         false,
         Backend::SQLite,
         {},
         0,
         {},
         {},
         QStringLiteral("OraOLEDB.Oracle")},
        {"NoProvider",
         QStringLiteral("Data Source=x;Initial Catalog=y;"),
         false,
         Backend::SQLite,
         {},
         0,
         {},
         {},
         QStringLiteral("Provider")},
        {"BadPort",
         QStringLiteral("Provider=PostgreSQL;Data Source=h,port;Initial Catalog=y;"),
         false,
         Backend::SQLite,
         {},
         0,
         {},
         {},
         QStringLiteral("port")},
        {"PortOutOfRange",
         QStringLiteral("Provider=PostgreSQL;Data Source=h,70000;Initial Catalog=y;"),
         false,
         Backend::SQLite,
         {},
         0,
         {},
         {},
         QStringLiteral("70000")},
        {"NoCatalog",
         QStringLiteral("Provider=SQLite;Data Source=Data;"),
         false,
         Backend::SQLite,
         {},
         0,
         {},
         {},
         QStringLiteral("Initial Catalog")},
        {"ServerWithoutHost",
         QStringLiteral("Provider=SQLOLEDB;Data Source=;Initial Catalog=y;"),
         false,
         Backend::SQLite,
         {},
         0,
         {},
         {},
         QStringLiteral("Data Source")},
        {"JoinedLinesWithoutSemicolons",
         QStringLiteral("Provider=SQLiteData Source=DataInitial Catalog=Shop"),
         false,
         Backend::SQLite,
         {},
         0,
         {},
         {},
         QStringLiteral("SQLiteData Source")},
    };
}

class ProviderTest : public ::testing::TestWithParam<ProviderCase> {};

TEST_P(ProviderTest, ChoosesTheBackend) {
    const ProviderCase& c = GetParam();
    ConnectionSettings s;
    QString error;
    ASSERT_EQ(ConnectionSettings::parse(c.connectionString, kProgramDir, s, &error), c.ok)
        << error.toStdString();
    if (!c.ok) {
        EXPECT_TRUE(error.contains(c.errorContains)) << error.toStdString();
        return;
    }
    EXPECT_EQ(s.backend, c.backend);
    EXPECT_EQ(s.catalog, c.catalog);
    EXPECT_EQ(s.host, c.host);
    EXPECT_EQ(s.port, c.port);
    if (c.backend == Backend::SQLite) {
        EXPECT_EQ(s.sqliteFile(), c.sqliteFile);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, ProviderTest, ::testing::ValuesIn(providerCases()),
                         [](const auto& p) { return std::string(p.param.name); });

ConnectionSettings sqlServer(const QString& connectionString) {
    ConnectionSettings s;
    QString error;
    EXPECT_TRUE(ConnectionSettings::parse(connectionString, kProgramDir, s, &error))
        << error.toStdString();
    return s;
}

struct OdbcCase {
    const char* name;
    QString connectionString;
    ConnectionSettings::OdbcPlatform platform;
    QString database;
    QString expected;
};

void PrintTo(const OdbcCase& c, std::ostream* os) {
    *os << c.name;
}

std::vector<OdbcCase> odbcCases() {
    using P = ConnectionSettings::OdbcPlatform;
    const QString plain = QStringLiteral(
        "Provider=SQLOLEDB.1;Persist Security Info=False;User ID=sa;Password=123;Initial "
        "Catalog=Shop1404;Data Source=SRV01;");
    return {
        {"FreeTds",
         plain,
         P::FreeTds,
         {},
         QStringLiteral("Driver={FreeTDS};Server=SRV01;Database=Shop1404;UID=sa;PWD=123;"
                        "TDS_Version=7.4;ClientCharset=UTF-8;")},
        {"FreeTdsWithPort",
         QStringLiteral("Provider=SQLNCLI11;User ID=sa;Password=p;Initial Catalog=S;"
                        "Data Source=10.0.0.2,1500;"),
         P::FreeTds,
         {},
         QStringLiteral("Driver={FreeTDS};Server=10.0.0.2;Port=1500;Database=S;UID=sa;PWD=p;"
                        "TDS_Version=7.4;ClientCharset=UTF-8;")},
        {"FreeTdsOtherDatabase", plain, P::FreeTds, QStringLiteral("master"),
         QStringLiteral("Driver={FreeTDS};Server=SRV01;Database=master;UID=sa;PWD=123;"
                        "TDS_Version=7.4;ClientCharset=UTF-8;")},
        {"PasswordWithSemicolonIsBraced",
         QStringLiteral("Provider=SQLOLEDB;User ID=sa;Password=\"a;b}c\";Initial Catalog=S;"
                        "Data Source=H;"),
         P::FreeTds,
         {},
         QStringLiteral("Driver={FreeTDS};Server=H;Database=S;UID=sa;PWD={a;b}}c};"
                        "TDS_Version=7.4;ClientCharset=UTF-8;")},
        {"WindowsDriver17",
         plain,
         P::WindowsDriver17,
         {},
         QStringLiteral("Driver={ODBC Driver 17 for SQL Server};Server=SRV01;Database=Shop1404;"
                        "UID=sa;PWD=123;")},
        {"WindowsDriver17WithPort",
         QStringLiteral("Provider=MSOLEDBSQL;User ID=u;Password=p;Initial Catalog=S;"
                        "Data Source=H,1500;"),
         P::WindowsDriver17,
         {},
         QStringLiteral("Driver={ODBC Driver 17 for SQL Server};Server=H,1500;Database=S;"
                        "UID=u;PWD=p;")},
        {"WindowsLegacyIntegratedSecurity",
         QStringLiteral("Provider=SQLOLEDB.1;Integrated Security=SSPI;Initial Catalog=Shop;"
                        "Data Source=.\\SQLEXPRESS;"),
         P::WindowsLegacy,
         {},
         QStringLiteral("Driver={SQL Server};Server=.\\SQLEXPRESS;Database=Shop;"
                        "Trusted_Connection=yes;")},
    };
}

class OdbcTest : public ::testing::TestWithParam<OdbcCase> {};

TEST_P(OdbcTest, BuildsTheOdbcConnectionString) {
    const OdbcCase& c = GetParam();
    EXPECT_EQ(sqlServer(c.connectionString).odbcConnectionString(c.database, c.platform),
              c.expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, OdbcTest, ::testing::ValuesIn(odbcCases()),
                         [](const auto& p) { return std::string(p.param.name); });

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
