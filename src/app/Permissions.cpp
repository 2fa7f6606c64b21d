#include "app/Permissions.h"

namespace sandogh {

namespace {

struct NamedPermission {
    Permission permission;
    const char* name;
};

// The stored names; never renamed, rows of older databases hold them.
constexpr NamedPermission kNames[] = {
    {Permission::LeaveProgram, "LeaveProgram"},
    {Permission::SwitchUser, "SwitchUser"},
    {Permission::Sale, "Sale"},
    {Permission::OpenDrawer, "OpenDrawer"},
    {Permission::Shift, "Shift"},
    {Permission::CustomerSearch, "CustomerSearch"},
    {Permission::SetUp, "SetUp"},
    {Permission::ScaleProgram, "ScaleProgram"},
    {Permission::Parameters, "Parameters"},
    {Permission::CodeLevels, "CodeLevels"},
    {Permission::Goods, "Goods"},
    {Permission::Customers, "Customers"},
    {Permission::Purchases, "Purchases"},
    {Permission::Reports, "Reports"},
    {Permission::Users, "Users"},
    {Permission::Backup, "Backup"},
    {Permission::FiscalYear, "FiscalYear"},
};

void apply(QHash<Permission, bool>& changes, const QHash<QString, bool>& entries) {
    for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
        Permission permission;
        // A name this program does not know (written by a newer one) changes nothing.
        if (permissionFromName(it.key(), permission)) {
            changes.insert(permission, it.value());
        }
    }
}

}  // namespace

const QList<Permission>& allPermissions() {
    static const QList<Permission> all = [] {
        QList<Permission> list;
        for (const NamedPermission& named : kNames) {
            list << named.permission;
        }
        return list;
    }();
    return all;
}

QString permissionName(Permission permission) {
    for (const NamedPermission& named : kNames) {
        if (named.permission == permission) {
            return QString::fromLatin1(named.name);
        }
    }
    return {};
}

bool permissionFromName(const QString& name, Permission& permission) {
    for (const NamedPermission& named : kNames) {
        if (name.compare(QLatin1String(named.name), Qt::CaseInsensitive) == 0) {
            permission = named.permission;
            return true;
        }
    }
    return false;
}

Permissions::Permissions(PermissionLevel level, const QHash<QString, bool>& roleEntries,
                         const QHash<QString, bool>& userEntries)
    : m_level(level) {
    apply(m_changes, roleEntries);
    apply(m_changes, userEntries);
}

const QList<Permission>& Permissions::cashierPermissions() {
    static const QList<Permission> permissions{
        Permission::LeaveProgram, Permission::SwitchUser, Permission::Sale,
        Permission::OpenDrawer,   Permission::Shift,      Permission::CustomerSearch,
    };
    return permissions;
}

bool Permissions::roleDefault(PermissionLevel level, Permission permission) {
    switch (level) {
        case PermissionLevel::Administrator:
            return true;
        case PermissionLevel::Cashier:
            return cashierPermissions().contains(permission);
    }
    return false;
}

bool Permissions::isFixed(PermissionLevel level, Permission permission) {
    return permission == Permission::LeaveProgram || permission == Permission::SwitchUser ||
           (level == PermissionLevel::Administrator && permission == Permission::Users);
}

bool Permissions::allows(Permission permission) const {
    if (isFixed(m_level, permission)) {
        return true;
    }
    const auto changed = m_changes.constFind(permission);
    return changed != m_changes.cend() ? changed.value() : roleDefault(m_level, permission);
}

}  // namespace sandogh
