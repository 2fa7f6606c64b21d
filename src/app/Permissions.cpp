#include "app/Permissions.h"

namespace sandogh {

const QList<Permission>& Permissions::cashierPermissions() {
    static const QList<Permission> permissions{
        Permission::LeaveProgram, Permission::Sale,           Permission::OpenDrawer,
        Permission::Shift,        Permission::CustomerSearch,
    };
    return permissions;
}

bool Permissions::allows(Permission permission) const {
    switch (m_level) {
        case PermissionLevel::Administrator:
            return true;
        case PermissionLevel::Cashier:
            return cashierPermissions().contains(permission);
    }
    return false;
}

}  // namespace sandogh
