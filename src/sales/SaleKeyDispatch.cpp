#include "sales/SaleKeyDispatch.h"

#include "sales/SaleActions.h"
#include "sales/SaleSession.h"
#include "settings/MachineSettings.h"

namespace sandogh {

SaleKeyDispatch::SaleKeyDispatch(SaleSession& sale, const MachineSettings& settings)
    : m_sale(sale), m_settings(settings) {}

SaleKeyDispatch::Result SaleKeyDispatch::execute(const SaleKeyBinding& binding, int selectedRow) {
    SaleActions* actions = m_sale.actions();
    switch (binding.command) {
        case SaleCommand::Save:
        case SaleCommand::SaveAndPrint:
            if (actions == nullptr) {
                return Result::Refused;
            }
            // The display shows the total once more just before saving.
            m_sale.showTotalOnDisplay();
            return actions->save() ? Result::Done : Result::Refused;
        case SaleCommand::PecPayment:
            if (actions == nullptr) {
                return Result::Refused;
            }
            return actions->pecPayment() ? Result::Done : Result::Refused;
        case SaleCommand::TerminalHandOff:
            if (actions == nullptr || binding.handOff.isEmpty()) {
                return Result::Refused;
            }
            actions->terminalHandOff(binding.handOff);
            return Result::Done;
        case SaleCommand::NewSale:
            // Esc is next to F-keys and easy to hit: a sale with lines is only dropped
            // when the cashier says so.
            if (!m_sale.confirmLeave()) {
                return Result::Refused;
            }
            m_sale.newSale();
            return Result::Done;
        case SaleCommand::DeleteLine:
            return m_sale.removeLine(selectedRow) ? Result::Done : Result::Refused;
        case SaleCommand::SwitchMode:
            m_sale.toggleMode();
            return Result::Done;
        case SaleCommand::DailyTotals:
            return m_settings.displayDailySale() ? Result::ForScreen : Result::Refused;
        default:
            return Result::ForScreen;
    }
}

bool SaleKeyDispatch::openDrawer() {
    SaleActions* actions = m_sale.actions();
    if (actions == nullptr) {
        return false;
    }
    actions->openDrawer();
    return true;
}

bool SaleKeyDispatch::choosePayment() {
    SaleActions* actions = m_sale.actions();
    return actions != nullptr && actions->paymentType();
}

}  // namespace sandogh
