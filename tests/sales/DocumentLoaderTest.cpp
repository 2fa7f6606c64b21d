// The document loader's three sources, and "//" in the barcode box.

#include <gtest/gtest.h>

#include "SaleShopTest.h"
#include "sales/DocumentLoader.h"
#include "support/QtPrinters.h"

namespace sandogh::test {
namespace {

class DocumentLoaderTest : public SaleShopTest {
protected:
    void SetUpShop() override {
        addGoods(
            {QStringLiteral("1111"), 10000, 9, QStringLiteral("Tea"), 0, {}, true, false, 0, 3});
        addGoods({QStringLiteral("2222"), 5000, 0, QStringLiteral("Rice")});
        exec(QStringLiteral("INSERT INTO Users (Name, UserName) VALUES ('Ali', 'ali')"));
    }
    // Sale number docNo with two lines sold by the user "ali".
    void savedSale(qint64 code, const QString& docNo, double teaFee, const QString& date) {
        const qint64 user = count(QStringLiteral("SELECT ID FROM Users"));
        insert("Whs_QTYDocH (Code, DocNo, TransType, DocDate, Discount, Base, Note)",
               {code, docNo, 2, date, 1500, "B-7", "note"});
        const QString line = QStringLiteral(
            "Whs_QTYDocD (Code, EAN_Code, Qty, MFee, Discount, Fee, Price, TaxValue, UserID)");
        insert(line, {code, "1111", 2, teaFee, 5, teaFee, 0, 9, user});
        insert(line, {code, "GONE", 1, 700, 0, 700, 700, 0, user});
    }
};

TEST_P(DocumentLoaderTest, ASavedDocumentBringsItsPricesTaxDiscountsBaseAndNote) {
    savedSale(10, QStringLiteral("44"), 9500, QStringLiteral("1403/11/02"));
    savedSale(11, QStringLiteral("44"), 9700, QStringLiteral("1403/12/05"));  // newer, same number
    const auto doc = DocumentLoader(db()).loadSavedDocument(2, QStringLiteral("44"));
    ASSERT_TRUE(doc.has_value());
    EXPECT_EQ(doc->documentCode, 11);
    EXPECT_DOUBLE_EQ(doc->discount, 1500);
    EXPECT_EQ(doc->base, QStringLiteral("B-7"));
    EXPECT_EQ(doc->note, QStringLiteral("note"));
    ASSERT_EQ(doc->lines.size(), 2);
    const SaleLine& tea = doc->lines.at(0);
    EXPECT_EQ(tea.name, QStringLiteral("Tea"));
    EXPECT_DOUBLE_EQ(tea.unitPrice, 9700);
    EXPECT_DOUBLE_EQ(tea.quantity, 2);
    EXPECT_DOUBLE_EQ(tea.taxPercent, 9);
    EXPECT_DOUBLE_EQ(tea.lineDiscount, 5);
    EXPECT_DOUBLE_EQ(tea.total, 9700 * 2 * 1.09);
    EXPECT_EQ(tea.goodsKind, 3);
    EXPECT_EQ(tea.seller, QStringLiteral("ali"));
    EXPECT_EQ(doc->lines.at(1).goodsKind, SaleLine::kNotFoundKind);
    EXPECT_LT(doc->lines.at(1).stockFlag, 0);

    const auto byDate = DocumentLoader(db()).loadSavedDocument(2, QStringLiteral("44"),
                                                               QStringLiteral("1403/11/02"));
    ASSERT_TRUE(byDate.has_value());
    EXPECT_EQ(byDate->documentCode, 10);
    EXPECT_FALSE(DocumentLoader(db()).loadSavedDocument(3, QStringLiteral("44")).has_value());
    EXPECT_FALSE(DocumentLoader(db()).loadSavedDocument(2, QStringLiteral("44"), {}, 2));
}

TEST_P(DocumentLoaderTest, APreInvoiceBringsItsLinesWithNamesAndKinds) {
    insert("tblPreFactorH (Code, DocSum, Discount, Note)", {77, 0, 200, "pre"});
    const qint64 id = count(QStringLiteral("SELECT ID FROM tblPreFactorH WHERE Code = 77"));
    insert("tblPreFactorD (PreFactorHID, EAN_Code, Qty, Price)", {id, "1111", 3, 9900});
    const auto doc = DocumentLoader(db()).loadPreInvoice(77);
    ASSERT_TRUE(doc.has_value());
    EXPECT_EQ(doc->preInvoiceCode, 77);
    EXPECT_DOUBLE_EQ(doc->discount, 200);
    ASSERT_EQ(doc->lines.size(), 1);
    EXPECT_EQ(doc->lines.at(0).name, QStringLiteral("Tea"));
    EXPECT_EQ(doc->lines.at(0).goodsKind, 3);
    EXPECT_DOUBLE_EQ(doc->lines.at(0).unitPrice, 9900);
    EXPECT_DOUBLE_EQ(doc->lines.at(0).total, 9900 * 3 * 1.09);
    EXPECT_FALSE(DocumentLoader(db()).loadPreInvoice(78).has_value());
}

TEST_P(DocumentLoaderTest, SlashesAndANumberLoadThatSaleIntoTheGrid) {
    savedSale(10, QStringLiteral("44"), 9500, QStringLiteral("1403/11/02"));
    sale().enterText(QStringLiteral("2222"));
    const EntryOutcome o = sale().enterText(QStringLiteral("//44"));
    EXPECT_EQ(o.kind, EntryKind::Document);
    EXPECT_TRUE(o.linesChanged);
    ASSERT_EQ(sale().lines().size(), 2);  // the loaded lines replace the grid
    EXPECT_EQ(sale().lines().at(0).barcode, QStringLiteral("1111"));
    EXPECT_EQ(sale().loadedDocument().documentCode, 10);
    EXPECT_DOUBLE_EQ(sale().total(), 9500 * 2 * 1.09 + 700);

    const EntryOutcome missing = sale().enterText(QStringLiteral("//45"));
    EXPECT_TRUE(missing.notFound);
    EXPECT_EQ(sale().lines().size(), 2);
}

SANDOGH_INSTANTIATE_BACKENDS(DocumentLoaderTest);

}  // namespace
}  // namespace sandogh::test
