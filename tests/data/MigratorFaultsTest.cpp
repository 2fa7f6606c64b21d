// Migration around what is already there or goes wrong: the vendors' tables of an earlier
// shop are kept, a failing step leaves nothing of itself in the vendors' databases either,
// and a schema newer than the steps is refused untouched.

#include <gtest/gtest.h>

#include "TestTables.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/schema/Migrator.h"
#include "data/schema/SchemaReader.h"
#include "support/BackendTest.h"

namespace sandogh {
namespace {

using test::column;

const QString kVendor = QStringLiteral("MizanNet");

MigrationStep shopStep() {
    MigrationStep step;
    step.version = 1;
    step.description = QStringLiteral("shop");
    step.tables = {{QStringLiteral("Shelf"), {column("Id", ColumnType::Int, 0, false)}, {}, {}}};
    return step;
}

// A vendor's table with its index and a column added later, and a shop table.
MigrationStep vendorStep() {
    MigrationStep step;
    step.version = 2;
    step.description = QStringLiteral("vendor");
    step.tables = {
        {QStringLiteral("Plu"),
         {column("PluNo", ColumnType::BigInt, 0, false), column("Name", ColumnType::Text, 50)},
         {QStringLiteral("PluNo")},
         kVendor},
        {QStringLiteral("Bin"), {column("Id", ColumnType::Int, 0, false)}, {}, {}},
    };
    step.indexes = {{QStringLiteral("IX_Plu_Name"),
                     QStringLiteral("Plu"),
                     {QStringLiteral("Name")},
                     false,
                     kVendor}};
    return step;
}

class MigratorFaultsTest : public test::BackendTest {
protected:
    bool vendorHas(const char* table) {
        Session s = db().session();
        return SchemaReader::tableExists(s, QString::fromLatin1(table), kVendor);
    }
};

TEST_P(MigratorFaultsTest, TheVendorsTablesOfAnEarlierShopAreKeptAsTheyAre) {
    // The vendor's database as an earlier shop (or the vendor's program) left it.
    MigrationStep earlier = vendorStep();
    earlier.version = 1;
    earlier.tables.removeLast();
    ASSERT_TRUE(Migrator(db()).apply({earlier}).ok);
    {
        Session s = db().session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO %1 (PluNo, Name) VALUES (7, 'Cheese')")
                               .arg(db().dialect().table(QStringLiteral("Plu"), kVendor))));
        ASSERT_TRUE(s.exec(QStringLiteral("DROP TABLE SchemaVersion")));
    }

    const Migrator::Result result = Migrator(db()).apply({shopStep(), vendorStep()});
    ASSERT_TRUE(result.ok) << result.message.toStdString();
    EXPECT_EQ(result.versionAfter, 2);
    Session s = db().session();
    EXPECT_TRUE(SchemaReader::tableExists(s, QStringLiteral("Bin")));
    EXPECT_EQ(s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM %1")
                                .arg(db().dialect().table(QStringLiteral("Plu"), kVendor)),
                            {}, -1),
              1);
}

// Neither its tables, nor a column it adds to an earlier table, nor its vendors' tables.
TEST_P(MigratorFaultsTest, AFailingStepLeavesNothingOfItselfAnywhere) {
    Migrator migrator(db());
    ASSERT_TRUE(migrator.apply({shopStep()}).ok);
    const auto tablesBefore = [&] {
        Session s = db().session();
        return SchemaReader::tables(s);
    }();
    MigrationStep broken = vendorStep();
    broken.addColumns = {{QStringLiteral("Shelf"), column("Extra", ColumnType::Int), {}}};
    broken.seedStatements = {QStringLiteral("INSERT INTO NoSuchTable (Id) VALUES (1)")};
    const Migrator::Result result = migrator.apply({shopStep(), broken});
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.message.contains(QStringLiteral("step 2"))) << result.message.toStdString();
    EXPECT_EQ(result.versionAfter, 1);
    EXPECT_EQ(migrator.currentVersion(), 1);
    EXPECT_FALSE(vendorHas("Plu"));
    {
        Session s = db().session();
        EXPECT_EQ(SchemaReader::tables(s), tablesBefore);  // no Bin, no Shelf.Extra
    }
    // Mended, the step applies.
    EXPECT_TRUE(migrator.apply({shopStep(), vendorStep()}).ok);
    EXPECT_TRUE(vendorHas("Plu"));
}

TEST_P(MigratorFaultsTest, ASchemaNewerThanTheStepsIsRefusedUntouched) {
    Migrator migrator(db());
    ASSERT_TRUE(migrator.apply({shopStep()}).ok);
    {
        Session s = db().session();
        ASSERT_TRUE(s.exec(
            QStringLiteral("INSERT INTO SchemaVersion (Version, Description) VALUES (9, 'x')")));
    }
    const Migrator::Result result = migrator.apply({shopStep(), vendorStep()});
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.newerSchema);
    EXPECT_TRUE(result.message.startsWith(Migrator::newerSchemaMessage()));
    EXPECT_TRUE(result.applied.isEmpty());
    EXPECT_FALSE(vendorHas("Plu"));
}

SANDOGH_INSTANTIATE_BACKENDS(MigratorFaultsTest);

}  // namespace
}  // namespace sandogh
