#pragma once

#include <QString>

#include "sales/SaleSaveCheck.h"

namespace sandogh {

// What saving a sale did. saved is false when a check refused (refusedBy says which) or
// the write failed (the message has been shown and nothing was written).
struct SaleSaveResult {
    bool saved = false;
    SaleSaveCheck refusedBy = SaleSaveCheck::None;
    qint64 code = 0;            // Whs_QTYDocH.Code of the new document
    QString docNo;              // its invoice number
    double docSum = 0;          // the line total written as DocSum
    double received = 0;        // ReceivedPrice
    qint64 voucherId = 0;       // tblDocumentH.ID (DocumentHID)
    qint64 giftCardItemId = 0;  // the gift card movement, 0 without a card
};

}  // namespace sandogh
