// Reprinting on both backends: the desk's last number proposed, a number shared by two
// dates asks for the date, and the receipt goes through the receipt path as a reprint.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "SavedSalesTest.h"
#include "devices/ProgramLauncher.h"
#include "sales/ReceiptReader.h"
#include "sales/SaleReceipt.h"
#include "sales/SaleReprint.h"
#include "support/LaunchRecorder.h"

namespace sandogh::test {
namespace {

using Status = SaleReprint::Lookup::Status;

class SaleReprintTest : public SavedSalesTest {};

TEST_P(SaleReprintTest, ANumberOnTwoDatesAsksForTheDate) {
    setFlag("Tools", "IsResetFactorNo", true);
    const SaleSaveResult first = sell({{QStringLiteral("2222"), 1}});
    clock().set(QDateTime(QDate(2025, 3, 22), QTime(10, 0)));
    const SaleSaveResult second = sell({{QStringLiteral("3333"), 1}});
    ASSERT_EQ(first.docNo, second.docNo);

    SaleReprint reprint(db(), messages());
    EXPECT_EQ(reprint.find(2, first.docNo).status, Status::NeedsDate);
    const SaleReprint::Lookup found = reprint.find(2, first.docNo, QStringLiteral("1404/01/02"));
    EXPECT_EQ(found.status, Status::Found);
    EXPECT_EQ(found.code, second.code);
    EXPECT_EQ(reprint.find(2, first.docNo, QStringLiteral("1404/01/03")).status, Status::NotFound);
    EXPECT_EQ(reprint.find(2, QStringLiteral("99")).status, Status::NotFound);
    EXPECT_EQ(messages().countOf(ReceiptReader::notFoundText()), 2);
    EXPECT_EQ(reprint.lastNumber(2, 1), second.docNo);
    EXPECT_EQ(reprint.lastNumber(3, 1), QString());
}

TEST_P(SaleReprintTest, TheReceiptIsPrintedAgainUnderTheReprintTitle) {
    const SaleSaveResult r = sell({{QStringLiteral("2222"), 1}});
    QTemporaryDir folder;
    QFile program(folder.filePath(QStringLiteral("Companion.exe")));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.close();
    setOption("Programs", "Companion", program.fileName());
    LaunchRecorder launcher;
    SaleReceipt receipt(db(), settings(), messages(), launcher, folder.path(), nullptr, nullptr);
    ASSERT_TRUE(SaleReprint::print(receipt, r.code));
    ASSERT_EQ(launcher.calls.size(), 1);
    const QString command = launcher.calls.first().arguments.value(0);
    EXPECT_TRUE(
        command.contains(QLatin1Char(',') + ReceiptReader::reprintTitle() + QLatin1Char(',')))
        << command.toStdString();
}

SANDOGH_INSTANTIATE_BACKENDS(SaleReprintTest);

}  // namespace
}  // namespace sandogh::test
