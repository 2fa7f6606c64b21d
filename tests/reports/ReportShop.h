#pragma once

// A small shop whose every report is worked out by hand:
//
//   1404/01/01  purchase  A 10 at MFee 100, 10% off, 9% tax ... landed 98.1 each
//                         B 4 at MFee 50                     ... landed 50
//   1404/01/02  sale 1    desk 1, shift 1: A 3 for 450, all received: 300 on terminal 7001,
//                         150 in the cash box of which 100 from a gift card
//               sale 2    desk 2, shift 1, customer 5: B 1 for 80, 50 received (20 cash,
//                         a cheque of 30), 30 left on the customer's account
//   1404/01/03  nothing
//   1404/01/04  return    desk 1, shift 1: A 1 for 150, paid back from the cash box
//   1404/01/06  purchase  A 5 at MFee 200 (after the range the tests read)

#include "data/ShopFixture.h"
#include "data/procedures/StockProcedures.h"

namespace sandogh::test {

class ReportShop : public ShopFixture {
protected:
    static constexpr int kCashBox = 10;
    static constexpr int kBank = 20;
    static constexpr int kIncome = 30;
    static constexpr int kReturns = 40;
    static constexpr int kCustomerAccount = 50;

    void SetUp() override;

    void exec(const QString& sql, const SqlBinds& binds = {});
    qint64 document(int transType, const QString& date, const QList<Line>& lines, double docSum,
                    double received, int station = 0, int shift = 0, int customer = 0,
                    qint64 voucher = 0);
    void voucherRow(qint64 voucher, int account, double debt, double credit);
};

}  // namespace sandogh::test
