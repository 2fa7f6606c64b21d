#pragma once

#include <QString>

namespace sandogh {

// One line of a purchase as the grid holds it and Whs_QTYDocD keeps it. The list price
// (MFee) less its discount percent is the net price; Fee adds the tax percent of that net
// price, so Fee is the landed unit cost that the last and average purchase prices read,
// and Price is Fee times the quantity. Each percent product is divided by 100 as it is
// formed.
struct PurchaseLine {
    QString barcode;
    QString name;
    QString unitName;
    double qty = 1;
    double mFee = 0;
    double discount = 0;  // percent of MFee
    double taxValue = 0;  // percent of the net price
    double fee = 0;
    double price = 0;
    double cost = 0;   // the article's sale price, for display
    double stock = 0;  // on hand when the line was added, for display

    double netPrice() const { return mFee - mFee * discount / 100; }
    // The tax of the whole line: (MFee - MFee * Discount / 100) * Qty * TaxValue / 100.
    double taxAmount() const { return netPrice() * qty * taxValue / 100; }
    // Fee and Price from the quantity, list price, discount and tax.
    void recompute() {
        const double net = netPrice();
        fee = net + net * taxValue / 100;
        price = fee * qty;
    }
};

}  // namespace sandogh
