#pragma once

#include <QString>

namespace sandogh {

class CompanionHandOff;

// The bank terminals that the companion program drives, and the cheque receipt, handed
// over as one command text: the menu command of the terminal's screen with its comma,
// then the amount in whole rials without separators ("mnuPosMellat,125000").
class TerminalHandOffs {
public:
    enum class Terminal { Mellat, Saman, Pasargad, Kish, AsanPardakht, Damavand };

    explicit TerminalHandOffs(CompanionHandOff& companion);

    // "mnuPosMellat," ... "mnuDamavandPsp,".
    static QString commandOf(Terminal terminal);
    // A command with its comma followed by the amount.
    static QString commandText(const QString& command, double amount);
    static QString commandText(Terminal terminal, double amount);
    static QString chequeReceiptCommand();

    // False when the companion program is missing or did not start.
    bool payOn(Terminal terminal, double amount);
    bool payOn(const QString& command, double amount);
    bool chequeReceipt();

private:
    CompanionHandOff& m_companion;
};

}  // namespace sandogh
