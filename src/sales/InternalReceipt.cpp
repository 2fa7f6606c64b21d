#include "sales/InternalReceipt.h"

#include "sales/InternalSaleResult.h"
#include "sales/InternalSaleSession.h"
#include "sales/SaleSession.h"

namespace sandogh {

ReceiptData InternalReceipt::of(const InternalSaleResult& saved, const InternalSaleSession& sale,
                                const QString& time) {
    const SaleSession& entry = sale.entry();
    ReceiptData receipt;
    receipt.title = entry.caption();
    receipt.code = saved.code;
    receipt.docNo = saved.docNo;
    receipt.docDate = entry.saleDate();
    receipt.docTime = time;
    receipt.transType = entry.transType();
    receipt.customerId = sale.branchId();
    receipt.customerName = sale.branchName();
    receipt.docSum = saved.docSum;
    receipt.received = saved.docSum;
    for (const SaleLine& line : entry.lines()) {
        receipt.lines << ReceiptLine{line.barcode, line.name, line.quantity, line.unitPrice,
                                     line.total};
    }
    return receipt;
}

}  // namespace sandogh
