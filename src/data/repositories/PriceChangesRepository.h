#pragma once

#include <QString>
#include <optional>

namespace sandogh {

class Session;

// The price-change documents (DiscountH with their lines DiscountD).
class PriceChangesRepository {
public:
    // NewCost of the newest price-change document (largest DiscountD.Code) whose date
    // range holds the day, compared as Jalali text; 0 when none is in force.
    static std::optional<double> costInForce(Session& session, const QString& day,
                                             const QString& barcode);
};

}  // namespace sandogh
