#include "sales/SaleKeyMap.h"

namespace sandogh {

namespace {

std::optional<SaleKeyBinding> bind(SaleCommand command, const char* handOff = nullptr) {
    return SaleKeyBinding{command, handOff ? QString::fromLatin1(handOff) : QString()};
}

std::optional<SaleKeyBinding> plainKey(int key) {
    switch (key) {
        case Qt::Key_F2:
            return bind(SaleCommand::GoodDefinition);
        case Qt::Key_F3:
            return bind(SaleCommand::NewSaleForm);
        case Qt::Key_F5:
            return bind(SaleCommand::PecPayment);
        case Qt::Key_F6:
            return bind(SaleCommand::Save);
        case Qt::Key_F7:
            return bind(SaleCommand::TerminalHandOff, "mnuPosMellat,");
        case Qt::Key_F8:
            return bind(SaleCommand::TerminalHandOff, "mnuPosSaman,");
        case Qt::Key_F9:
            return bind(SaleCommand::TerminalHandOff, "mnuPosPasargad,");
        case Qt::Key_F10:
            return bind(SaleCommand::TerminalHandOff, "mnuKishPsp,");
        case Qt::Key_F11:
            return bind(SaleCommand::TerminalHandOff, "mnuAsanPardakhtPsp,");
        case Qt::Key_F12:
            return bind(SaleCommand::TerminalHandOff, "mnuDamavandPsp,");
        case Qt::Key_Escape:
            return bind(SaleCommand::NewSale);
        default:
            return std::nullopt;
    }
}

std::optional<SaleKeyBinding> controlKey(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return bind(SaleCommand::Save);
        case Qt::Key_F6:
            return bind(SaleCommand::SaveAndPrint);
        case Qt::Key_B:
            return bind(SaleCommand::FocusSumReceived);
        case Qt::Key_C:
            return bind(SaleCommand::FocusReceivedPrice);
        case Qt::Key_D:
            return bind(SaleCommand::DeleteLine);
        case Qt::Key_H:
            return bind(SaleCommand::CustomerSummary);
        case Qt::Key_J:
            return bind(SaleCommand::FocusDiscount);
        case Qt::Key_L:
            return bind(SaleCommand::GoodsSearch);
        case Qt::Key_M:
            return bind(SaleCommand::SwitchMode);
        case Qt::Key_P:
            return bind(SaleCommand::DeleteInvoice);
        case Qt::Key_Q:
            return bind(SaleCommand::ChangeQuantity);
        case Qt::Key_S:
            return bind(SaleCommand::CustomerSearch);
        case Qt::Key_T:
            return bind(SaleCommand::DailyTotals);
        case Qt::Key_Z:
            return bind(SaleCommand::FocusOther);
        default:
            return std::nullopt;
    }
}

}  // namespace

std::optional<SaleKeyBinding> SaleKeyMap::lookup(int key, Qt::KeyboardModifiers modifiers) {
    // The keypad flag only tells where the key is.
    const Qt::KeyboardModifiers held = modifiers & ~Qt::KeypadModifier;
    if (held == Qt::NoModifier) {
        return plainKey(key);
    }
    if (held == Qt::ControlModifier) {
        return controlKey(key);
    }
    return std::nullopt;
}

}  // namespace sandogh
