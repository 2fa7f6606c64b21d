#pragma once

#include <QString>
#include <QtGlobal>

namespace sandogh {

// One approved card terminal payment, as it is handed to sp_POS_Insert.
struct PosPayment {
    // The terminal's own merchant, terminal, reference (PRN) and trace (Stan)
    // numbers are not taken from its answer; the procedure has always been given
    // zeros for them, and reports rely on that.
    static constexpr qint64 kUnreportedNumber = 0;
    // A sale.
    static constexpr int kSaleTranType = 2;
    static constexpr int kNoError = 0;
    static constexpr int kPosId = 0;
    // "@ErrorDiscription" names the screen that recorded the payment.
    static QString saleFormDescription() { return QString::fromUtf16(u"فرم ثبت فاکتور"); }

    qint64 merchantId = kUnreportedNumber;
    qint64 terminalId = kUnreportedNumber;
    qint64 docNo = 0;  // the sale number
    QString dateTime;  // working date, " - ", "HH:MM"
    int tranType = kSaleTranType;
    double paymentAmount = 0;  // the amount received, "," removed
    qint64 prn = kUnreportedNumber;
    qint64 stan = kUnreportedNumber;
    int errorCode = kNoError;
    QString errorDescription = saleFormDescription();
    int posId = kPosId;
};

}  // namespace sandogh
