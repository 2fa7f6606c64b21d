#pragma once

#include <QString>

namespace sandogh {

// The loyalty gifts a party has taken (Types.DiscountTakenTotal and LastDiscountTakenDate).
struct GiftsTaken {
    bool found = false;  // the party's row was there
    double total = 0;
    QString lastDate;
};

}  // namespace sandogh
