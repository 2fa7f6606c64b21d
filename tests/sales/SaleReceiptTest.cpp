// The receipt of a saved sale: the companion program's command, the layout chosen, and the
// receipt laid out here as PDF or ESC/POS raster when the companion program is not there.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "SaleShopTest.h"
#include "data/Database.h"
#include "devices/EscPosRaster.h"
#include "sales/ReceiptCommand.h"
#include "sales/ReceiptData.h"
#include "sales/ReceiptPainter.h"
#include "sales/ReceiptReader.h"
#include "sales/SaleReceipt.h"
#include "support/LaunchRecorder.h"
#include "support/RawPrintRecorder.h"

namespace sandogh::test {
namespace {

using procedures::StockDocumentHeader;

const QString kShop = QStringLiteral("فروشگاه آزمایشی");

class SaleReceiptTest : public SaleShopTest {
protected:
    void SetUpShop() override {
        ASSERT_TRUE(m_folder.isValid());
        insert("Company (Company_Name, Company_Tel, Company_Address)",
               {kShop, "021-1234", QStringLiteral("تهران، میدان آزادی")});
        insert("Sentences (Description, Author)",
               {QStringLiteral("دانایی توانایی است"), QStringLiteral("فردوسی")});
        insert("DiscountType (Id, Name, IsImpactGift)", {2, QStringLiteral("هدیه، باشگاه"), 1});
        insert("Overhead (Id, Name)", {1, QStringLiteral("کرایه حمل")});
        addGoods({QStringLiteral("111"), 10000, 0, QStringLiteral("شیر پرچرب")});
        addGoods({QStringLiteral("222"), 2500, 0, QStringLiteral("نان")});
        setOption("Programs", "Companion", m_folder.filePath(QStringLiteral("Companion.exe")));
    }

    // A customer of the parameter table.
    void addCustomer(int counter, const QString& name, const QString& family) {
        insert("Types (Counter, TypeNo, Name, Value1)", {counter, 10, name, family});
    }

    // A sale of milk and bread saved the way saving writes it.
    qint64 saveSale(double docSum, std::optional<int> customer = {},
                    std::optional<int> discountType = {}, std::optional<int> overhead = {}) {
        StockDocumentHeader h;
        h.docNo = QStringLiteral("7");
        h.transType = procedures::kSale;
        h.companyId = customer;
        h.docDate = QStringLiteral("1404/01/01");
        h.docTime = QStringLiteral("09:30");
        h.userId = 1;
        h.docSum = docSum;
        h.discount = discountType ? 500 : 0;
        h.sarbar = overhead ? 1000 : 0;
        h.receivedPrice = docSum - h.discount + h.sarbar;
        h.payType = 1;
        h.discountTypeId = discountType;
        h.overheadId = overhead;
        return writeDocument(h, {{"111", 2, 10000, 20000}, {"222", 2, 2500, 5000}}, false);
    }

    void companionPresent() {
        QFile program(m_folder.filePath(QStringLiteral("Companion.exe")));
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    }

    SaleReceipt receipt() {
        return SaleReceipt(db(), settings(), messages(), launcher, m_folder.path(), &raw, nullptr);
    }
    QString folder(const QString& name) const { return m_folder.filePath(name); }

    LaunchRecorder launcher;
    RawPrintRecorder raw;

private:
    QTemporaryDir m_folder;
};

// The fields of a command after its command word (the text ends with ",").
QStringList fieldsOf(const QString& command) {
    QStringList fields = command.split(QLatin1Char(','));
    fields.removeFirst();  // the command word
    EXPECT_EQ(fields.takeLast(), QString());
    return fields;
}

TEST_P(SaleReceiptTest, CompanionGetsTheCommandWithCommasOfTextsTurnedIntoSemicolons) {
    companionPresent();
    addCustomer(40, QStringLiteral("رضا، علی"), QStringLiteral("کریمی,نژاد"));
    const qint64 code = saveSale(25000, 40, 2, 1);

    ReceiptOptions options;
    options.title = ReceiptReader::reprintTitle();
    ASSERT_TRUE(receipt().print(code, options));
    ASSERT_EQ(launcher.calls.size(), 1);
    const QStringList args = launcher.calls.first().arguments;
    ASSERT_EQ(args.size(), 1);
    const QString command = args.first();
    EXPECT_TRUE(command.startsWith(QStringLiteral("mnuRptFish,"))) << command.toStdString();

    const QStringList f = fieldsOf(command);
    ASSERT_EQ(f.size(), 17) << command.toStdString();
    EXPECT_EQ(f[0], QStringLiteral("RptFish2.rpt"));
    EXPECT_EQ(f[1], kShop);
    EXPECT_EQ(f[2], QStringLiteral("021-1234"));
    EXPECT_EQ(f[3], QStringLiteral("تهران، میدان آزادی"));  // the Persian comma is no separator
    EXPECT_EQ(f[4], QStringLiteral("چاپ مجدد"));
    EXPECT_EQ(f[5], QString::number(code));
    EXPECT_EQ(f[6], QStringLiteral("7"));
    EXPECT_EQ(f[8], QStringLiteral("رضا، علی کریمی;نژاد"));
    EXPECT_EQ(f[9], kCashPaymentName);
    EXPECT_EQ(f[10], QStringLiteral("25500"));  // received: 25,000 - 500 + 1,000
    EXPECT_EQ(f[11], QStringLiteral("500"));
    EXPECT_EQ(f[12], QStringLiteral("هدیه، باشگاه"));
    EXPECT_EQ(f[13], QStringLiteral("1000"));
    EXPECT_EQ(f[14], QStringLiteral("کرایه حمل"));
    EXPECT_EQ(f[16], QStringLiteral("دانایی توانایی است : فردوسی"));
    EXPECT_EQ(messages().count(), 0);
}

TEST_P(SaleReceiptTest, AMissingSaleOrABrokenDatabasePrintsNothing) {
    companionPresent();
    EXPECT_FALSE(receipt().print(999));
    EXPECT_EQ(messages().countOf(ReceiptReader::notFoundText()), 1);
    EXPECT_TRUE(receipt().command(999).isEmpty());

    const qint64 code = saveSale(1000);
    exec(QStringLiteral("DROP TABLE Whs_QTYDocD"));
    messages().clear();
    EXPECT_FALSE(receipt().print(code));
    EXPECT_TRUE(launcher.calls.isEmpty());
    EXPECT_EQ(messages().countOf(ReceiptReader::notFoundText()), 0);

    // The total read again fails: the connection message, and no total.
    exec(QStringLiteral("DROP TABLE Whs_QTYDocH"));
    bool failed = false;
    EXPECT_FALSE(ReceiptReader(db(), messages()).documentTotal(code, failed));
    EXPECT_TRUE(failed);
    EXPECT_EQ(messages().countOf(Database::connectionFailureMessage()), 1);
    EXPECT_FALSE(receipt().print(code));
    EXPECT_TRUE(launcher.calls.isEmpty());
}

TEST_P(SaleReceiptTest, WithoutTheCompanionThePdfHoldsThePersianReceipt) {
    setOption("Receipt", "Output", QStringLiteral("pdf"));
    addCustomer(41, QStringLiteral("مریم"), QStringLiteral("احمدی"));
    const qint64 code = saveSale(25000, 41);
    SaleReceipt r = receipt();
    ASSERT_TRUE(r.print(code, ReceiptOptions{false, false, false, {}, 30000.0}));
    EXPECT_TRUE(launcher.calls.isEmpty());
    EXPECT_EQ(r.lastPdfPath(), QDir(folder(QStringLiteral("Receipts")))
                                   .filePath(QStringLiteral("Receipt-%1.pdf").arg(code)));
    QFile pdf(r.lastPdfPath());
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.read(5) == "%PDF-");

    const QString pdftotext = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (pdftotext.isEmpty()) {
        GTEST_SKIP() << "pdftotext (poppler-utils) is not installed: PDF text not checked";
    }
    QProcess p;
    p.start(pdftotext, {r.lastPdfPath(), QStringLiteral("-")});
    ASSERT_TRUE(p.waitForFinished(30000));
    // The extracted text holds the shaped letters' presentation forms; compatibility
    // normalisation turns them back into letters.
    const QString text =
        QString::fromUtf8(p.readAllStandardOutput()).normalized(QString::NormalizationForm_KC);
    for (const QString& expected :
         {kShop, QStringLiteral("مریم احمدی"), QStringLiteral("شیر پرچرب"),
          QStringLiteral("بيست و پنج هزار تومان"), QStringLiteral("دانایی توانایی است"),
          QStringLiteral("۲۵,۰۰۰"), QStringLiteral("۵,۰۰۰")}) {
        EXPECT_TRUE(text.contains(expected)) << expected.toStdString() << "\n"
                                             << text.toStdString();
    }
}

TEST_P(SaleReceiptTest, EscPosRasterGoesToTheDeviceOrTheRawQueueAtTheSetWidth) {
    setOption("Receipt", "Output", QStringLiteral("escpos"));
    const qint64 code = saveSale(25000);
    for (const int dots : {EscPosRaster::kWideDots, EscPosRaster::kNarrowDots}) {
        setOption("Receipt", "DotsWidth", QString::number(dots));
        const QString device = folder(QStringLiteral("lp%1").arg(dots));
        setOption("Receipt", "EscPosDevice", device);
        ASSERT_TRUE(receipt().print(code)) << dots;
        QFile file(device);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        // The bands themselves: EscPosRasterTest.
        ASSERT_GT(bytes.size(), 10);
        EXPECT_EQ(bytes.left(2), QByteArray("\x1B@"));
        EXPECT_EQ(static_cast<uchar>(bytes.at(6)) | (static_cast<uchar>(bytes.at(7)) << 8),
                  dots / 8);
        EXPECT_TRUE(bytes.endsWith(QByteArray("\x1DVB\0", 4)));
    }
    EXPECT_TRUE(raw.jobs.isEmpty());

    setOption("Receipt", "EscPosDevice", QString());
    ASSERT_TRUE(receipt().print(code));
    ASSERT_EQ(raw.jobs.size(), 1);
    EXPECT_EQ(raw.jobs.first().first, QStringLiteral("Receipt 7"));
    raw.hasPrinter = false;
    EXPECT_FALSE(receipt().print(code));
    EXPECT_GE(messages().count(), 1);
}

SANDOGH_INSTANTIATE_BACKENDS(SaleReceiptTest);

// The layout of the companion program by the sale's kinds and the gift switch.
TEST(ReceiptReportChoice, FollowsDiscountOverheadAndGift) {
    const struct {
        bool discountKind, overheadKind, giftDiscount, giftPrint;
        ReceiptReport report;
        const char* file;
    } cases[] = {
        {false, false, false, false, ReceiptReport::RptFish, "RptFish.rpt"},
        {false, false, false, true, ReceiptReport::RptFish, "RptFish.rpt"},
        {true, false, false, false, ReceiptReport::RptFish2, "RptFish2.rpt"},
        {false, true, false, false, ReceiptReport::RptFish2, "RptFish2.rpt"},
        {true, true, false, true, ReceiptReport::RptFish2, "RptFish2.rpt"},
        {true, false, true, false, ReceiptReport::RptFish2, "RptFish2.rpt"},
        {true, false, true, true, ReceiptReport::RptFish3, "RptFish3.rpt"},
        {true, true, true, true, ReceiptReport::RptFish3, "RptFish3.rpt"},
    };
    for (const auto& c : cases) {
        const ReceiptReport r = ReceiptCommand::chooseReport(c.discountKind, c.overheadKind,
                                                             c.giftDiscount, c.giftPrint);
        EXPECT_EQ(r, c.report) << c.discountKind << c.overheadKind << c.giftDiscount << c.giftPrint;
        EXPECT_EQ(ReceiptCommand::reportFile(r), QString::fromLatin1(c.file));
    }
}

}  // namespace
}  // namespace sandogh::test
