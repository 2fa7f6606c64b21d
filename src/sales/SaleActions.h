#pragma once

#include <QString>

namespace sandogh {

// What the sale hands on to the steps beyond ringing up: saving, payment, the bank
// terminals, the cash drawer and the gift/RFID card look-up. The screen (or the command
// line) supplies the implementation; SaleSession calls it for the keys and entries that
// ask for these steps.
class SaleActions {
public:
    virtual ~SaleActions() = default;

    // Saves the sale (F6, Ctrl+Enter, Ctrl+F6); true when it was saved.
    virtual bool save() = 0;
    // The split of the payment over its kinds (frmSalePayment); false when cancelled.
    virtual bool paymentType() = 0;
    // Payment on the PEC card terminal of this desk (F5); true when paid.
    virtual bool pecPayment() = 0;
    // Hands a terminal payment to the companion program; command is the menu command
    // with its comma, "mnuPosMellat," ... "mnuDamavandPsp,".
    virtual void terminalHandOff(const QString& command) = 0;
    // Opens the cash drawer.
    virtual void openDrawer() = 0;
    // Looks up a gift/RFID card by its number (validity, balance and owner); true when
    // the card was accepted, which clears the barcode box.
    virtual bool cardLookup(qint64 cardNumber) = 0;
};

}  // namespace sandogh
