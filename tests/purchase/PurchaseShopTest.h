#pragma once

// A shop with the schema applied, two articles, a purchase account, a supplier with an
// account (601) and one without (602), a clock at 1404/01/01 09:30 and a purchase session
// of user 7 on them.

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

    void SetUp() override;
    void TearDown() override;

    PurchaseSession& purchase() { return *m_purchase; }
    PurchaseSaveResult save() { return PurchaseSaver(db(), messages(), m_clock).save(purchase()); }
    // A purchase (or return) of the supplier on the purchase account, lines added by barcode
    // and given their quantity, list price, discount and tax.
    struct Line {
        const char* barcode;
        double qty;
        double mFee;
        double discount;
        double tax;
    };
    void fill(bool isReturn, const QList<Line>& lines, int supplier = kSupplier);

    qint64 count(const char* table) { return rows(QString::fromLatin1(table)); }

    FixedClock m_clock;

private:
    std::unique_ptr<PurchaseSession> m_purchase;
};

}  // namespace sandogh::test
