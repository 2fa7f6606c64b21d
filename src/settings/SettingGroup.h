#pragma once

namespace sandogh {

// The page of the settings screen a setting belongs to.
enum class SettingGroup {
    Session,     // fiscal year, last user, station
    Ports,       // general serial ports and what hangs on them
    Display,     // customer pole display
    Drawer,      // cash drawer
    Scale,       // scale vendors' databases, weighed tickets, weight service
    Sale,        // behaviour of the sale screen
    Receipt,     // receipt printing and the companion program
    Customers,   // customers and users
    Messaging,   // SMS and e-mail notices
    Branches,    // central database and branch transfer
    System,      // program-wide switches
    Appearance,  // colours and grid sizes
};

}  // namespace sandogh
