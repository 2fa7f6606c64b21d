// Ringing up through the barcode box: what the cashier types, as the screen resolves it.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "SaleScreenTest.h"
#include "sales/SaleSession.h"
#include "sales/SaleTexts.h"
#include "ui/sales/frmSale.h"

namespace sandogh::test {
namespace {

class frmSaleEntryTest : public SaleScreenTest {};

struct MergeCase {
    const char* name;
    bool noMerge;
    int lines;
    double firstQuantity;
};

class frmSaleMergeTest : public SaleScreenTest, public ::testing::WithParamInterface<MergeCase> {};

TEST_P(frmSaleMergeTest, SameBarcodeTwice) {
    const MergeCase& c = GetParam();
    setOption("SaleOptions", "NoMerge", c.noMerge ? QStringLiteral("1") : QStringLiteral("0"));
    addGoods({QStringLiteral("6260001"), 10000});
    openScreen();

    scan(QStringLiteral("6260001"));
    scan(QStringLiteral("6260001"));

    EXPECT_EQ(lineCount(), c.lines);
    EXPECT_DOUBLE_EQ(quantityOf(0), c.firstQuantity);
    EXPECT_EQ(totalShown(), QStringLiteral("20,000"));
    EXPECT_TRUE(screen().txtBarcode->text().isEmpty());
    EXPECT_TRUE(barcodeHasFocus());
}

INSTANTIATE_TEST_SUITE_P(Options, frmSaleMergeTest,
                         ::testing::Values(MergeCase{"Merged", false, 1, 2},
                                           MergeCase{"NoMerge", true, 2, 1}),
                         CaseName());

struct TotalCase {
    double tax;
    const char* shown;
};

class frmSaleTotalTest : public SaleScreenTest, public ::testing::WithParamInterface<TotalCase> {};

TEST_P(frmSaleTotalTest, ThreeOfTenThousand) {
    addGoods({QStringLiteral("6260002"), 10000, GetParam().tax});
    openScreen();

    scan(QStringLiteral("6260002"));
    scan(QStringLiteral("3"));

    ASSERT_EQ(lineCount(), 1);
    EXPECT_DOUBLE_EQ(quantityOf(0), 3);
    EXPECT_EQ(totalShown(), QString::fromLatin1(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(Tax, frmSaleTotalTest,
                         ::testing::Values(TotalCase{9, "32,700"}, TotalCase{0, "30,000"}));

TEST_F(frmSaleEntryTest, QuantityBeforeAnyLineAsksForTheBarcodeFirst) {
    addGoods({QStringLiteral("6260003"), 5000});
    openScreen();

    scan(QStringLiteral("12"));

    EXPECT_EQ(lineCount(), 0);
    EXPECT_EQ(messages().countOf(SaleTexts::quantityFirst()), 1);
    EXPECT_TRUE(screen().txtBarcode->text().isEmpty());

    scan(QStringLiteral("6260003"));
    scan(QStringLiteral("12"));
    EXPECT_DOUBLE_EQ(quantityOf(0), 12);
    // A second number adds to a count that is no longer 1.
    scan(QStringLiteral("12"));
    EXPECT_DOUBLE_EQ(quantityOf(0), 24);
    EXPECT_EQ(totalShown(), QStringLiteral("120,000"));
    EXPECT_EQ(messages().countOf(SaleTexts::quantityFirst()), 1);
}

struct CardCase {
    const char* name;
    bool cardReader;
    int lines;
    bool boxKept;
};

class frmSaleCardTest : public SaleScreenTest, public ::testing::WithParamInterface<CardCase> {};

TEST_P(frmSaleCardTest, TenCharacters) {
    const CardCase& c = GetParam();
    setOption("IsKeyboardRFID", "Enable", c.cardReader ? QStringLiteral("1") : QStringLiteral("0"));
    addGoods({QStringLiteral("1234567890"), 7000});
    RecordingSaleActions actions;
    openScreen().setActions(&actions);

    scan(QStringLiteral("1234567890"));

    EXPECT_EQ(lineCount(), c.lines);
    EXPECT_EQ(actions.cards.size(), c.cardReader ? 1 : 0);
    // A card the look-up refused keeps its number in the box.
    EXPECT_EQ(screen().txtBarcode->text(), c.boxKept ? QStringLiteral("1234567890") : QString());
}

INSTANTIATE_TEST_SUITE_P(CardOption, frmSaleCardTest,
                         ::testing::Values(CardCase{"Off", false, 1, false},
                                           CardCase{"On", true, 0, true}),
                         CaseName());

TEST_F(frmSaleEntryTest, EightCharactersWithoutTheScalePrefixAreABarcode) {
    setOption("ScaleTicket", "Mizan", QStringLiteral("1"));
    setOption("ScaleTicket", "Prefix", QStringLiteral("2"));
    addGoods({QStringLiteral("62600044"), 4500});
    openScreen();

    scan(QStringLiteral("62600044"));

    ASSERT_EQ(lineCount(), 1);
    EXPECT_EQ(screen().session().linesModel().line(0).barcode, QStringLiteral("62600044"));
    EXPECT_EQ(totalShown(), QStringLiteral("4,500"));
}

TEST_F(frmSaleEntryTest, ApostrophesAreStripped) {
    addGoods({QStringLiteral("6260005"), 2500});
    openScreen();

    scan(QStringLiteral("626'0005'"));

    ASSERT_EQ(lineCount(), 1);
    EXPECT_EQ(screen().session().linesModel().line(0).barcode, QStringLiteral("6260005"));
    EXPECT_TRUE(screen().txtBarcode->text().isEmpty());
}

TEST_F(frmSaleEntryTest, UnknownBarcodeAddsNothingAndClearsTheBox) {
    addGoods({QStringLiteral("6260006"), 2500});
    openScreen();

    scan(QStringLiteral("9999999"));

    EXPECT_EQ(lineCount(), 0);
    EXPECT_TRUE(screen().txtBarcode->text().isEmpty());
    EXPECT_EQ(totalShown(), QStringLiteral("0"));
}

struct PriceChangeCase {
    const char* name;
    // Two price-change documents: code, from, to, new cost.
    int firstCode;
    const char* firstTo;
    double firstCost;
    int secondCode;
    const char* secondTo;
    double secondCost;
    double expected;
};

class frmSalePriceChangeTest : public SaleScreenTest,
                               public ::testing::WithParamInterface<PriceChangeCase> {};

TEST_P(frmSalePriceChangeTest, PriceOfTheLine) {
    const PriceChangeCase& c = GetParam();
    const QString barcode = QStringLiteral("6260007");
    addGoods({barcode, 10000});
    // Today is 1404/01/01.
    addPriceChange(c.firstCode, QStringLiteral("1403/12/01"), QString::fromLatin1(c.firstTo),
                   barcode, c.firstCost);
    addPriceChange(c.secondCode, QStringLiteral("1403/12/10"), QString::fromLatin1(c.secondTo),
                   barcode, c.secondCost);
    openScreen();

    scan(barcode);

    ASSERT_EQ(lineCount(), 1);
    EXPECT_DOUBLE_EQ(unitPriceOf(0), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, frmSalePriceChangeTest,
    ::testing::Values(
        // Both ended yesterday: the goods price.
        PriceChangeCase{"EndedYesterday", 5, "1403/12/29", 8000, 6, "1403/12/29", 7000, 10000},
        // Both in force: the larger code wins, whichever was entered first.
        PriceChangeCase{"LargerCodeWins", 9, "1404/01/10", 8000, 4, "1404/01/10", 7000, 8000},
        // One ended yesterday, one in force.
        PriceChangeCase{"OnlyTheOneInForce", 9, "1403/12/29", 8000, 4, "1404/01/01", 7000, 7000}),
    CaseName());

TEST_F(frmSaleEntryTest, LockedArticleIsRefusedWithBothQuantities) {
    setOption("SaleSetting", "ItemLock", QStringLiteral("1"));
    const QString barcode = QStringLiteral("6260008");
    addGoods({barcode, 3000});
    addDocument(1, 1, barcode, 5);  // five bought
    addLock(barcode, 5);            // all five locked
    openScreen();

    scan(barcode);

    EXPECT_EQ(lineCount(), 0);
    ASSERT_EQ(messages().count(), 1);
    const QString shown = messages().messages().first().text;
    EXPECT_TRUE(shown.startsWith(SaleTexts::lockedGoods()));
    EXPECT_TRUE(shown.contains(SaleTexts::lockedQuantity() + QStringLiteral("5")));
    EXPECT_TRUE(shown.contains(SaleTexts::saleableQuantity() + QStringLiteral("0")));
    EXPECT_TRUE(screen().txtBarcode->text().isEmpty());
}

TEST_F(frmSaleEntryTest, PartlyLockedArticleSellsUpToTheSaleableQuantity) {
    setOption("SaleSetting", "ItemLock", QStringLiteral("1"));
    const QString barcode = QStringLiteral("6260009");
    addGoods({barcode, 3000});
    addDocument(1, 1, barcode, 3);
    addLock(barcode, 2);
    openScreen();

    scan(barcode);
    scan(barcode);

    ASSERT_EQ(lineCount(), 1);
    EXPECT_DOUBLE_EQ(quantityOf(0), 1);
    EXPECT_EQ(messages().count(), 1);
}

TEST_F(frmSaleEntryTest, DisplayIsSentTheTotalAfterEveryChange) {
    setOption("IsActivePoolDisplay", "Enable", QStringLiteral("1"));
    addGoods({QStringLiteral("6260010"), 10000});
    addGoods({QStringLiteral("6260011"), 2500});
    RecordingTotalDisplay display;
    openScreen().setTotalDisplay(&display);

    scan(QStringLiteral("6260010"));
    scan(QStringLiteral("6260010"));
    scan(QStringLiteral("6260011"));
    scan(QStringLiteral("4"));
    press(Qt::Key_D, Qt::ControlModifier);

    EXPECT_EQ(display.shown, (QStringList{QStringLiteral("10,000"), QStringLiteral("20,000"),
                                          QStringLiteral("22,500"), QStringLiteral("30,000"),
                                          QStringLiteral("20,000")}));
}

TEST_F(frmSaleEntryTest, DisplayIsLeftAloneWhileItIsOff) {
    addGoods({QStringLiteral("6260012"), 10000});
    RecordingTotalDisplay display;
    openScreen().setTotalDisplay(&display);

    scan(QStringLiteral("6260012"));

    EXPECT_EQ(lineCount(), 1);
    EXPECT_TRUE(display.shown.isEmpty());
}

}  // namespace
}  // namespace sandogh::test
