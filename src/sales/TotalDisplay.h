#pragma once

#include <QString>

namespace sandogh {

// Where the running total goes after every change: the customer pole display.
// amountText is the total as the sale shows it, "##,###".
class TotalDisplay {
public:
    virtual ~TotalDisplay() = default;
    virtual void showTotal(const QString& amountText) = 0;
};

}  // namespace sandogh
