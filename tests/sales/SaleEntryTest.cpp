// Ringing up through the barcode box: merging, quantities, cards, tickets that are not
// tickets, apostrophes, quick entry and the goods that are not there.

#include <gtest/gtest.h>

#include "SaleDoubles.h"
#include "SaleShopTest.h"
#include "sales/SaleTexts.h"
#include "support/QtPrinters.h"

namespace sandogh::test {
namespace {

class SaleEntry : public SaleShopTest {
protected:
    void SetUpShop() override {
        addGoods({QStringLiteral("6261234567890"), 10000, 9, QStringLiteral("Tea")});
        addGoods({QStringLiteral("1001"), 2500, 0, QStringLiteral("Bread")});
        sale().setActions(&actions);
    }
    double quantityOf(int row) { return sale().lines().at(row).quantity; }

    RecordingActions actions;
};

TEST_P(SaleEntry, TheSameBarcodeTwiceIsOneLineOfTwo) {
    sale().enterText(QStringLiteral("6261234567890"));
    const EntryOutcome second = sale().enterText(QStringLiteral("6261234567890"));
    EXPECT_EQ(second.kind, EntryKind::Goods);
    EXPECT_TRUE(second.linesChanged);
    ASSERT_EQ(sale().lines().size(), 1);
    EXPECT_DOUBLE_EQ(quantityOf(0), 2);
    EXPECT_DOUBLE_EQ(sale().total(), 21800);
}

TEST_P(SaleEntry, TheNoMergeOptionKeepsTwoLines) {
    setFlag("SaleOptions", "NoMerge", true);
    sale().enterText(QStringLiteral("6261234567890"));
    sale().enterText(QStringLiteral("6261234567890"));
    ASSERT_EQ(sale().lines().size(), 2);
    EXPECT_DOUBLE_EQ(quantityOf(0), 1);
    EXPECT_DOUBLE_EQ(quantityOf(1), 1);
}

TEST_P(SaleEntry, AQuantityBeforeAnyLineAsksForTheBarcodeFirst) {
    const EntryOutcome o = sale().enterText(QStringLiteral("12"));
    EXPECT_EQ(o.kind, EntryKind::Quantity);
    EXPECT_TRUE(o.refused);
    EXPECT_TRUE(sale().isEmpty());
    EXPECT_EQ(messages().countOf(SaleTexts::quantityFirst()), 1);
}

TEST_P(SaleEntry, AQuantityGoesToTheLineOfTheLastBarcode) {
    sale().enterText(QStringLiteral("6261234567890"));
    sale().enterText(QStringLiteral("1001"));
    sale().enterText(QStringLiteral("5"));
    EXPECT_DOUBLE_EQ(quantityOf(0), 1);
    EXPECT_DOUBLE_EQ(quantityOf(1), 5);
    EXPECT_EQ(sale().Barcode(), QStringLiteral("1001"));
}

TEST_P(SaleEntry, TenCharactersGoToTheCardLookUpWhileTheCardReaderIsOn) {
    setFlag("IsKeyboardRFID", "Enable", true);
    addGoods({QStringLiteral("0123456789"), 700, 0});
    EntryOutcome o = sale().enterText(QStringLiteral("0123456789"));
    EXPECT_EQ(o.kind, EntryKind::CardNumber);
    EXPECT_TRUE(o.clearBox);
    EXPECT_TRUE(sale().isEmpty());
    ASSERT_EQ(actions.cards.size(), 1);
    EXPECT_EQ(actions.cards.at(0), 123456789);

    actions.cardAnswer = false;
    o = sale().enterText(QStringLiteral("0123456789"));
    EXPECT_FALSE(o.clearBox);  // a refused card stays in the box
}

// What a text typed in the box brings: the article it names, or nothing and no message.
TEST_P(SaleEntry, ATextFindsItsArticleOrNothing) {
    addGoods({QStringLiteral("0123456789"), 700, 0});
    addGoods({QStringLiteral("30012345"), 1200, 0});
    addGoods({QStringLiteral("23001237"), 100, 0});
    addGoods({QStringLiteral("9990001"), 500, 0, QStringLiteral("Old"), 0, QStringLiteral("4455"),
              false});
    addGoods({QStringLiteral("9990002"), 600, 0, QStringLiteral("New"), 0, QStringLiteral("4455")});
    addGoods({QStringLiteral("5550001"), 500, 0, QStringLiteral("Gone"), 0, {}, false});
    setOption("ScaleTicket", "Prefix", QStringLiteral("2"));
    const struct {
        const char* name;
        bool mizan;  // ScaleTicket/Mizan
        const char* text;
        const char* barcode;  // of the one line; none when nothing is found
    } cases[] = {
        {"ten characters while the card reader is off", false, "0123456789", "0123456789"},
        {"eight characters without the scale prefix", true, "30012345", "30012345"},
        {"a ticket while the scale systems are off", false, "23001237", "23001237"},
        {"apostrophes removed", false, "6261'234567'890", "6261234567890"},
        {"a spec code: its first active article", false, "4455", "9990002"},
        {"an inactive article", false, "5550001", nullptr},
        {"an unknown barcode", false, "7777777", nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        sale().newSale();
        setFlag("ScaleTicket", "Mizan", c.mizan);
        const EntryOutcome o = sale().enterText(QString::fromLatin1(c.text));
        EXPECT_EQ(o.notFound, c.barcode == nullptr);
        EXPECT_EQ(o.linesChanged, c.barcode != nullptr);
        if (c.barcode == nullptr) {
            EXPECT_TRUE(sale().isEmpty());
            continue;
        }
        EXPECT_EQ(o.kind, EntryKind::Goods);
        EXPECT_EQ(o.boxText, QString::fromLatin1(c.text).remove(u'\''));
        ASSERT_EQ(sale().lines().size(), 1);
        EXPECT_EQ(sale().lines().at(0).barcode, QString::fromLatin1(c.barcode));
        EXPECT_EQ(sale().Barcode(), QString::fromLatin1(c.barcode));
    }
    EXPECT_TRUE(actions.cards.isEmpty());
    EXPECT_EQ(messages().count(), 0);
}

TEST_P(SaleEntry, TheDisplayIsSentTheTotalOnlyWhileItIsOn) {
    RecordingDisplay display;
    sale().setDisplay(&display);
    sale().enterText(QStringLiteral("1001"));
    EXPECT_TRUE(display.shown.isEmpty());
    setFlag("IsActivePoolDisplay", "Enable", true);
    sale().enterText(QStringLiteral("6261234567890"));
    sale().enterText(QStringLiteral("3"));
    sale().removeLine(0);
    EXPECT_EQ(display.shown, (QStringList{QStringLiteral("13,400"), QStringLiteral("35,200"),
                                          QStringLiteral("32,700")}));
}

TEST_P(SaleEntry, AFailedLookUpAddsNothingAndTheEntryGoesOn) {
    sale().enterText(QStringLiteral("1001"));
    exec(QStringLiteral("ALTER TABLE DiscountD RENAME TO DiscountD_Away"));
    const EntryOutcome o = sale().enterText(QStringLiteral("6261234567890"));
    EXPECT_FALSE(o.linesChanged);
    EXPECT_TRUE(o.clearBox);
    ASSERT_EQ(sale().lines().size(), 1);
    EXPECT_DOUBLE_EQ(sale().total(), 2500);

    exec(QStringLiteral("ALTER TABLE DiscountD_Away RENAME TO DiscountD"));
    EXPECT_TRUE(sale().enterText(QStringLiteral("6261234567890")).linesChanged);
    EXPECT_EQ(sale().lines().size(), 2);
}

SANDOGH_INSTANTIATE_BACKENDS(SaleEntry);

}  // namespace
}  // namespace sandogh::test
