// The shop schema catalogue is data: these tests check that it is consistent enough for
// every backend to render it, and that the tables and columns the program's statements
// use are all there. No database is needed.

#include <gtest/gtest.h>

#include <QHash>
#include <QSet>

#include "data/schema/ShopSchema.h"

namespace sandogh {
namespace {

// SQL Server and PostgreSQL (unquoted) compare names without regard to case.
QString tableKey(const QString& database, const QString& name) {
    return database.toLower() + QLatin1Char('.') + name.toLower();
}

struct CreatedTable {
    const TableDef* table = nullptr;
    int version = 0;
};

QHash<QString, CreatedTable> createdTables() {
    QHash<QString, CreatedTable> tables;
    for (const MigrationStep& step : shopMigrations()) {
        for (const TableDef& t : step.tables) {
            tables.insert(tableKey(t.database, t.name), {&t, step.version});
        }
    }
    return tables;
}

const ColumnDef* findColumn(const TableDef& t, const QString& name) {
    for (const ColumnDef& c : t.columns) {
        if (c.name == name) {
            return &c;
        }
    }
    return nullptr;
}

bool isUniqueOn(const TableDef& t, const QStringList& columns) {
    if (t.primaryKey == columns) {
        return true;
    }
    for (const MigrationStep& step : shopMigrations()) {
        for (const IndexDef& i : step.indexes) {
            if (i.unique && i.table == t.name && i.database == t.database && i.columns == columns) {
                return true;
            }
        }
    }
    return false;
}

TEST(ShopSchema, VersionsStartAtOneAndIncreaseByOne) {
    const QList<MigrationStep>& steps = shopMigrations();
    ASSERT_FALSE(steps.isEmpty());
    for (int i = 0; i < steps.size(); ++i) {
        EXPECT_EQ(steps[i].version, i + 1) << "step " << i;
        EXPECT_FALSE(steps[i].description.isEmpty()) << "step " << steps[i].version;
    }
}

TEST(ShopSchema, TableNamesAreUniquePerDatabase) {
    QSet<QString> seen;
    for (const MigrationStep& step : shopMigrations()) {
        for (const TableDef& t : step.tables) {
            const QString key = tableKey(t.database, t.name);
            EXPECT_FALSE(seen.contains(key)) << key.toStdString();
            seen.insert(key);
        }
    }
}

TEST(ShopSchema, ColumnNamesAreUniquePerTable) {
    for (const MigrationStep& step : shopMigrations()) {
        for (const TableDef& t : step.tables) {
            ASSERT_FALSE(t.columns.isEmpty()) << t.name.toStdString();
            QSet<QString> seen;
            for (const ColumnDef& c : t.columns) {
                EXPECT_FALSE(c.name.isEmpty()) << t.name.toStdString();
                EXPECT_FALSE(seen.contains(c.name.toLower()))
                    << t.name.toStdString() << "." << c.name.toStdString();
                seen.insert(c.name.toLower());
            }
        }
    }
}

TEST(ShopSchema, PrimaryKeyColumnsExistAndAreNotNull) {
    for (const MigrationStep& step : shopMigrations()) {
        for (const TableDef& t : step.tables) {
            QSet<QString> seen;
            for (const QString& name : t.primaryKey) {
                const ColumnDef* c = findColumn(t, name);
                ASSERT_NE(c, nullptr) << t.name.toStdString() << "." << name.toStdString();
                EXPECT_FALSE(c->nullable) << t.name.toStdString() << "." << name.toStdString();
                EXPECT_FALSE(seen.contains(name)) << t.name.toStdString();
                seen.insert(name);
            }
        }
    }
}

// SQLite numbers rows only through an INTEGER PRIMARY KEY, so an identity column must be
// the table's whole key; and a table has at most one.
TEST(ShopSchema, IdentityIsTheWholePrimaryKeyAndAnInteger) {
    for (const MigrationStep& step : shopMigrations()) {
        for (const TableDef& t : step.tables) {
            int identities = 0;
            for (const ColumnDef& c : t.columns) {
                if (!c.identity) {
                    continue;
                }
                ++identities;
                const std::string where = t.name.toStdString() + "." + c.name.toStdString();
                EXPECT_TRUE(c.type == ColumnType::Int || c.type == ColumnType::BigInt) << where;
                EXPECT_EQ(t.primaryKey, QStringList{c.name}) << where;
                EXPECT_TRUE(c.defaultValue.isEmpty()) << where;
            }
            EXPECT_LE(identities, 1) << t.name.toStdString();
        }
    }
}

TEST(ShopSchema, IndexesNameColumnsOfTablesThatExistByThen) {
    const QHash<QString, CreatedTable> tables = createdTables();
    QSet<QString> names;
    for (const MigrationStep& step : shopMigrations()) {
        for (const IndexDef& i : step.indexes) {
            const std::string where = i.name.toStdString();
            // Index names are per database (per schema on PostgreSQL).
            const QString nameKey = tableKey(i.database, i.name);
            EXPECT_FALSE(names.contains(nameKey)) << where;
            names.insert(nameKey);

            const auto found = tables.constFind(tableKey(i.database, i.table));
            ASSERT_NE(found, tables.constEnd()) << where;
            EXPECT_LE(found->version, step.version) << where;
            ASSERT_FALSE(i.columns.isEmpty()) << where;
            for (const QString& name : i.columns) {
                EXPECT_NE(findColumn(*found->table, name), nullptr)
                    << where << ": " << name.toStdString();
            }
        }
    }
}

// SQLite takes foreign keys only inside CREATE TABLE: the constraint must come in the
// step that creates its table, and point at a key of a table that exists by then.
TEST(ShopSchema, ForeignKeysComeWithTheirTableAndPointAtAKey) {
    const QHash<QString, CreatedTable> tables = createdTables();
    for (const MigrationStep& step : shopMigrations()) {
        for (const ForeignKeyDef& fk : step.foreignKeys) {
            const std::string where = fk.name.toStdString();
            const auto from = tables.constFind(tableKey({}, fk.table));
            const auto to = tables.constFind(tableKey({}, fk.refTable));
            ASSERT_NE(from, tables.constEnd()) << where;
            ASSERT_NE(to, tables.constEnd()) << where;
            EXPECT_EQ(from->version, step.version) << where;
            EXPECT_LE(to->version, step.version) << where;
            ASSERT_EQ(fk.columns.size(), fk.refColumns.size()) << where;
            for (const QString& name : fk.columns) {
                EXPECT_NE(findColumn(*from->table, name), nullptr) << where;
            }
            for (const QString& name : fk.refColumns) {
                EXPECT_NE(findColumn(*to->table, name), nullptr) << where;
            }
            EXPECT_TRUE(isUniqueOn(*to->table, fk.refColumns)) << where;
        }
    }
}

TEST(ShopSchema, TheStationForeignKeyIsDeclared) {
    bool found = false;
    for (const MigrationStep& step : shopMigrations()) {
        for (const ForeignKeyDef& fk : step.foreignKeys) {
            if (fk.name == QStringLiteral("FK_Whs_QTYDocH_Stations")) {
                found = true;
                EXPECT_EQ(fk.table, QStringLiteral("Whs_QTYDocH"));
                EXPECT_EQ(fk.columns, QStringList{QStringLiteral("StationID")});
                EXPECT_EQ(fk.refTable, QStringLiteral("Stations"));
                EXPECT_EQ(fk.refColumns, QStringList{QStringLiteral("ID")});
            }
        }
    }
    EXPECT_TRUE(found);
}

// SQL Server cannot index unbounded text, nor keys over 900 bytes (450 UTF-16 characters).
TEST(ShopSchema, KeyAndIndexColumnsAreBounded) {
    const QHash<QString, CreatedTable> tables = createdTables();
    auto check = [](const TableDef& t, const QStringList& columns, const std::string& what) {
        int characters = 0;
        for (const QString& name : columns) {
            const ColumnDef* c = findColumn(t, name);
            ASSERT_NE(c, nullptr) << what;
            EXPECT_NE(c->type, ColumnType::LongText) << what << ": " << name.toStdString();
            EXPECT_NE(c->type, ColumnType::Blob) << what << ": " << name.toStdString();
            if (c->type == ColumnType::Text) {
                characters += c->length > 0 ? c->length : 255;
            }
        }
        EXPECT_LE(characters, 450) << what;
    };
    for (const MigrationStep& step : shopMigrations()) {
        for (const TableDef& t : step.tables) {
            check(t, t.primaryKey, "primary key of " + t.name.toStdString());
        }
        for (const IndexDef& i : step.indexes) {
            const auto found = tables.constFind(tableKey(i.database, i.table));
            ASSERT_NE(found, tables.constEnd());
            check(*found->table, i.columns, i.name.toStdString());
        }
    }
}

// PostgreSQL cuts longer identifiers to 63 bytes, which could make two index names equal.
TEST(ShopSchema, IdentifiersFitPostgreSqlLimit) {
    for (const MigrationStep& step : shopMigrations()) {
        for (const TableDef& t : step.tables) {
            EXPECT_LE(t.name.toUtf8().size(), 63) << t.name.toStdString();
            for (const ColumnDef& c : t.columns) {
                EXPECT_LE(c.name.toUtf8().size(), 63) << c.name.toStdString();
            }
        }
        for (const IndexDef& i : step.indexes) {
            EXPECT_LE(i.name.toUtf8().size(), 63) << i.name.toStdString();
        }
        for (const ForeignKeyDef& fk : step.foreignKeys) {
            EXPECT_LE(fk.name.toUtf8().size(), 63) << fk.name.toStdString();
        }
    }
}

TEST(ShopSchema, AddedColumnsGoToEarlierTablesWithoutClash) {
    QHash<QString, QSet<QString>> columns;
    QHash<QString, int> createdIn;
    for (const MigrationStep& step : shopMigrations()) {
        for (const TableDef& t : step.tables) {
            const QString key = tableKey(t.database, t.name);
            createdIn.insert(key, step.version);
            for (const ColumnDef& c : t.columns) {
                columns[key].insert(c.name.toLower());
            }
        }
        for (const AddColumnDef& a : step.addColumns) {
            const QString key = tableKey(a.database, a.table);
            const std::string where = key.toStdString() + "." + a.column.name.toStdString();
            ASSERT_TRUE(createdIn.contains(key)) << where;
            EXPECT_LT(createdIn.value(key), step.version) << where;
            EXPECT_FALSE(columns[key].contains(a.column.name.toLower())) << where;
            // A column added to a filled table must accept its existing rows.
            EXPECT_TRUE(a.column.nullable || !a.column.defaultValue.isEmpty()) << where;
            EXPECT_FALSE(a.column.identity) << where;
            columns[key].insert(a.column.name.toLower());
        }
    }
}

TEST(ShopSchema, FindShopTableComparesWithoutCase) {
    const TableDef* header = findShopTable(QString(), QStringLiteral("Whs_QtyDocH"));
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->name, QStringLiteral("Whs_QTYDocH"));
    EXPECT_EQ(findShopTable(QString(), QStringLiteral("MizanNetItem")), nullptr);
    const TableDef* item =
        findShopTable(QStringLiteral("mizannet"), QStringLiteral("MizanNetItem"));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->database, QStringLiteral("MizanNet"));
}

}  // namespace
}  // namespace sandogh
