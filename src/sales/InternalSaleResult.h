#pragma once

#include <QString>

namespace sandogh {

// The check that refused an internal sale, in the order they run.
enum class InternalSaleCheck {
    None,
    Branch,           // no branch chosen
    Goods,            // no lines
    DocNo,            // no invoice number
    ReturnedInvoice,  // a return without the number of the invoice it returns
    DocNoTaken,       // a typed number another document of the kind has
    EarlierReturn,    // the invoice was returned before and the user kept that return
};

// What saving an internal sale did.
struct InternalSaleResult {
    bool saved = false;
    InternalSaleCheck refusedBy = InternalSaleCheck::None;
    qint64 code = 0;
    QString docNo;
    double docSum = 0;
    QString replacedDocNo;  // the earlier return this one replaced; empty for none
};

}  // namespace sandogh
