#pragma once

#include <QString>

namespace sandogh {

// A good as the goods screen hands it to the scales.
struct ScaleGood {
    QString plu;           // the special code (txtSpecCode): PLU and key number on the scale
    QString name;          // txtName: the label text
    QString barcode;       // txtBarcode: the good's EAN code
    QString cost;          // txtCost as shown, with ","
    bool weighed = false;  // sold by weight rather than by count
};

}  // namespace sandogh
