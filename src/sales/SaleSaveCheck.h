#pragma once

namespace sandogh {

// The checks run when a sale is saved, in the order they run. The value tells the screen
// which one refused, so that it can react (the customer search after CustomerRequired,
// the received box after Received, ...).
enum class SaleSaveCheck : int {
    None = 0,             // every check passed
    Date = 1,             // the date box holds the empty mask
    CustomerRequired,     // customer-required option and no customer
    CustomerAboveAmount,  // a customer is required above an amount
    CustomerCheck,        // the customer does not resolve
    EmptyGrid,            // no lines
    DocNo,                // no invoice number
    NegativeTotal,        // total - discount + overhead below zero
    Kinds,                // a discount or overhead amount without its kind
    DiscountFactor,       // the discount does not fit its kind's factor
    Received,             // received more than the total, or less and not confirmed
    Lines,                // stock, locked goods, price floor
    SellerAndPayment,     // no seller, no payment kind
    GiftCard,             // the card pays more than the invoice or than its credit
    ReturnCause,          // a return without its cause
    Codes,                // a payment kind, discount kind, station or customer that is gone
};

}  // namespace sandogh
