#pragma once

#include <QList>
#include <QString>

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
    Backup,          // backing up and restoring the shop
    FiscalYear,      // opening a new fiscal year
    SwitchUser,      // back to the login without leaving; every user
    DeleteSales,     // deleting saved documents, and the record of deletes and edits
    EditSales,       // editing saved sales and returns
};

// Every permission, in the order the permissions screen lists them.
const QList<Permission>& allPermissions();
// The name a permission is stored under (UserPermission.Permission): "Sale", "Users", ...
QString permissionName(Permission permission);
// The permission of a stored name; false when the name is unknown.
bool permissionFromName(const QString& name, Permission& permission);

}  // namespace sandogh
