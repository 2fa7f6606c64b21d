#pragma once

#include <QList>
#include <QString>

namespace sandogh {

// The goods of the demo shop, made from word lists: every product of a family in each
// of its brands or grades. The same list comes out every time, so seeding twice finds
// every article already there.
class DemoGoods {
public:
    // The demo's units of measure (Types, TypeNo 61), in this order.
    enum class Unit { Piece, Kilogram, Pack, Bottle, Box };
    static QList<QString> unitNames();

    struct Article {
        QString barcode;   // EAN_Code: 13 digits with a valid check digit
        QString specCode;  // Spec_Code: the short code typed at the cash desk (the PLU of weighed
                           // goods)
        QString name;
        QString latinName;
        QString family;  // the shelf family, Persian
        Unit unit = Unit::Piece;
        bool weighed = false;  // sold by weight: GType and Type 1
        double price = 0;      // rials, per unit or per kilogram
        int taxPercent = 0;    // 0 or 9
        bool favourite = false;
        int favouriteTab = 0;
        QString shelf;  // StockNo1
    };

    static QList<Article> articles();

    // The EAN-13 check digit of twelve digits.
    static int ean13CheckDigit(const QString& twelveDigits);
};

}  // namespace sandogh
