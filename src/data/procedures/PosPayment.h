#pragma once

#include <QString>

namespace sandogh::procedures {

// An approved card terminal payment, in the order of the parameters of sp_POS_Insert
// (after the output @MaxID). The sale screen sends merchant, terminal, PRN and Stan as 0.
struct PosPayment {
    qint64 merchantId = 0;
    qint64 terminalId = 0;
    qint64 docNo = 0;
    QString dateTime;  // "1404/01/05 - 12:30", text of 20
    int tranType = 2;
    double paymentAmount = 0;
    qint64 prn = 0;
    qint64 stan = 0;
    int errorCode = 0;
    QString errorDiscription;  // text of 50
    int posId = 0;
};

}  // namespace sandogh::procedures
