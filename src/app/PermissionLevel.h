#pragma once

namespace sandogh {

// Users.PermissionLevel: what kind of work a user does at the shop.
enum class PermissionLevel : int {
    Administrator = 1,  // the back office: every screen and setting
    Cashier = 2,        // the cash desk: selling, the drawer, the shift, finding a customer
};

// The level a Users row holds. Any value other than 1 is read as a cashier, so that a row
// written by hand or by an older program never gains more than the cash desk.
inline PermissionLevel permissionLevelFromColumn(int value) {
    return value == static_cast<int>(PermissionLevel::Administrator)
               ? PermissionLevel::Administrator
               : PermissionLevel::Cashier;
}

}  // namespace sandogh
