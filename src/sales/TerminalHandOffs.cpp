#include "sales/TerminalHandOffs.h"

#include "common/AmountText.h"
#include "devices/CompanionHandOff.h"

namespace sandogh {

TerminalHandOffs::TerminalHandOffs(CompanionHandOff& companion) : m_companion(companion) {}

QString TerminalHandOffs::commandOf(Terminal terminal) {
    switch (terminal) {
        case Terminal::Mellat:
            return QStringLiteral("mnuPosMellat,");
        case Terminal::Saman:
            return QStringLiteral("mnuPosSaman,");
        case Terminal::Pasargad:
            return QStringLiteral("mnuPosPasargad,");
        case Terminal::Kish:
            return QStringLiteral("mnuKishPsp,");
        case Terminal::AsanPardakht:
            return QStringLiteral("mnuAsanPardakhtPsp,");
        case Terminal::Damavand:
            return QStringLiteral("mnuDamavandPsp,");
    }
    return {};
}

QString TerminalHandOffs::commandText(const QString& command, double amount) {
    const QString whole =
        QString::fromStdString(AmountText::stripSeparators(AmountText::formatWhole(amount)));
    return command + whole;
}

QString TerminalHandOffs::commandText(Terminal terminal, double amount) {
    return commandText(commandOf(terminal), amount);
}

QString TerminalHandOffs::chequeReceiptCommand() {
    return QStringLiteral("mnuChequeAndTravelRecept");
}

bool TerminalHandOffs::payOn(Terminal terminal, double amount) {
    return payOn(commandOf(terminal), amount);
}

bool TerminalHandOffs::payOn(const QString& command, double amount) {
    return m_companion.send(commandText(command, amount));
}

bool TerminalHandOffs::chequeReceipt() {
    return m_companion.send(chequeReceiptCommand());
}

}  // namespace sandogh
