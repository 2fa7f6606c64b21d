// The differences between the backends' SQL, checked on statement text. SQL Server
// has no server here, so its rendering is only ever checked this way.

#include <gtest/gtest.h>

#include "support/QtPrinters.h"

#include "data/Dialect.h"
#include "data/schema/MigrationRenderer.h"

namespace sandogh {
namespace {

struct ExpressionCase {
    const char* name;
    Backend backend;
    std::function<QString(const Dialect&)> render;
    QString expected;
};

void PrintTo(const ExpressionCase& c, std::ostream* os) {
    *os << c.name;
}

std::vector<ExpressionCase> expressionCases() {
    auto latestPrice = [](const Dialect& d) {
        return QStringLiteral("SELECT ") + d.top(1) +
               QStringLiteral(
                   "COALESCE(Price, 0) FROM Price_History WHERE EAN_CODE = :barcode "
                   "ORDER BY Id DESC") +
               d.limit(1);
    };
    auto randomSentence = [](const Dialect& d) {
        return QStringLiteral("SELECT ") + d.top(1) + QStringLiteral("* FROM Sentences ORDER BY ") +
               d.randomOrder() + d.limit(1);
    };
    auto fullName = [](const Dialect& d) {
        return d.concat({QStringLiteral("Name"), QStringLiteral("' '"), QStringLiteral("Value1")});
    };
    auto maxDocNo = [](const Dialect& d) {
        return d.isNull(
            QStringLiteral("MAX(") + d.castBigInt(QStringLiteral("DocNo")) + QLatin1Char(')'),
            QStringLiteral("0"));
    };
    auto scaleTable = [](const Dialect& d) {
        return d.table(QStringLiteral("Goods"), QStringLiteral("MizanNet"));
    };
    auto shopTable = [](const Dialect& d) { return d.table(QStringLiteral("Whs_QTYDocH")); };
    auto reserved = [](const Dialect& d) { return d.quote(QStringLiteral("Order")); };
    auto tricky = [](const Dialect& d) { return d.quote(QStringLiteral("a\"b]c")); };
    using B = Backend;
    return {
        {"TopOnSqlServer", B::SqlServer, latestPrice,
         QStringLiteral("SELECT TOP 1 COALESCE(Price, 0) FROM Price_History WHERE EAN_CODE = "
                        ":barcode ORDER BY Id DESC")},
        {"LimitOnPostgres", B::PostgreSQL, latestPrice,
         QStringLiteral("SELECT COALESCE(Price, 0) FROM Price_History WHERE EAN_CODE = :barcode "
                        "ORDER BY Id DESC LIMIT 1")},
        {"LimitOnSqlite", B::SQLite, latestPrice,
         QStringLiteral("SELECT COALESCE(Price, 0) FROM Price_History WHERE EAN_CODE = :barcode "
                        "ORDER BY Id DESC LIMIT 1")},
        {"NewIdOnSqlServer", B::SqlServer, randomSentence,
         QStringLiteral("SELECT TOP 1 * FROM Sentences ORDER BY NEWID()")},
        {"RandomOnPostgres", B::PostgreSQL, randomSentence,
         QStringLiteral("SELECT * FROM Sentences ORDER BY RANDOM() LIMIT 1")},
        {"RandomOnSqlite", B::SQLite, randomSentence,
         QStringLiteral("SELECT * FROM Sentences ORDER BY RANDOM() LIMIT 1")},
        {"PlusOnSqlServer", B::SqlServer, fullName, QStringLiteral("(Name + ' ' + Value1)")},
        {"PipesOnPostgres", B::PostgreSQL, fullName, QStringLiteral("(Name || ' ' || Value1)")},
        {"PipesOnSqlite", B::SQLite, fullName, QStringLiteral("(Name || ' ' || Value1)")},
        {"BigIntOnSqlServer", B::SqlServer, maxDocNo,
         QStringLiteral("COALESCE(MAX(CAST(DocNo AS BIGINT)), 0)")},
        {"BigIntOnPostgres", B::PostgreSQL, maxDocNo,
         QStringLiteral("COALESCE(MAX(CAST(DocNo AS BIGINT)), 0)")},
        {"IntegerOnSqlite", B::SQLite, maxDocNo,
         QStringLiteral("COALESCE(MAX(CAST(DocNo AS INTEGER)), 0)")},
        {"ThreePartNameOnSqlServer", B::SqlServer, scaleTable,
         QStringLiteral("[MizanNet].[dbo].[Goods]")},
        {"SchemaOnPostgres", B::PostgreSQL, scaleTable, QStringLiteral("\"mizannet\".\"goods\"")},
        {"AttachedFileOnSqlite", B::SQLite, scaleTable, QStringLiteral("\"MizanNet\".\"Goods\"")},
        {"ShopTableOnSqlServer", B::SqlServer, shopTable, QStringLiteral("[Whs_QTYDocH]")},
        {"ShopTableOnPostgres", B::PostgreSQL, shopTable, QStringLiteral("\"whs_qtydoch\"")},
        {"ReservedWordOnSqlServer", B::SqlServer, reserved, QStringLiteral("[Order]")},
        {"ReservedWordOnPostgres", B::PostgreSQL, reserved, QStringLiteral("\"order\"")},
        {"ReservedWordOnSqlite", B::SQLite, reserved, QStringLiteral("\"Order\"")},
        {"BracketEscapedOnSqlServer", B::SqlServer, tricky, QStringLiteral("[a\"b]]c]")},
        {"QuoteEscapedOnPostgres", B::PostgreSQL, tricky, QStringLiteral("\"a\"\"b]c\"")},
        {"QuoteEscapedOnSqlite", B::SQLite, tricky, QStringLiteral("\"a\"\"b]c\"")},
    };
}

class DialectExpressionTest : public ::testing::TestWithParam<ExpressionCase> {};

TEST_P(DialectExpressionTest, Renders) {
    const auto dialect = Dialect::create(GetParam().backend);
    ASSERT_EQ(dialect->backend(), GetParam().backend);
    EXPECT_EQ(GetParam().render(*dialect), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, DialectExpressionTest, ::testing::ValuesIn(expressionCases()),
                         [](const auto& p) { return std::string(p.param.name); });

struct TypeCase {
    ColumnType type;
    int length;
    const char* sqlServer;
    const char* postgres;
    const char* sqlite;
};

void PrintTo(const TypeCase& c, std::ostream* os) {
    *os << c.sqlServer;
}

class ColumnTypeTest : public ::testing::TestWithParam<TypeCase> {};

TEST_P(ColumnTypeTest, NamesTheNeutralType) {
    const TypeCase& c = GetParam();
    ColumnDef column{QStringLiteral("c"), c.type, c.length, true, false, {}};
    EXPECT_EQ(Dialect::create(Backend::SqlServer)->columnType(column), QLatin1String(c.sqlServer));
    EXPECT_EQ(Dialect::create(Backend::PostgreSQL)->columnType(column), QLatin1String(c.postgres));
    EXPECT_EQ(Dialect::create(Backend::SQLite)->columnType(column), QLatin1String(c.sqlite));
}

INSTANTIATE_TEST_SUITE_P(
    Types, ColumnTypeTest,
    ::testing::Values(TypeCase{ColumnType::Int, 0, "INT", "INTEGER", "INTEGER"},
                      TypeCase{ColumnType::BigInt, 0, "BIGINT", "BIGINT", "INTEGER"},
                      TypeCase{ColumnType::Money, 0, "DECIMAL(19,4)", "NUMERIC(19,4)", "NUMERIC"},
                      TypeCase{ColumnType::Float, 0, "FLOAT", "DOUBLE PRECISION", "REAL"},
                      TypeCase{ColumnType::Text, 50, "NVARCHAR(50)", "VARCHAR(50)", "VARCHAR(50)"},
                      TypeCase{ColumnType::Text, 0, "NVARCHAR(255)", "VARCHAR(255)",
                               "VARCHAR(255)"},
                      TypeCase{ColumnType::LongText, 0, "NVARCHAR(MAX)", "TEXT", "TEXT"},
                      TypeCase{ColumnType::Bool, 0, "SMALLINT", "SMALLINT", "INTEGER"},
                      TypeCase{ColumnType::Blob, 0, "VARBINARY(MAX)", "BYTEA", "BLOB"}));

ColumnDef col(const char* name, ColumnType type, int length = 0, bool nullable = true,
              const char* def = "") {
    return {QLatin1String(name), type, length, nullable, false, QLatin1String(def)};
}

ColumnDef identity(const char* name) {
    return {QLatin1String(name), ColumnType::Int, 0, false, true, {}};
}

// Three steps that exercise every kind of DDL: a table with identity, defaults and a
// foreign key; a table of another database; an added column, an index, and a foreign
// key declared after its table.
QList<MigrationStep> renderSteps() {
    MigrationStep one;
    one.version = 1;
    one.tables = {
        {QStringLiteral("Stations"),
         {identity("ID"), col("Station_Name", ColumnType::Text, 50, false)},
         {QStringLiteral("ID")},
         {}},
        {QStringLiteral("Whs_QTYDocH"),
         {col("Code", ColumnType::Int, 0, false), col("DocNo", ColumnType::Text, 20),
          col("StationID", ColumnType::Int), col("DocSum", ColumnType::Money, 0, false, "0")},
         {QStringLiteral("Code")},
         {}},
        {QStringLiteral("Plu"),
         {col("Id", ColumnType::Int, 0, false)},
         {QStringLiteral("Id")},
         QStringLiteral("MizanNet")},
    };
    one.foreignKeys = {{QStringLiteral("FK_Whs_QTYDocH_Stations"),
                        QStringLiteral("Whs_QTYDocH"),
                        {QStringLiteral("StationID")},
                        QStringLiteral("Stations"),
                        {QStringLiteral("ID")}}};
    MigrationStep two;
    two.version = 2;
    two.addColumns = {{QStringLiteral("Whs_QTYDocH"), col("Note", ColumnType::LongText), {}}};
    two.indexes = {{QStringLiteral("UX_Stations_Station_Name"),
                    QStringLiteral("Stations"),
                    {QStringLiteral("Station_Name")},
                    true,
                    {}},
                   {QStringLiteral("IX_Plu_Id"),
                    QStringLiteral("Plu"),
                    {QStringLiteral("Id")},
                    false,
                    QStringLiteral("MizanNet")}};
    two.foreignKeys = {{QStringLiteral("FK_Whs_QTYDocH_Self"),
                        QStringLiteral("Whs_QTYDocH"),
                        {QStringLiteral("Code")},
                        QStringLiteral("Whs_QTYDocH"),
                        {QStringLiteral("Code")}}};
    return {one, two};
}

TEST(MigrationRendering, SqlServerStatements) {
    const auto dialect = Dialect::create(Backend::SqlServer);
    MigrationRenderer renderer(*dialect);
    const QList<MigrationStep> steps = renderSteps();

    const auto one = renderer.render(steps[0]);
    EXPECT_EQ(one.otherDatabases, QStringList{QStringLiteral("MizanNet")});
    EXPECT_FALSE(one.rebuildsTables);
    EXPECT_EQ(one.statements,
              (QStringList{
                  QStringLiteral("CREATE TABLE [Stations] ([ID] INT IDENTITY(1,1) NOT NULL, "
                                 "[Station_Name] NVARCHAR(50) NOT NULL, CONSTRAINT [PK_Stations] "
                                 "PRIMARY KEY ([ID]))"),
                  QStringLiteral("CREATE TABLE [Whs_QTYDocH] ([Code] INT NOT NULL, [DocNo] "
                                 "NVARCHAR(20), [StationID] INT, [DocSum] DECIMAL(19,4) NOT NULL "
                                 "DEFAULT 0, CONSTRAINT [PK_Whs_QTYDocH] PRIMARY KEY ([Code]))"),
                  QStringLiteral("CREATE TABLE [MizanNet].[dbo].[Plu] ([Id] INT NOT NULL, "
                                 "CONSTRAINT [PK_Plu] PRIMARY KEY ([Id]))"),
                  QStringLiteral("ALTER TABLE [Whs_QTYDocH] ADD CONSTRAINT "
                                 "[FK_Whs_QTYDocH_Stations] FOREIGN KEY ([StationID]) REFERENCES "
                                 "[Stations] ([ID])"),
              }));

    const auto two = renderer.render(steps[1]);
    EXPECT_EQ(two.statements,
              (QStringList{
                  QStringLiteral("ALTER TABLE [Whs_QTYDocH] ADD [Note] NVARCHAR(MAX)"),
                  QStringLiteral("ALTER TABLE [Whs_QTYDocH] ADD CONSTRAINT [FK_Whs_QTYDocH_Self] "
                                 "FOREIGN KEY ([Code]) REFERENCES [Whs_QTYDocH] ([Code])"),
                  QStringLiteral("CREATE UNIQUE INDEX [UX_Stations_Station_Name] ON [Stations] "
                                 "([Station_Name])"),
                  QStringLiteral("CREATE INDEX [IX_Plu_Id] ON [MizanNet].[dbo].[Plu] ([Id])"),
              }));
    EXPECT_EQ(dialect->createOtherDatabase(QStringLiteral("MizanNet")),
              QStringLiteral("CREATE DATABASE [MizanNet]"));
}

TEST(MigrationRendering, SqliteKeepsForeignKeysInCreateTableAndRebuildsForLaterOnes) {
    const auto dialect = Dialect::create(Backend::SQLite);
    MigrationRenderer renderer(*dialect);
    const QList<MigrationStep> steps = renderSteps();

    const auto one = renderer.render(steps[0]);
    ASSERT_EQ(one.statements.size(), 3);
    EXPECT_EQ(one.statements[0],
              QStringLiteral("CREATE TABLE \"Stations\" (\"ID\" INTEGER PRIMARY KEY "
                             "AUTOINCREMENT, \"Station_Name\" VARCHAR(50) NOT NULL)"));
    EXPECT_TRUE(one.statements[1].endsWith(
        QStringLiteral("PRIMARY KEY (\"Code\"), CONSTRAINT \"FK_Whs_QTYDocH_Stations\" FOREIGN "
                       "KEY (\"StationID\") REFERENCES \"Stations\" (\"ID\"))")))
        << one.statements[1].toStdString();

    const auto two = renderer.render(steps[1]);
    EXPECT_TRUE(two.rebuildsTables);
    EXPECT_EQ(two.statements,
              (QStringList{
                  QStringLiteral("ALTER TABLE \"Whs_QTYDocH\" ADD COLUMN \"Note\" TEXT"),
                  QStringLiteral(
                      "CREATE TABLE \"Whs_QTYDocH__rebuild\" (\"Code\" INTEGER NOT NULL, "
                      "\"DocNo\" VARCHAR(20), \"StationID\" INTEGER, \"DocSum\" NUMERIC NOT NULL "
                      "DEFAULT 0, \"Note\" TEXT, PRIMARY KEY (\"Code\"), CONSTRAINT "
                      "\"FK_Whs_QTYDocH_Stations\" FOREIGN KEY (\"StationID\") REFERENCES "
                      "\"Stations\" (\"ID\"), CONSTRAINT \"FK_Whs_QTYDocH_Self\" FOREIGN KEY "
                      "(\"Code\") REFERENCES \"Whs_QTYDocH\" (\"Code\"))"),
                  QStringLiteral("INSERT INTO \"Whs_QTYDocH__rebuild\" (\"Code\", \"DocNo\", "
                                 "\"StationID\", \"DocSum\", \"Note\") SELECT \"Code\", "
                                 "\"DocNo\", \"StationID\", \"DocSum\", \"Note\" FROM "
                                 "\"Whs_QTYDocH\""),
                  QStringLiteral("DROP TABLE \"Whs_QTYDocH\""),
                  QStringLiteral("ALTER TABLE \"Whs_QTYDocH__rebuild\" RENAME TO \"Whs_QTYDocH\""),
                  QStringLiteral("CREATE UNIQUE INDEX \"UX_Stations_Station_Name\" ON "
                                 "\"Stations\" (\"Station_Name\")"),
                  QStringLiteral("CREATE INDEX \"MizanNet\".\"IX_Plu_Id\" ON \"Plu\" (\"Id\")"),
              }));
}

TEST(MigrationRendering, SqliteKeepsAPrimaryKeyBesideTheIdentityAsUnique) {
    TableDef t{QStringLiteral("Serial"),
               {identity("Id"), col("SerialNo", ColumnType::Text, 30, false)},
               {QStringLiteral("SerialNo")},
               {}};
    EXPECT_EQ(Dialect::create(Backend::SQLite)->createTable(t, {}),
              QStringList{QStringLiteral(
                  "CREATE TABLE \"Serial\" (\"Id\" INTEGER PRIMARY KEY AUTOINCREMENT, "
                  "\"SerialNo\" VARCHAR(30) NOT NULL, UNIQUE (\"SerialNo\"))")});
    EXPECT_EQ(Dialect::create(Backend::PostgreSQL)->createTable(t, {}),
              QStringList{QStringLiteral(
                  "CREATE TABLE \"serial\" (\"id\" INTEGER GENERATED BY DEFAULT AS IDENTITY, "
                  "\"serialno\" VARCHAR(30) NOT NULL, CONSTRAINT \"pk_serial\" PRIMARY KEY "
                  "(\"serialno\"))")});
}

}  // namespace
}  // namespace sandogh
