#pragma once

#include <QString>

namespace sandogh {

// What a label scale's item record is written with: the PLU number, the name, the barcode
// as text and as a number, the unit price and the vendor's kind or unit code.
struct ScaleItemValues {
    qint64 plu = 0;
    QString name;
    QString barcode;
    qint64 barcodeValue = 0;
    double price = 0;
    int kind = 0;  // OnlineSales Type, or MizanNet and Sadr weight unit
};

}  // namespace sandogh
