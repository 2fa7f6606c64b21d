#pragma once

#include <QString>
#include <optional>

namespace sandogh {

// The header fields of a purchase form. A supplier or accounting group of 0 is not chosen.
struct PurchaseHeader {
    int supplier = 0;  // Types.Counter of the supplier, kept as CompanyID
    QString docNo;     // the supplier's invoice number, or the proposed one
    QString docDate;   // Jalali
    std::optional<int> warehouseCode;
    std::optional<int> payType;
    int accountingGroupId = 0;  // tblAccountingGroup.ID of the purchase
    QString base;
    QString note;
    double discount = 0;  // the document discount, an amount
    double sarbar = 0;    // the surcharge, an amount
};

}  // namespace sandogh
