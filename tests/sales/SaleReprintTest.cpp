// Reprinting on both backends: the desk's last number proposed, and a number shared by two
// dates asks for the date (the reprint itself: InternalDocumentsTest).

#include <gtest/gtest.h>

#include "SavedSalesTest.h"
#include "sales/ReceiptReader.h"
#include "sales/SaleReprint.h"

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

SANDOGH_INSTANTIATE_BACKENDS(SaleReprintTest);

}  // namespace
}  // namespace sandogh::test
