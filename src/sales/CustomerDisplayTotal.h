#pragma once

#include "sales/TotalDisplay.h"

namespace sandogh {

class CustomerDisplay;

// The running total on this desk's customer display (ShowOnCustomerDisplay).
class CustomerDisplayTotal final : public TotalDisplay {
public:
    explicit CustomerDisplayTotal(CustomerDisplay& display) : m_display(display) {}
    void showTotal(const QString& amountText) override;

private:
    CustomerDisplay& m_display;
};

}  // namespace sandogh
