#pragma once

// A shop with two articles in stock, a plain and a gift discount kind, the chart's cash,
// income and return accounts, and a customer with their own account, where sales are
// saved through SaleSaver so that the saved-sales services meet the rows a real sale
// leaves: header, lines, voucher, gift card movement, stock and loyalty gifts.

#include <QPair>
#include <memory>

#include "SaleShopTest.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/repositories/SearchKeys.h"
#include "sales/SaleSaveResult.h"
#include "sales/SaleSaveTexts.h"
#include "sales/SaleSaver.h"
#include "sales/SaleSettlement.h"

namespace sandogh::test {

class SavedSalesTest : public SaleShopTest {
protected:
    static constexpr int kCustomer = 501;

    void SetUpShop() override {
        addGoods({QStringLiteral("2222"), 100000, 0, QStringLiteral("Rice")});
        addGoods({QStringLiteral("3333"), 2000, 0, QStringLiteral("Tea")});
        addDocument(1, 1, QStringLiteral("1"), QStringLiteral("2222"), 50, 90000);
        addDocument(2, 1, QStringLiteral("2"), QStringLiteral("3333"), 50, 1500);
        exec(
            QStringLiteral("INSERT INTO DiscountType (Id, Name, IsImpactGift) VALUES "
                           "(1, 'Off', 0), (5, 'Gift', 1)"));
        exec(QStringLiteral("INSERT INTO tblAccountingGroup (Code, ParentCode, Name) VALUES "
                            "(101, 10, :cash), (601, 60, :income), (602, 60, :back), "
                            "(1201, 12, 'Customer 501')"),
             {{QStringLiteral(":cash"), SaleSaveTexts::cashBoxAccount()},
              {QStringLiteral(":income"), SaleSaveTexts::salesIncomeAccount()},
              {QStringLiteral(":back"), SaleSaveTexts::salesReturnAccount()}});
        // Stored with the Arabic letter forms, as older data has them.
        const QString name = QStringLiteral("علي");
        const QString family = QStringLiteral("كريمي");
        insert(
            "Types (Counter, TypeNo, Code, Name, Value1, NameKey, Active, AccountingGroupID, "
            "DiscountTakenTotal)",
            {kCustomer, 10, "C-1", name, family, SearchKeys::party(name, family), 1, account(1201),
             0});
        saver = std::make_unique<SaleSaver>(db(), settings(), messages(), clock());
    }
    void TearDown() override {
        saver.reset();
        SaleShopTest::TearDown();
    }

    // Saves a sale (or return) of these lines; fails the test when it is not saved.
    SaleSaveResult sell(const QList<QPair<QString, double>>& lines, SaleSettlement st = {},
                        int customer = 0) {
        sale().newSale();
        if (customer != 0) {
            EXPECT_TRUE(sale().selectCustomer(customer));
        }
        for (const auto& [barcode, qty] : lines) {
            EXPECT_TRUE(sale().addGoods(barcode, qty));
        }
        st.payType = 1;
        st.printReceipt = false;
        const SaleSaveResult r = saver->save(sale(), st);
        EXPECT_TRUE(r.saved);
        return r;
    }

    qint64 count(const QString& table, const QString& where = {}, const SqlBinds& binds = {}) {
        Session s = db().session();
        return s.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM ") + table +
                                 (where.isEmpty() ? QString() : QStringLiteral(" WHERE ") + where),
                             binds, -1);
    }
    std::unique_ptr<SaleSaver> saver;
};

}  // namespace sandogh::test
