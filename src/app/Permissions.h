#pragma once

#include <QList>

#include "app/Permission.h"
#include "app/PermissionLevel.h"

namespace sandogh {

// Which menus and screens a user may open, by the user's permission level. The
// administrator may open everything; the cashier the cash desk's own work: selling,
// the drawer, the shift and finding a customer (and leaving the program).
class Permissions {
public:
    explicit Permissions(PermissionLevel level) : m_level(level) {}

    PermissionLevel level() const { return m_level; }
    bool allows(Permission permission) const;

    // What a cashier may open; the administrator has these and all the others.
    static const QList<Permission>& cashierPermissions();

private:
    PermissionLevel m_level;
};

}  // namespace sandogh
