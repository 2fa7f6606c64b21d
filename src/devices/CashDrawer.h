#pragma once

#include <QByteArray>
#include <QString>

#include "DrawerConfig.h"
#include "ProgramLauncher.h"
#include "RawPrinter.h"
#include "settings/MessageService.h"

namespace sandogh {

// The cash drawer: kicked through the receipt printer, or opened by the small
// drawer program where it hangs elsewhere. Holds no state: each request is one pulse.
class CashDrawer {
public:
    // The print job that carries the kick.
    static constexpr const char* kJobName = "OPENCASH";
    // Shown when the default printer cannot be reached.
    static constexpr const char* kPrinterNotRecognized =
        "The Printer Name you typed wasn't recognized.";
    // ESC "p", pin 0, 25 and 30 units of 2 ms: a 50 ms pulse and 60 ms of rest.
    static QByteArray kickBytes();

    CashDrawer(const DrawerConfig& config, RawPrinter& printer, ProgramLauncher& launcher,
               MessageService& messages);

    // The one entry through which every screen opens the drawer.
    void open();
    // The kick through the default printer.
    void OpenCashDrawer();

    bool drawerOnPrinter() const;
    QString drawerProgram() const;
    QString drawerWorkingDirectory() const;

private:
    DrawerConfig m_config;
    RawPrinter& m_printer;
    ProgramLauncher& m_launcher;
    MessageService& m_messages;
};

}  // namespace sandogh
