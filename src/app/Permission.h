#pragma once

namespace sandogh {

// The things a user may or may not open: each menu command of the main window names one.
enum class Permission {
    LeaveProgram,    // exit; every user
    Sale,            // the sale screen
    OpenDrawer,      // the cash drawer
    Shift,           // opening and closing the cash desk's shift
    CustomerSearch,  // finding a customer from the cash desk
    SetUp,           // this machine's settings
    ScaleProgram,    // the scale vendor's program
    Parameters,      // the parameter lists
    CodeLevels,      // the structured code levels
    Goods,           // the goods catalogue
    Customers,       // customers, suppliers and their groups
    Purchases,       // purchase invoices and stock documents
    Reports,         // reports and document lists
    Users,           // users and their permissions
    DeleteSales,     // deleting saved documents, and the record of deletes and edits
    EditSales,       // editing saved sales and returns
};

}  // namespace sandogh
