#pragma once

#include <QHash>
#include <QString>

#include "app/PermissionLevel.h"
#include "app/Permissions.h"

namespace sandogh {

// A row of Users as the login reads it; id 0 means nobody has logged in.
struct UserAccount {
    int id = 0;
    QString userName;  // the login name, as kept (trimmed)
    QString name;      // the name shown to people
    PermissionLevel level = PermissionLevel::Cashier;
    bool active = true;
    // The stored permission lists of the user's role and of the user (UserPermission).
    QHash<QString, bool> rolePermissions;
    QHash<QString, bool> userPermissions;

    bool isValid() const { return id > 0; }
    Permissions permissions() const { return Permissions(level, rolePermissions, userPermissions); }
};

}  // namespace sandogh
