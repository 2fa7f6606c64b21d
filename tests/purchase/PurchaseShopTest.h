#pragma once

// A shop with the schema applied, two articles, a purchase account, a supplier with an
// account (601) and one without (602), and a purchase session of user 7 on them and on
// the fixture's clock (1404/01/01 09:30).

#include <memory>

#include "data/Session.h"
#include "data/ShopFixture.h"
#include "purchase/PurchaseSaver.h"
#include "purchase/PurchaseSession.h"

namespace sandogh::test {

class PurchaseShopTest : public ShopFixture {
protected:
    static constexpr int kSupplier = 601;
    static constexpr int kSupplierWithoutAccount = 602;

    void SetUp() override {
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
        m_purchase = std::make_unique<PurchaseSession>(db(), messages(), clock);
        m_purchase->setUser(7);
    }
    void TearDown() override {
        m_purchase.reset();
        ShopFixture::TearDown();
    }

    PurchaseSession& purchase() { return *m_purchase; }
    PurchaseSaveResult save() { return PurchaseSaver(db(), messages(), clock).save(purchase()); }
    // A purchase (or return) of the supplier on the purchase account, lines added by barcode
    // and given their quantity, list price, discount and tax.
    struct Line {
        const char* barcode;
        double qty;
        double mFee;
        double discount;
        double tax;
    };
    void fill(bool isReturn, const QList<Line>& lines, int supplier = kSupplier) {
        purchase().newDocument(isReturn);
        purchase().header().supplier = supplier;
        purchase().header().accountingGroupId = account(301);
        PurchaseLinesModel& model = purchase().lines();
        for (const Line& l : lines) {
            ASSERT_TRUE(purchase().addBarcode(QString::fromLatin1(l.barcode)));
            const int row = model.lineCount() - 1;
            ASSERT_TRUE(model.setData(model.index(row, PurchaseLinesModel::ColQty), l.qty));
            ASSERT_TRUE(model.setData(model.index(row, PurchaseLinesModel::ColMFee), l.mFee));
            ASSERT_TRUE(
                model.setData(model.index(row, PurchaseLinesModel::ColDiscount), l.discount));
            ASSERT_TRUE(model.setData(model.index(row, PurchaseLinesModel::ColTaxValue), l.tax));
        }
    }

    qint64 count(const char* table) { return rows(QString::fromLatin1(table)); }

private:
    std::unique_ptr<PurchaseSession> m_purchase;
};

}  // namespace sandogh::test
