// The grid's model: its twelve columns, shown texts against kept values, the line
// arithmetic and the case-insensitive barcode match.

#include <gtest/gtest.h>

#include "sales/SaleLinesModel.h"
#include "sales/SaleTexts.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

struct TotalCase {
    double price;
    double qty;
    double tax;
    double total;
};

class LineTotal : public ::testing::TestWithParam<TotalCase> {};

TEST_P(LineTotal, IsPriceTimesQuantityWithTaxAddedAndNoRounding) {
    const TotalCase c = GetParam();
    EXPECT_DOUBLE_EQ(SaleLine::lineTotal(c.price, c.qty, c.tax), c.total);
}

INSTANTIATE_TEST_SUITE_P(Cases, LineTotal,
                         ::testing::Values(TotalCase{10000, 3, 9, 32700},
                                           TotalCase{10000, 3, 0, 30000},
                                           TotalCase{12500, 0.375, 0, 4687.5},
                                           TotalCase{999, 1.5, 9, 1633.365},
                                           TotalCase{0, 4, 9, 0}));

SaleLine line(const char* barcode, double qty, double price, double tax = 0) {
    SaleLine l;
    l.barcode = QString::fromLatin1(barcode);
    l.name = QStringLiteral("Item");
    l.quantity = qty;
    l.unitPrice = price;
    l.taxPercent = tax;
    l.seller = QStringLiteral("ali");
    l.recompute();
    return l;
}

TEST(SaleLinesModel, ShowsQuantitiesAndAmountsWithSeparatorsButKeepsTheNumbers) {
    SaleLinesModel model;
    model.append(line("A1", 1234.5, 1999.6, 9));
    const auto shown = [&](int column) { return model.data(model.index(0, column)).toString(); };
    const auto kept = [&](int column) {
        return model.data(model.index(0, column), SaleLinesModel::ValueRole);
    };
    EXPECT_EQ(shown(SaleLinesModel::ColRow), QStringLiteral("1"));
    EXPECT_EQ(shown(SaleLinesModel::ColQuantity), QStringLiteral("1,234.5"));
    EXPECT_EQ(shown(SaleLinesModel::ColUnitPrice), QStringLiteral("2,000"));
    EXPECT_EQ(shown(SaleLinesModel::ColTotal), QStringLiteral("2,690,672"));
    EXPECT_DOUBLE_EQ(kept(SaleLinesModel::ColUnitPrice).toDouble(), 1999.6);
    EXPECT_DOUBLE_EQ(kept(SaleLinesModel::ColTotal).toDouble(), 1234.5 * 1999.6 * 1.09);
    EXPECT_EQ(kept(SaleLinesModel::ColSeller).toString(), QStringLiteral("ali"));
}

TEST(SaleLinesModel, FindsTheFirstLineOfABarcodeWithoutRegardToCase) {
    SaleLinesModel model;
    model.append(line("x9", 1, 10));
    model.append(line("AB", 1, 10));
    model.append(line("ab", 1, 10));
    EXPECT_EQ(model.findBarcode(QStringLiteral("aB")), 1);
    EXPECT_EQ(model.findBarcode(QStringLiteral("zz")), -1);
}

TEST(SaleLinesModel, TotalsTheLinesAndRenumbersAfterADelete) {
    SaleLinesModel model;
    EXPECT_DOUBLE_EQ(model.total(), 0);
    model.append(line("A", 3, 10000, 9));
    model.append(line("B", 1, 500));
    model.append(line("C", 2, 250));
    EXPECT_DOUBLE_EQ(model.total(), 32700 + 500 + 500);
    ASSERT_TRUE(model.remove(1));
    EXPECT_FALSE(model.remove(5));
    EXPECT_EQ(model.data(model.index(1, SaleLinesModel::ColRow)).toString(), QStringLiteral("2"));
    EXPECT_EQ(model.data(model.index(1, SaleLinesModel::ColBarcode)).toString(),
              QStringLiteral("C"));
    EXPECT_DOUBLE_EQ(model.total(), 33200);
}

}  // namespace
}  // namespace sandogh
