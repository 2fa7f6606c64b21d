#pragma once

#include "sales/ReceiptData.h"

namespace sandogh {

class InternalSaleSession;
struct InternalSaleResult;

// The receipt of an internal sale just saved, laid out for the receipt path (SaleReceipt):
// the saved number, date and time, the branch in the customer's place, the lines and the
// total, which the branch owes in full.
class InternalReceipt {
public:
    static ReceiptData of(const InternalSaleResult& saved, const InternalSaleSession& sale,
                          const QString& time);
};

}  // namespace sandogh
