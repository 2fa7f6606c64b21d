#pragma once

#include <QString>

namespace sandogh {

// One line of a saved sale as the receipt prints it.
struct ReceiptLine {
    QString barcode;
    QString name;  // Goods.Name; empty when the article is gone
    double quantity = 0;
    double unitPrice = 0;  // Fee: the net unit price
    double total = 0;      // Price: the line amount
};

}  // namespace sandogh
