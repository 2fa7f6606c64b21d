#pragma once

#include "sales/SaleKeyBinding.h"

namespace sandogh {

class MachineSettings;
class SaleSession;

// Carries out the keys and buttons of a sale that the sale itself answers (saving, the
// terminal payments, a new sale, deleting a line, sale or return, the drawer, the payment
// split); the rest are the screen's: focus, another form, a panel.
class SaleKeyDispatch {
public:
    enum class Result {
        Done,       // carried out here (or handed to the sale's actions)
        Refused,    // not allowed now; a message may have been shown
        ForScreen,  // a screen matter: focus, another form, a panel
    };

    // Neither is owned; both must outlive the dispatch.
    SaleKeyDispatch(SaleSession& sale, const MachineSettings& settings);

    // A key of the screen (SaleKeyMap); selectedRow is the grid's current line.
    Result execute(const SaleKeyBinding& binding, int selectedRow = -1);
    // btnOpenCash and btnPaymentType, handed to the sale's actions; false without them.
    bool openDrawer();
    bool choosePayment();

private:
    SaleSession& m_sale;
    const MachineSettings& m_settings;
};

}  // namespace sandogh
