#pragma once

#include <QString>
#include <optional>

namespace sandogh::procedures {

// One line of Whs_QTYDocD (or Whs_QTYDocDInternal, which adds QtyR and has no UserID).
struct StockDocumentLine {
    qint64 id = 0;    // the database's row number, read back
    qint64 code = 0;  // the header's key
    QString eanCode;
    double qty = 0;
    double mFee = 0;
    double discount = 0;  // percent of MFee
    double fee = 0;
    double price = 0;
    double taxValue = 0;
    std::optional<int> userId;  // written by the sale only
    double qtyR = 0;            // internal documents only
};

}  // namespace sandogh::procedures
