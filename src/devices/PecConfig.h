#pragma once

#include <QString>

namespace sandogh {

// The card terminal's line.
struct PecConfig {
    int commPort = 0;    // PortNo.Pec
    QString devicePath;  // replaces the COM number mapping when set
    // How long the line must stay quiet after data arrives before the answer
    // is taken as complete.
    int settleMs = 1000;
};

}  // namespace sandogh
