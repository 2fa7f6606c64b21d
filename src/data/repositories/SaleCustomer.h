#pragma once

#include <QString>

namespace sandogh {

// The customer of the sale: a Types row of TypeNo 10 or 11 with its group's rebate and
// colour (tblCustomerGroup).
struct SaleCustomer {
    int counter = 0;  // CompanyId; 0 for no customer
    QString code{};
    QString name{};
    QString family{};  // Value1
    qint64 account = 0;
    QString tel{};               // Value2
    QString mobile{};            // Value5
    QString address{};           // Value7
    QString birthday{};          // Value9
    double discountPercent = 0;  // the group's DiscountPercent
    qint64 color = 0;            // the group's Color
    QString groupName{};         // GCName

    bool isValid() const { return counter != 0; }
    // CompanyName: name and family as the sale shows them.
    QString displayName() const { return (name.trimmed() + u' ' + family.trimmed()).trimmed(); }
};

}  // namespace sandogh
