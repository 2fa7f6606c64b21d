#pragma once

#include <QString>
#include <optional>

#include "data/Session.h"

namespace sandogh {

// The unit price of an article on an internal sale, with its name, tax, kind and stock
// (Stock.Stock, 0 without a row), by one of three modes:
//   LastInternal: Fee of the newest internal line of the article (largest line ID), only
//                 among documents dated up to dateLimit when one is given; the article's Cost
//                 when there is none or it is 0;
//   Master:       Cost of Goods;
//   LastPurchase: Fee of the newest ordinary purchase line (TransType 1, DocType NULL),
//                 0 when the article was never bought.
class InternalPrices {
public:
    enum class Mode { LastInternal = 1, Master = 2, LastPurchase = 3 };

    struct Row {
        bool found = false;  // false: the barcode is not in Goods
        QString name;
        double price = 0;
        double taxPercent = 0;
        int kind = 0;  // GType
        double stock = 0;
    };

    // Nothing when a statement failed (it has been reported).
    static std::optional<Row> priced(Session& session, const QString& barcode, Mode mode,
                                     const QString& dateLimit = {});
    // The mode of a setting's number; LastInternal for anything else.
    static Mode modeOf(int number);
};

}  // namespace sandogh
