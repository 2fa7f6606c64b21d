#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace sandogh {

class Session;

// The till's reads of the goods master (Goods), one statement each, on the caller's
// session. Every value is bound. A read that fails returns nothing (std::nullopt, or ok
// false); the data layer has then reported it.
class GoodsLookups {
public:
    // The price columns a goods row is read with.
    enum class PriceColumn { Cost, Cost2 };
    // The columns the favourites may be ordered by.
    enum class FavouriteOrder { Barcode, Name, Cost };

    struct GoodsRow {
        bool found = false;
        QString name;
        double price = 0;
        double taxPercent = 0;
        int kind = 0;  // GType
    };
    // A goods row as the weighed tickets read it.
    struct TicketGoods {
        bool found = false;
        QString barcode;  // Ean_Code
        QString name;
        double cost = 0;
        double taxPercent = 0;
        int type = 0;  // Type: 1 weighed in grams
    };
    struct Flag {
        bool ok = false;
        bool on = false;
        QString name;
    };
    struct Favourite {
        QString barcode;  // Ean_Code
        QString name;
        double cost = 0;
        QString picture;  // Pic
    };

    // Active goods with this barcode.
    static std::optional<qint64> activeCount(Session& session, const QString& barcode);
    // The first active article with this Spec_Code; empty text for none.
    static std::optional<QString> firstActiveBySpecCode(Session& session, const QString& specCode);
    // The quantity-asking flag AQIS (and the name, for the question).
    static Flag asksQuantity(Session& session, const QString& barcode);
    // Name, price, tax and kind of an article; found false when it is not in Goods.
    static std::optional<GoodsRow> goodsRow(Session& session, const QString& barcode,
                                            PriceColumn column);
    // Cost and Cost2 of an article; an empty list when it is not in Goods.
    static std::optional<QList<double>> masterPrices(Session& session, const QString& barcode);
    static std::optional<TicketGoods> goodsByBarcode(Session& session, const QString& barcode);
    static std::optional<TicketGoods> goodsBySpecCode(Session& session, const QString& specCode);
    // The active favourite goods of one tab of the favourites grid; empty on failure.
    static QList<Favourite> favourites(Session& session, int tab, FavouriteOrder order);
};

}  // namespace sandogh
