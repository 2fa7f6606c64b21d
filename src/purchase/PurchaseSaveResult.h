#pragma once

#include <QString>

#include "purchase/PurchaseCheck.h"

namespace sandogh {

// What saving a purchase did: the check that refused it, or the rows it wrote.
struct PurchaseSaveResult {
    bool saved = false;
    PurchaseCheck refusedBy = PurchaseCheck::None;
    qint64 code = 0;  // Whs_QTYDocH.Code
    QString docNo;
    double docSum = 0;     // the sum of the line amounts
    double payable = 0;    // DocSum - Discount + Sarbar: the amount of the voucher lines
    qint64 voucherId = 0;  // tblDocumentH.ID
    qint64 voucherCode = 0;
};

}  // namespace sandogh
