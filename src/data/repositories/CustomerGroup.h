#pragma once

#include <QString>

namespace sandogh {

// A customer group (tblCustomerGroup): a discount and the club figures shared by the
// customers given the group.
struct CustomerGroup {
    int code = 0;  // the key; 0 for a group not saved yet
    QString name;
    qint64 color = 0;  // the colour the group is shown in, 0xRRGGBB
    double discountPercent = 0;
    double buyFactor = 0;
    double amountRebate = 0;
};

}  // namespace sandogh
