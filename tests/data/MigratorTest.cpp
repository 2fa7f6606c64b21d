// Applying migration steps: idempotent, recorded, each step all or nothing (in the vendors'
// databases too), the vendors' tables of an earlier shop kept, a newer schema refused
// untouched, and the same tables and columns on every backend.

#include <gtest/gtest.h>

#include "TestTables.h"
#include "data/SqlQuery.h"
#include "data/schema/Migrator.h"
#include "data/schema/SchemaReader.h"
#include "data/schema/ShopSchema.h"
#include "support/BackendTest.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

using test::column;
using test::foreignKey;
using test::index;
using test::table;
using T = ColumnType;

const QString kVendor = QStringLiteral("MizanNet");

ColumnDef identity(const char* name) {
    return {QLatin1String(name), T::Int, 0, false, true, {}};
}

// Three steps as a catalogue would write them: tables with identity, defaults and a
// foreign key, a table of a vendor's database with its index, then added columns, an
// index, and a foreign key declared after its table was created.
QList<MigrationStep> testSteps() {
    ColumnDef docSum = column("DocSum", T::Money, 0, false);
    docSum.defaultValue = QStringLiteral("0");
    MigrationStep one;
    one.version = 1;
    one.description = QStringLiteral("site and documents");
    one.tables = {
        table("Stations", {identity("ID"), column("Station_Name", T::Text, 50, false)}, "ID"),
        table("DocH",
              {column("Code", T::Int, 0, false), column("DocNo", T::Text, 20),
               column("StationID", T::Int), docSum},
              "Code"),
        table("Plu", {column("Id", T::Int, 0, false), column("Name", T::Text, 100)}, "Id", kVendor),
    };
    one.foreignKeys = {foreignKey("DocH", "StationID", "Stations", "ID")};
    one.indexes = {index("UX_Stations_Station_Name", "Stations", "Station_Name", true),
                   index("IX_Plu_Name", "Plu", "Name", false, kVendor)};
    one.seedStatements = {QStringLiteral("INSERT INTO Stations (Station_Name) VALUES ('Main')")};

    MigrationStep two;
    two.version = 2;
    two.description = QStringLiteral("document dates and lines");
    two.addColumns = {{QStringLiteral("DocH"), column("DocDate", T::Text, 10), {}},
                      {QStringLiteral("Plu"), column("Price", T::Money), kVendor}};
    two.tables = {table(
        "DocD", {identity("ID"), column("Code", T::Int, 0, false), column("EAN_Code", T::Text, 50)},
        "ID")};
    two.foreignKeys = {foreignKey("DocD", "Code", "DocH", "Code")};
    two.indexes = {index("IX_DocH_DocDate", "DocH", "DocDate")};

    MigrationStep three;
    three.version = 3;
    three.description = QStringLiteral("parties");
    three.tables = {table(
        "Parties", {column("Counter", T::Int, 0, false), column("Name", T::Text, 100)}, "Counter")};
    three.addColumns = {{QStringLiteral("DocH"), column("CompanyID", T::Int), {}}};
    three.foreignKeys = {foreignKey("DocH", "CompanyID", "Parties", "Counter")};
    return {one, two, three};
}

class MigratorTest : public test::BackendTest {
protected:
    qint64 count(const QString& sql) {
        Session s = db().session();
        return s.scalarInt64(sql, {}, -1);
    }
    // The tables and columns of the shop's database and of the vendor's.
    QList<QMap<QString, QStringList>> schema() {
        Session s = db().session();
        return {SchemaReader::tables(s), SchemaReader::tables(s, kVendor)};
    }
    QString plu() { return db().dialect().table(QStringLiteral("Plu"), kVendor); }
};

TEST_P(MigratorTest, AppliesEveryStepOnceAndRecordsIt) {
    Migrator migrator(db());
    EXPECT_EQ(migrator.currentVersion(), 0);

    const Migrator::Result first = migrator.apply(testSteps());
    ASSERT_TRUE(first.ok) << first.message.toStdString();
    EXPECT_EQ(first.versionBefore, 0);
    EXPECT_EQ(first.versionAfter, 3);
    EXPECT_EQ(first.applied, (QList<int>{1, 2, 3}));
    EXPECT_EQ(migrator.currentVersion(), 3);

    const Migrator::Result again = migrator.apply(testSteps());
    ASSERT_TRUE(again.ok) << again.message.toStdString();
    EXPECT_EQ(again.versionBefore, 3);
    EXPECT_EQ(again.versionAfter, 3);
    EXPECT_TRUE(again.applied.isEmpty());

    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM SchemaVersion")), 3);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM Stations")), 1);  // seeded once
    Session s = db().session();
    EXPECT_EQ(
        s.scalarText(QStringLiteral("SELECT Description FROM SchemaVersion WHERE Version = 2")),
        QStringLiteral("document dates and lines"));
    EXPECT_EQ(messages().count(), 0);
}

TEST_P(MigratorTest, RowsSurviveALaterForeignKeyWhichIsThenEnforced) {
    Migrator migrator(db());
    ASSERT_TRUE(migrator.apply(testSteps().mid(0, 2)).ok);
    {
        Session s = db().session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO DocH (Code, DocNo, StationID, DocDate) "
                                          "VALUES (:code, :docNo, :station, :date)"),
                           {{QStringLiteral(":code"), 1},
                            {QStringLiteral(":docNo"), QStringLiteral("1")},
                            {QStringLiteral(":station"), 1},
                            {QStringLiteral(":date"), QStringLiteral("1404/01/05")}}));
        ASSERT_TRUE(s.exec(
            QStringLiteral("INSERT INTO DocD (Code, EAN_Code) VALUES (:code, :ean)"),
            {{QStringLiteral(":code"), 1}, {QStringLiteral(":ean"), QStringLiteral("626")}}));
        ASSERT_TRUE(
            s.exec(QStringLiteral("INSERT INTO %1 (Id, Name) VALUES (:id, :name)").arg(plu()),
                   {{QStringLiteral(":id"), 7}, {QStringLiteral(":name"), QStringLiteral("x")}}));
    }
    ASSERT_TRUE(migrator.apply(testSteps()).ok);
    Session s = db().session();
    EXPECT_EQ(s.scalarText(QStringLiteral("SELECT DocDate FROM DocH WHERE Code = 1")),
              QStringLiteral("1404/01/05"));
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM DocD")), 1);
    EXPECT_EQ(s.scalarText(QStringLiteral("SELECT Name FROM ") + plu()), QStringLiteral("x"));
    const struct {
        const char* what;
        QString sql;
        DbErrorKind kind;
    } checks[] = {
        {"foreign key of step 3", QStringLiteral("UPDATE DocH SET CompanyID = 99 WHERE Code = 1"),
         DbErrorKind::ForeignKey},
        {"foreign key of step 2", QStringLiteral("INSERT INTO DocD (Code) VALUES (5)"),
         DbErrorKind::ForeignKey},
        {"foreign key of step 1 kept by the rebuild",
         QStringLiteral("UPDATE DocH SET StationID = 42 WHERE Code = 1"), DbErrorKind::ForeignKey},
        {"index of step 2 kept by the rebuild",
         QStringLiteral("INSERT INTO Stations (Station_Name) VALUES ('Main')"),
         DbErrorKind::KeyConflict},
    };
    for (const auto& c : checks) {
        EXPECT_FALSE(s.exec(c.sql, {}, FailureLogging::Quiet)) << c.what;
        EXPECT_EQ(s.lastError().kind, c.kind)
            << c.what << ": " << s.lastError().text().toStdString();
    }
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Parties (Counter, Name) VALUES (99, 'p')")));
    EXPECT_TRUE(s.exec(QStringLiteral("UPDATE DocH SET CompanyID = 99 WHERE Code = 1")));
    // The identity goes on counting after the copy.
    ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Stations (Station_Name) VALUES ('Second')")));
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(DISTINCT ID) FROM Stations")), 2);
    EXPECT_GT(
        s.scalarInt64(QStringLiteral("SELECT ID FROM Stations WHERE Station_Name = 'Second'")), 1);
}

// The vendor's table (and its index) as an earlier shop or the vendor's own program left
// it, without any record of steps: kept with its rows, and the steps go on around it.
TEST_P(MigratorTest, TheVendorsTablesOfAnEarlierShopAreKeptAsTheyAre) {
    MigrationStep earlier;
    earlier.version = 1;
    earlier.tables = {testSteps()[0].tables.last()};
    earlier.indexes = {testSteps()[0].indexes.last()};
    ASSERT_TRUE(Migrator(db()).apply({earlier}).ok);
    {
        Session s = db().session();
        ASSERT_TRUE(s.exec(
            QStringLiteral("INSERT INTO %1 (Id, Name) VALUES (:id, :name)").arg(plu()),
            {{QStringLiteral(":id"), 7}, {QStringLiteral(":name"), QStringLiteral("Cheese")}}));
        ASSERT_TRUE(s.exec(QStringLiteral("DROP TABLE SchemaVersion")));
    }
    const Migrator::Result result = Migrator(db()).apply(testSteps());
    ASSERT_TRUE(result.ok) << result.message.toStdString();
    EXPECT_EQ(result.versionAfter, 3);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM ") + plu()), 1);
}

// Neither its tables, nor the columns it adds to earlier ones, in the shop's database or
// the vendor's; mended, it applies.
TEST_P(MigratorTest, AFailingStepLeavesNothingOfItselfAnywhere) {
    Migrator migrator(db());
    ASSERT_TRUE(migrator.apply(testSteps()).ok);
    const auto before = schema();
    ASSERT_TRUE(before[0].contains(QStringLiteral("doch")));
    ASSERT_TRUE(before[1].contains(QStringLiteral("plu")));
    QList<MigrationStep> steps = testSteps();
    MigrationStep broken;
    broken.version = 4;
    broken.description = QStringLiteral("broken");
    broken.tables = {table("Half", {column("Id", T::Int)}, nullptr),
                     table("Scale", {column("Id", T::Int)}, nullptr, kVendor)};
    broken.addColumns = {{QStringLiteral("DocH"), column("Extra", T::Int), {}},
                         {QStringLiteral("Plu"), column("Extra", T::Int), kVendor}};
    broken.seedStatements = {QStringLiteral("INSERT INTO NoSuchTable (Id) VALUES (1)")};
    steps << broken;

    const Migrator::Result result = migrator.apply(steps);
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.message.contains(QStringLiteral("step 4"))) << result.message.toStdString();
    EXPECT_EQ(result.versionAfter, 3);
    EXPECT_EQ(migrator.currentVersion(), 3);
    EXPECT_EQ(schema(), before);
    steps.last().seedStatements.clear();
    EXPECT_TRUE(migrator.apply(steps).ok);
    EXPECT_NE(schema(), before);
}

TEST_P(MigratorTest, ASchemaNewerThanTheStepsIsRefusedUntouched) {
    Migrator migrator(db());
    ASSERT_TRUE(migrator.apply(testSteps().mid(0, 1)).ok);
    {
        Session s = db().session();
        ASSERT_TRUE(s.exec(
            QStringLiteral("INSERT INTO SchemaVersion (Version, Description) VALUES (9, 'x')")));
    }
    const auto before = schema();
    const Migrator::Result result = migrator.apply(testSteps());
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.newerSchema);
    EXPECT_TRUE(result.message.startsWith(Migrator::newerSchemaMessage()));
    EXPECT_TRUE(result.applied.isEmpty());
    EXPECT_EQ(schema(), before);
}

SANDOGH_INSTANTIATE_BACKENDS(MigratorTest);

// Every backend reads back the same tables and columns after the same steps.
TEST(MigratorBackends, SqliteAndPostgresEndAlike) {
    // Each list on databases of its own: a shop step may change a table of an earlier one.
    for (const QList<MigrationStep>& steps : {testSteps(), shopMigrations()}) {
        bool skip = false;
        auto sqlite = test::createOrReport(Backend::SQLite, &skip);
        ASSERT_NE(sqlite, nullptr);
        auto postgres = test::createOrReport(Backend::PostgreSQL, &skip);
        if (skip) {
            GTEST_SKIP() << "PostgreSQL is not configured; this comparison did NOT run";
        }
        ASSERT_NE(postgres, nullptr);
        ASSERT_TRUE(Migrator(sqlite->database()).apply(steps).ok);
        ASSERT_TRUE(Migrator(postgres->database()).apply(steps).ok);
        Session a = sqlite->database().session();
        Session b = postgres->database().session();
        const auto tables = SchemaReader::tables(a);
        EXPECT_FALSE(tables.isEmpty());
        EXPECT_EQ(tables, SchemaReader::tables(b));
        for (const QString& other : Migrator::otherDatabasesOf(steps)) {
            const auto tablesA = SchemaReader::tables(a, other);
            EXPECT_FALSE(tablesA.isEmpty()) << other.toStdString();
            EXPECT_EQ(tablesA, SchemaReader::tables(b, other)) << other.toStdString();
        }
    }
}

}  // namespace
}  // namespace sandogh
