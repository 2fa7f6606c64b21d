#pragma once

#include <QString>

namespace sandogh {

// The customer pole display of this cash desk.
struct DisplayConfig {
    bool enabled = false;  // IsActivePoolDisplay.Enable
    // IsActivePoolDisplay.Line: 1 single-line display on MSComm1, 3 eight-digit
    // price display on MSCommCustomerDisplay, anything else the two-line display.
    int kind = 0;
    // IsActivePoolDisplay.Delay: the pause after clearing the single-line display.
    int delay = 0;
    int port = 1;        // ISActivePoolDisplay.Port: COM number of MSCommCustomerDisplay
    QString devicePath;  // replaces that COM number's device when set
    // The shop's greeting for the two-line display's lower line (table Display).
    QString greeting = QStringLiteral("Welcome");
};

}  // namespace sandogh
