#include "sales/CustomerDisplayTotal.h"

#include "devices/CustomerDisplay.h"

namespace sandogh {

void CustomerDisplayTotal::showTotal(const QString& amountText) {
    m_display.ShowOnCustomerDisplay(amountText);
}

}  // namespace sandogh
