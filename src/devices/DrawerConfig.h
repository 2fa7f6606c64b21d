#pragma once

#include <QString>

namespace sandogh {

// Where the cash drawer hangs and how it is opened.
struct DrawerConfig {
    // PrinterPort.USB: "True" in any case means the drawer is on the receipt printer.
    QString printerPortUsb = QStringLiteral("True");
    // The program folder; the drawer program and its working directory follow from it.
    QString programFolder;
    // The drawer program; empty: Program/Tamvex.exe under the program folder.
    QString drawerProgram;
};

}  // namespace sandogh
