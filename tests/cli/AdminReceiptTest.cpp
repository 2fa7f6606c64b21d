// sandogh-admin receipt: the companion command of a saved sale on stdout, or its receipt as
// a PDF; a document that is not there ends with the system's message and exit code 1.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "AdminShopTest.h"
#include "data/Database.h"

namespace sandogh {
namespace {

class AdminReceiptTest : public AdminShopTest {
protected:
    void SetUp() override {
        AdminShopTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        Session s = db().session();
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Company (Company_Name) VALUES (:n)"),
                           {{QStringLiteral(":n"), QStringLiteral("فروشگاه نمونه")}}));
        ASSERT_TRUE(s.exec(QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost) "
                                          "VALUES ('1001', :n, 12500)"),
                           {{QStringLiteral(":n"), QStringLiteral("چای")}}));
        ASSERT_TRUE(s.exec(QStringLiteral(
            "INSERT INTO Whs_QTYDocH (Code, DocNo, TransType, DocDate, DocSum, Discount, "
            "Sarbar, ReceivedPrice) VALUES (5, '3', 2, '1404/01/01', 25000, 0, 0, 25000)")));
        ASSERT_TRUE(
            s.exec(QStringLiteral("INSERT INTO Whs_QTYDocD (Code, EAN_Code, Qty, Fee, "
                                  "Price) VALUES (5, '1001', 2, 12500, 25000)")));
    }
    AdminProcess::Result receipt(const QStringList& words) {
        return runCommand(QStringLiteral("receipt"), words);
    }
};

TEST_P(AdminReceiptTest, PrintsTheCompanionCommandOrWritesThePdf) {
    const AdminProcess::Result r = receipt(words("5"));
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.outText(),
              QStringLiteral("mnuRptFish,RptFish.rpt,فروشگاه نمونه,,,,5,3,1404/01/01,,,25000,0,,"
                             "0,,بيست و پنج هزار تومان,,\n"));

    const QString pdf = QDir(dir()).filePath(QStringLiteral("r.pdf"));
    const AdminProcess::Result p = receipt(words("5 --pdf") << pdf);
    ASSERT_EQ(p.exitCode, 0) << p.err.toStdString();
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.read(5) == "%PDF-");
    EXPECT_GT(file.size(), 1000);

    // The ESC/POS printer's picture, 384 dots wide (IHDR width, big-endian).
    const QString png = QDir(dir()).filePath(QStringLiteral("r.png"));
    const AdminProcess::Result i = receipt((words("5 --png") << png) + words("--dots 384"));
    ASSERT_EQ(i.exitCode, 0) << i.err.toStdString();
    QFile image(png);
    ASSERT_TRUE(image.open(QIODevice::ReadOnly));
    const QByteArray head = image.read(24);
    EXPECT_TRUE(head.startsWith("\x89PNG"));
    EXPECT_EQ(head.mid(16, 4), QByteArray("\0\0\x01\x80", 4));
}

TEST_P(AdminReceiptTest, AMissingDocumentOrABadKeyPrintsNothing) {
    const struct {
        const char* words;
        int exitCode;
        const char* err;
    } cases[] = {
        {"6", 1, "فاكتور مورد نظر يافت نشد."},
        {"6 --pdf x.pdf", 1, "فاكتور مورد نظر يافت نشد."},
        {"five", 2, "positive whole number"},
        {"", 2, "exactly one document key"},
        {"5 --pdf", 2, "--pdf"},
    };
    for (const auto& c : cases) {
        const AdminProcess::Result r = receipt(words(c.words));
        EXPECT_EQ(r.exitCode, c.exitCode) << c.words;
        EXPECT_TRUE(r.out.isEmpty()) << r.outText().toStdString();
        EXPECT_TRUE(QString::fromUtf8(r.err).contains(QString::fromUtf8(c.err)))
            << r.err.toStdString();
    }
    EXPECT_FALSE(QFile::exists(QDir(dir()).filePath(QStringLiteral("x.pdf"))));
}

SANDOGH_INSTANTIATE_BACKENDS(AdminReceiptTest);

}  // namespace
}  // namespace sandogh
