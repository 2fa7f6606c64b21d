#include "PurchaseShopTest.h"

namespace sandogh::test {

void PurchaseShopTest::SetUp() {
    ShopFixture::SetUp();
    if (IsSkipped() || HasFatalFailure()) {
        return;
    }
    exec(QStringLiteral("INSERT INTO Types (Counter, TypeNo, Name) VALUES (61, 61, 'Box')"));
    exec(
        QStringLiteral("INSERT INTO Goods (EAN_Code, Name, Cost, Unit, ISActive) VALUES "
                       "('1111', 'Rice', 150000, 61, 1), ('2222', 'Tea', 90000, 0, 1)"));
    exec(
        QStringLiteral("INSERT INTO tblAccountingGroup (Code, ParentCode, Name) VALUES "
                       "(301, 30, 'Purchases'), (401, 40, 'Supplier A')"));
    exec(
        QStringLiteral("INSERT INTO Types (Counter, TypeNo, Name, Active, AccountingGroupID) "
                       "SELECT 601, 11, 'Supplier A', 1, ID FROM tblAccountingGroup "
                       "WHERE Code = 401"));
    exec(
        QStringLiteral("INSERT INTO Types (Counter, TypeNo, Name, Active) VALUES "
                       "(602, 11, 'Supplier B', 1)"));
    m_clock.set(QDateTime(QDate(2025, 3, 21), QTime(9, 30)));
    m_purchase = std::make_unique<PurchaseSession>(db(), messages(), m_clock);
    m_purchase->setUser(7);
}

void PurchaseShopTest::TearDown() {
    m_purchase.reset();
    ShopFixture::TearDown();
}

void PurchaseShopTest::fill(bool isReturn, const QList<Line>& lines, int supplier) {
    purchase().newDocument(isReturn);
    purchase().header().supplier = supplier;
    purchase().header().accountingGroupId = account(301);
    PurchaseLinesModel& model = purchase().lines();
    for (const Line& l : lines) {
        ASSERT_TRUE(purchase().addBarcode(QString::fromLatin1(l.barcode)));
        const int row = model.lineCount() - 1;
        ASSERT_TRUE(model.setData(model.index(row, PurchaseLinesModel::ColQty), l.qty));
        ASSERT_TRUE(model.setData(model.index(row, PurchaseLinesModel::ColMFee), l.mFee));
        ASSERT_TRUE(model.setData(model.index(row, PurchaseLinesModel::ColDiscount), l.discount));
        ASSERT_TRUE(model.setData(model.index(row, PurchaseLinesModel::ColTaxValue), l.tax));
    }
}

}  // namespace sandogh::test
