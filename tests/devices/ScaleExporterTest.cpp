#include <gtest/gtest.h>

#include "data/ShopFixture.h"
#include "devices/ScaleExporter.h"

namespace sandogh::test {
namespace {

class ScaleExport : public ShopFixture {
protected:
    void SetUp() override {
        ShopFixture::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        s = session();
    }
    void TearDown() override {
        s = Session();
        ShopFixture::TearDown();
    }

    QString table(const char* name, const char* database) {
        return s.dialect().table(QString::fromLatin1(name), QString::fromLatin1(database));
    }
    qint64 rows(const char* name, const char* database) {
        return s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM ") + table(name, database));
    }

    static ScaleGood good(const char* plu, const char* barcode, const char* cost,
                          bool weighed = true) {
        ScaleGood g;
        g.plu = QString::fromLatin1(plu);
        g.name = QStringLiteral("Cheese");
        g.barcode = QString::fromLatin1(barcode);
        g.cost = QString::fromLatin1(cost);
        g.weighed = weighed;
        return g;
    }

    Session s;
};

// Takin's row carries fixed values; Sadr gives the good the key of its PLU.
TEST_P(ScaleExport, ANewItemGetsTheVendorsFixedValues) {
    ScaleExporter exporter(ScaleExportConfig{true, false, true}, messages());
    ASSERT_TRUE(exporter.goodSaved(s, good(" 12 ", "2000012", "125,000")));
    SqlQuery q(s, QStringLiteral("SELECT ID, Code, Name1, Name2, BarCode, IranCode, Type, "
                                 "Price, ItemCode, AlterPrice, Sect, Grp, Vat, Logo FROM ") +
                      table("Items", kOnlineSalesDatabase));
    ASSERT_TRUE(q.exec() && q.next());
    EXPECT_EQ(q.integer(0), 175);
    EXPECT_EQ(q.int64(1), 12);
    EXPECT_EQ(q.text(2), QStringLiteral("Cheese"));
    EXPECT_EQ(q.text(3), QString());
    EXPECT_EQ(q.text(4), QStringLiteral("2000012"));
    EXPECT_EQ(q.text(5), QString());
    EXPECT_EQ(q.integer(6), 2);
    EXPECT_DOUBLE_EQ(q.number(7), 125000.0);
    EXPECT_EQ(q.int64(8), 12);
    EXPECT_EQ(q.integer(9), 1);
    EXPECT_EQ(q.integer(10), 0);
    EXPECT_EQ(q.integer(11), 0);
    EXPECT_DOUBLE_EQ(q.number(12), 0.0);
    EXPECT_EQ(q.integer(13), 0);
    EXPECT_FALSE(q.next());
    SqlQuery key(s, QStringLiteral("SELECT ItemClassCode, PageNo, KeyNo, PluNo FROM ") +
                        table("SADR_KeyAssignment", kSadrDatabase));
    ASSERT_TRUE(key.exec() && key.next());
    EXPECT_EQ(key.integer(0), 0);
    EXPECT_EQ(key.integer(1), 0);
    EXPECT_EQ(key.int64(2), 12);
    EXPECT_EQ(key.int64(3), 12);
    EXPECT_EQ(
        s.scalarInt64(QStringLiteral("SELECT PluUnit FROM ") + table("SADR_Item", kSadrDatabase)),
        1);
    EXPECT_EQ(messages().count(), 0);
}

TEST_P(ScaleExport, SecondSaveUpdatesAndNeverInserts) {
    ScaleExporter exporter(ScaleExportConfig{true, true, true}, messages());
    // The barcode is not the PLU: each vendor's row is found again by its own key.
    ASSERT_TRUE(exporter.goodSaved(s, good("12", "2000012", "100,000")));
    ScaleGood changed = good("12", "2000012", "110,500", false);
    changed.name = QStringLiteral("Goat cheese");
    ASSERT_TRUE(exporter.goodSaved(s, changed));
    ASSERT_TRUE(exporter.goodSaved(s, changed));
    EXPECT_EQ(messages().count(), 0);

    EXPECT_EQ(rows("Items", kOnlineSalesDatabase), 1);
    EXPECT_EQ(rows("MizanNetItem", kMizanNetDatabase), 1);
    EXPECT_EQ(rows("SADR_Item", kSadrDatabase), 1);
    EXPECT_EQ(rows("SADR_KeyAssignment", kSadrDatabase), 1);

    EXPECT_EQ(
        s.scalarText(QStringLiteral("SELECT Name1 FROM ") + table("Items", kOnlineSalesDatabase)),
        QStringLiteral("Goat cheese"));
    EXPECT_DOUBLE_EQ(
        s.scalarNumber(QStringLiteral("SELECT Price FROM ") + table("Items", kOnlineSalesDatabase)),
        110500.0);
    EXPECT_EQ(
        s.scalarInt64(QStringLiteral("SELECT Type FROM ") + table("Items", kOnlineSalesDatabase)),
        1);
    SqlQuery mizan(s, QStringLiteral("SELECT PluNo, WeightUnit, UPrice, ItemCode, "
                                     "CommodityName FROM ") +
                          table("MizanNetItem", kMizanNetDatabase));
    ASSERT_TRUE(mizan.exec() && mizan.next());
    EXPECT_EQ(mizan.int64(0), 12);
    EXPECT_EQ(mizan.integer(1), 0);
    EXPECT_DOUBLE_EQ(mizan.number(2), 110500.0);
    EXPECT_EQ(mizan.text(3), QStringLiteral("2000012"));
    EXPECT_EQ(mizan.text(4), QStringLiteral("Goat cheese"));
    SqlQuery sadr(s, QStringLiteral("SELECT PluNo, UnitPrice, ItemCode, PluName FROM ") +
                         table("SADR_Item", kSadrDatabase));
    ASSERT_TRUE(sadr.exec() && sadr.next());
    EXPECT_EQ(sadr.int64(0), 12);
    EXPECT_DOUBLE_EQ(sadr.number(1), 110500.0);
    EXPECT_EQ(sadr.int64(2), 2000012);
    EXPECT_EQ(sadr.text(3), QStringLiteral("Goat cheese"));
}

TEST_P(ScaleExport, MizanLooksTheGoodUpByItsBarcodeValue) {
    ScaleExporter exporter(ScaleExportConfig{false, true, false}, messages());
    // A scale item whose PLU happens to equal the barcode value of another good.
    ASSERT_TRUE(exporter.goodSaved(s, good("777", "777", "1,000")));
    ASSERT_EQ(rows("MizanNetItem", kMizanNetDatabase), 1);
    // PLU 5 with barcode 777: the existence test finds PLU 777 and the update goes
    // to PLU 5, which has no row, so nothing is added.
    ASSERT_TRUE(exporter.goodSaved(s, good("5", "777", "2,000")));
    EXPECT_EQ(rows("MizanNetItem", kMizanNetDatabase), 1);
    EXPECT_DOUBLE_EQ(s.scalarNumber(QStringLiteral("SELECT UPrice FROM ") +
                                    table("MizanNetItem", kMizanNetDatabase)),
                     1000.0);
}

TEST_P(ScaleExport, AFailingVendorStopsTheOnesAfterIt) {
    ASSERT_TRUE(s.exec(QStringLiteral("DROP TABLE ") + table("MizanNetItem", kMizanNetDatabase)));
    ScaleExporter exporter(ScaleExportConfig{true, true, true}, messages());
    EXPECT_FALSE(exporter.goodSaved(s, good("12", "12", "5,000")));
    EXPECT_EQ(rows("Items", kOnlineSalesDatabase), 1);  // Takin ran before Mizan
    EXPECT_EQ(rows("SADR_Item", kSadrDatabase), 0);     // Sadr never came
    ASSERT_EQ(messages().count(), 1);
    EXPECT_EQ(messages().messages()[0].text, Database::connectionFailureMessage());
}

SANDOGH_INSTANTIATE_BACKENDS(ScaleExport);

}  // namespace
}  // namespace sandogh::test
