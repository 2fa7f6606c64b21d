#pragma once

namespace sandogh {

// The check that stopped a purchase from being saved.
enum class PurchaseCheck {
    None,
    Supplier,
    AccountingGroup,
    DocNo,
    Lines,
    RepeatedDocNo,
    SupplierAccount,  // the supplier has no accounting group
};

}  // namespace sandogh
