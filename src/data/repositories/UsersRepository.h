#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <optional>

#include "data/repositories/UserRow.h"

namespace sandogh {

class Database;
class Session;

// The Users table with the user's cash desks (UserStation), warehouses (UserWarehouse) and
// permission lists (UserPermission). Login names are compared trimmed and without regard to
// case, as "ltrim(rtrim(UserName))" is.
class UsersRepository {
public:
    enum class SaveOutcome {
        Saved,
        NameTaken,        // another row has the login name
        NoAdministrator,  // the change would leave no active administrator; nothing written
        Failed,           // the database refused; reported by the data layer
    };

    // The value of Users.PermissionLevel that makes a user an administrator.
    static constexpr int kAdministratorLevel = 1;

    explicit UsersRepository(Database& database) : m_database(database) {}

    // Every user by ID, without the password.
    QList<UserRow> list();
    std::optional<UserRow> find(int id);
    // The rows whose login name is the trimmed, lower-case userName, by ID (with password);
    // nothing when the table cannot be read.
    std::optional<QList<UserRow>> withLoginName(Session& session, const QString& userName);
    // The cash desks the user may work at; empty for any.
    QList<int> stationsOf(Session& session, int userId);
    // The ID of the active user with exactly this login name; -1 when there is none.
    static int activeUserId(Session& session, const QString& userName);
    bool setPassword(Session& session, int id, const QString& stored);
    bool setPassword(int id, const QString& stored);
    // Active administrators; -1 when the table cannot be read.
    qint64 activeAdministrators(Session& session);
    // Rows with the login name other than the row except; -1 on failure.
    qint64 loginNameUses(Session& session, const QString& userName, int except = 0);
    // Inserts a user with its stored password; its new ID, or 0.
    int insert(Session& session, const UserRow& row);

    // Writes the user (a new one when id is 0, with the stored password given), its cash desks
    // and warehouses in one transaction; refused as a whole when the login name is taken or
    // when no active administrator would be left.
    SaveOutcome save(UserRow& row);

    QList<NamedCode> stations();
    QList<NamedCode> warehouses();

    // The permissions stored for a role (userId 0) or a user (level 0), by name: true for
    // allowed, false for taken away; empty when none is stored.
    QHash<QString, bool> permissions(int level, int userId);
    // Replaces the stored permissions of a role or a user with these (none: the defaults).
    bool setPermissions(int level, int userId, const QHash<QString, bool>& permissions);

private:
    bool writeLinks(Session& session, const UserRow& row);

    Database& m_database;
};

}  // namespace sandogh
