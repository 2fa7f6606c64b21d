#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include "app/Permission.h"
#include "app/PermissionLevel.h"

namespace sandogh {

// Which menus and screens a user may open. The role (permission level) gives a default
// list: the administrator everything, the cashier the cash desk's own work (selling, the
// drawer, the shift and finding a customer). The shop may change a role's list and give
// one user a list of its own (UserPermission); each stored entry allows or takes away one
// permission over what the role gives. Leaving the program and switching user are never
// taken away, nor the users screen from an administrator (the shop could not be run).
class Permissions {
public:
    explicit Permissions(PermissionLevel level) : m_level(level) {}
    // The role's default changed by the stored entries, by permission name: the role's
    // first, then the user's.
    Permissions(PermissionLevel level, const QHash<QString, bool>& roleEntries,
                const QHash<QString, bool>& userEntries);

    PermissionLevel level() const { return m_level; }
    bool allows(Permission permission) const;

    // What a role gives when the shop has changed nothing.
    static bool roleDefault(PermissionLevel level, Permission permission);
    // True for the permissions that are never taken away from the role.
    static bool isFixed(PermissionLevel level, Permission permission);
    // What a cashier may open by default; the administrator has these and all the others.
    static const QList<Permission>& cashierPermissions();

private:
    PermissionLevel m_level;
    QHash<Permission, bool> m_changes;
};

}  // namespace sandogh
