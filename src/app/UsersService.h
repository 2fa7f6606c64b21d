#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include "app/Permission.h"
#include "app/PermissionLevel.h"
#include "data/repositories/UserRow.h"

namespace sandogh {

class Database;

// The owner's administration of users: adding, editing and deactivating them, their cash
// desks and warehouses, passwords (kept as the login expects, PasswordHasher), and the
// permission lists of roles and users. The shop always keeps one active administrator.
class UsersService {
public:
    // Messages of refused changes.
    static const QString& nameRequiredMessage();
    static const QString& loginNameRequiredMessage();
    static const QString& loginNameTakenMessage();
    static const QString& passwordRequiredMessage();
    static const QString& lastAdministratorMessage();
    static const QString& saveFailedMessage();

    explicit UsersService(Database& database) : m_database(database) {}

    QList<UserRow> users();
    QList<NamedCode> stations();
    QList<NamedCode> warehouses();

    // Saves the user (a new one when its id is 0). password: the new password, empty to keep
    // the present one; a new user needs one. Empty on success, else the message why nothing
    // was written.
    QString save(UserRow& user, const QString& password = {});
    // Sets a user's password; empty on success, else the message.
    QString setPassword(int userId, const QString& password);

    // The permission list of a role (userId 0) or of one user: every permission with whether
    // it is allowed, as the role (and the user's own entries) decide.
    QHash<Permission, bool> permissionList(PermissionLevel level, int userId = 0);
    // Keeps the list of a role (userId 0) or of one user; a user's entries that the role
    // gives anyway are not kept. False when the database refused.
    bool setPermissionList(PermissionLevel level, int userId, const QHash<Permission, bool>& list);

private:
    Database& m_database;
};

}  // namespace sandogh
