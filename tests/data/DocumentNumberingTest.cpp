// Next document keys and numbers: separate runs per kind, daily runs, internal runs,
// numbers compared as numbers, documents with a DocType left out, and repeated numbers.

#include "ShopFixture.h"
#include "data/repositories/DocumentNumbering.h"
#include "support/QtPrinters.h"

namespace sandogh {
namespace {

using namespace procedures;

const QString kDay1 = QStringLiteral("1404/01/05");
const QString kDay2 = QStringLiteral("1404/01/06");

class DocumentNumberingTest : public test::ShopFixture {
protected:
    DocumentNumbering numbering() { return DocumentNumbering(db()); }
};

TEST_P(DocumentNumberingTest, EmptyTablesGiveKeyOneAndNumberOne) {
    DocumentNumbering n = numbering();
    EXPECT_EQ(n.nextCode(), 1);
    EXPECT_EQ(n.nextInternalCode(), 1);
    for (const int type : {kPurchase, kSale, kSaleReturn, kPurchaseReturn}) {
        EXPECT_EQ(n.nextDocNo(type), 1) << type;
        EXPECT_EQ(n.nextDocNoOfDate(type, kDay1), 1) << type;
        EXPECT_EQ(n.nextSaleDocNo(type, kDay1, true), 1) << type;
        EXPECT_EQ(n.nextSaleDocNo(type, kDay1, false), 1) << type;
        EXPECT_EQ(n.nextInternalDocNo(type), 1) << type;
    }
    EXPECT_EQ(n.lastDocDate(kSale), QString());
    EXPECT_EQ(n.isSupplierDocNoRepeated(kPurchase, QStringLiteral("1")), false);
    EXPECT_EQ(n.isSaleDocNoTaken(kSale, QStringLiteral("1"), kDay1), false);
    EXPECT_EQ(messages().count(), 0);
}

// Ordinary documents run per kind; internal receipts and their returns share one run.
TEST_P(DocumentNumberingTest, EachKindKeepsItsOwnRun) {
    DocumentNumbering n = numbering();
    addDocument(kPurchase, QStringLiteral("1"), {});
    EXPECT_EQ(n.nextDocNo(kPurchaseReturn), 1);  // a purchase return's first number is 1 too
    addDocument(kPurchaseReturn, QStringLiteral("1"), {});
    addDocument(kSale, QStringLiteral("7"), {});
    addInternalDocument(kPurchase, QStringLiteral("5"), {});
    addInternalDocument(kPurchaseReturn, QStringLiteral("7"), {});
    addInternalDocument(kSale, QStringLiteral("3"), {});
    struct Case {
        int type;
        qint64 next;
        qint64 nextInternal;
    };
    for (const Case& c : {Case{kPurchase, 2, 8}, Case{kPurchaseReturn, 2, 8}, Case{kSale, 8, 4},
                          Case{kSaleReturn, 1, 1}}) {
        EXPECT_EQ(n.nextDocNo(c.type), c.next) << c.type;
        EXPECT_EQ(n.nextInternalDocNo(c.type), c.nextInternal) << c.type;
    }
    EXPECT_EQ(n.nextCode(), 4);
    EXPECT_EQ(n.nextInternalCode(), 4);
}

TEST_P(DocumentNumberingTest, NumbersCompareAsNumbersNotText) {
    DocumentNumbering n = numbering();
    for (const char* docNo : {"9", "10", "100", "99"}) {
        addDocument(kSale, QString::fromLatin1(docNo), {});
    }
    EXPECT_EQ(n.nextDocNo(kSale), 101);
    addDocument(kSale, QStringLiteral("3000000000"), {});  // beyond 32 bits
    EXPECT_EQ(n.nextDocNo(kSale), 3000000001LL);
}

TEST_P(DocumentNumberingTest, DailyNumberingRestartsWithEachDate) {
    DocumentNumbering n = numbering();
    addDocument(kSale, QStringLiteral("1"), {}, kDay1);
    addDocument(kSale, QStringLiteral("2"), {}, kDay1);
    addDocument(kSaleReturn, QStringLiteral("1"), {}, kDay2);
    EXPECT_EQ(n.nextSaleDocNo(kSale, kDay1, true), 3);
    EXPECT_EQ(n.nextSaleDocNo(kSale, kDay2, true), 1);
    EXPECT_EQ(n.nextSaleDocNo(kSale, kDay2, false), 3);
    EXPECT_EQ(n.nextSaleDocNo(kSaleReturn, kDay2, true), 2);
    EXPECT_EQ(n.nextSaleDocNo(kSaleReturn, kDay1, true), 1);
    EXPECT_EQ(n.lastDocDate(kSale), kDay1);
    EXPECT_EQ(n.lastDocDate(kSaleReturn), kDay2);
    addDocument(kSale, QStringLiteral("1"), {}, kDay2);
    EXPECT_EQ(n.nextSaleDocNo(kSale, kDay2, true), 2);
    EXPECT_EQ(n.lastDocDate(kSale), kDay2);
}

TEST_P(DocumentNumberingTest, DocumentsWithADocTypeTakeNoPart) {
    DocumentNumbering n = numbering();
    addDocument(kPurchase, QStringLiteral("5"), {});
    // A branch request and a pre-invoice: their numbers need not even be digits.
    addDocument(kPurchase, QStringLiteral("500"), {}, kDay1, 2);
    addDocument(kSale, QStringLiteral("R-12"), {}, kDay2, 1);
    EXPECT_EQ(n.nextDocNo(kPurchase), 6);
    EXPECT_EQ(n.nextDocNo(kSale), 1);
    EXPECT_EQ(n.nextDocNoOfDate(kSale, kDay2), 1);
    EXPECT_EQ(n.lastDocDate(kSale), QString());
    EXPECT_EQ(n.isSupplierDocNoRepeated(kPurchase, QStringLiteral("500")), false);
    EXPECT_EQ(n.isSaleDocNoTaken(kSale, QStringLiteral("R-12"), kDay2), false);
    EXPECT_EQ(n.nextCode(), 4);  // keys run over every document
}

// A supplier's number repeats per kind (trimmed); a sale's per kind and date.
TEST_P(DocumentNumberingTest, RepeatedNumbersAreFoundPerKind) {
    DocumentNumbering n = numbering();
    addDocument(kPurchase, QStringLiteral(" 123 "), {});
    addDocument(kSale, QStringLiteral("4"), {}, kDay1);
    struct Case {
        int type;
        const char* docNo;
        QString date;  // empty: the supplier's number
        bool repeated;
    };
    const Case cases[] = {
        {kPurchase, "123", {}, true},
        {kPurchaseReturn, "123", {}, false},
        {kPurchase, "1234", {}, false},
        {kPurchase, "12", {}, false},
        {kPurchase, "' OR '1'='1", {}, false},
        {kSale, "123", {}, false},
        {kSale, "4", kDay1, true},
        {kSale, "4", kDay2, false},
        {kSaleReturn, "4", kDay1, false},
        {kSale, "5", kDay1, false},
    };
    for (const Case& c : cases) {
        const QString docNo = QString::fromLatin1(c.docNo);
        EXPECT_EQ(c.date.isEmpty() ? n.isSupplierDocNoRepeated(c.type, docNo)
                                   : n.isSaleDocNoTaken(c.type, docNo, c.date),
                  c.repeated)
            << c.type << " " << c.docNo;
    }
    EXPECT_EQ(n.nextDocNo(kPurchase), 124);
}

SANDOGH_INSTANTIATE_BACKENDS(DocumentNumberingTest);

}  // namespace
}  // namespace sandogh
