#include "data/repositories/UsersRepository.h"

#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/ReturningInsert.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("UsersRepository");

const QString kSameUserName = QStringLiteral("LOWER(LTRIM(RTRIM(UserName))) = :userName");

// Fixed-width text columns on some servers come back padded with blanks.
QString withoutTrailingBlanks(QString text) {
    while (text.endsWith(QLatin1Char(' '))) {
        text.chop(1);
    }
    return text;
}

QList<int> readCodes(Session& session, const QString& sql, int userId) {
    QList<int> codes;
    SqlQuery q(session, sql);
    q.bind(QStringLiteral(":userId"), userId);
    if (q.exec()) {
        while (q.next()) {
            codes << q.integer(0);
        }
    }
    return codes;
}

QList<NamedCode> readNamed(Database& database, const QString& routine, const QString& sql) {
    Session s = database.session(kModule, routine);
    QList<NamedCode> rows;
    SqlQuery q(s, sql);
    q.bind(QStringLiteral(":active"), 1);
    if (q.exec()) {
        while (q.next()) {
            rows.append({q.integer(0), q.text(1).trimmed()});
        }
    }
    return rows;
}

}  // namespace

QList<UserRow> UsersRepository::list() {
    Session s = m_database.session(kModule, QStringLiteral("list"));
    QList<UserRow> rows;
    SqlQuery q(s, QStringLiteral("SELECT ID, COALESCE(Name, ''), COALESCE(UserName, ''), "
                                 "COALESCE(PermissionLevel, 0), COALESCE(Active, 0) "
                                 "FROM Users ORDER BY ID"));
    if (!q.exec()) {
        return rows;
    }
    while (q.next()) {
        UserRow row;
        row.id = q.integer(0);
        row.name = q.text(1).trimmed();
        row.userName = q.text(2).trimmed();
        row.level = q.integer(3);
        row.active = q.integer(4) == 1;
        rows << row;
    }
    for (UserRow& row : rows) {
        row.stations = stationsOf(s, row.id);
        row.warehouses =
            readCodes(s,
                      QStringLiteral("SELECT WarehouseCode FROM UserWarehouse WHERE UserID = "
                                     ":userId AND ISActive = 1 ORDER BY WarehouseCode"),
                      row.id);
    }
    return rows;
}

std::optional<UserRow> UsersRepository::find(int id) {
    for (const UserRow& row : list()) {
        if (row.id == id) {
            return row;
        }
    }
    return std::nullopt;
}

std::optional<QList<UserRow>> UsersRepository::withLoginName(Session& session,
                                                             const QString& userName) {
    QList<UserRow> rows;
    SqlQuery q(session, QStringLiteral("SELECT ID, UserName, Name, Password, PermissionLevel, "
                                       "Active FROM Users WHERE ") +
                            kSameUserName + QStringLiteral(" ORDER BY ID"));
    q.bind(QStringLiteral(":userName"), userName);
    if (!q.exec()) {
        return std::nullopt;
    }
    while (q.next()) {
        UserRow row;
        row.id = q.integer(0);
        row.userName = q.text(1).trimmed();
        row.name = q.text(2).trimmed();
        row.password = withoutTrailingBlanks(q.text(3));
        row.level = q.integer(4);
        row.active = q.integer(5) == 1;
        rows << row;
    }
    return rows;
}

QList<int> UsersRepository::stationsOf(Session& session, int userId) {
    return readCodes(session,
                     QStringLiteral("SELECT StationID FROM UserStation WHERE UserID = :userId "
                                    "ORDER BY StationID"),
                     userId);
}

bool UsersRepository::setPassword(Session& session, int id, const QString& stored) {
    return session.exec(QStringLiteral("UPDATE Users SET Password = :password WHERE ID = :id"),
                        {{QStringLiteral(":password"), stored}, {QStringLiteral(":id"), id}});
}

bool UsersRepository::setPassword(int id, const QString& stored) {
    Session s = m_database.session(kModule, QStringLiteral("setPassword"));
    return s && setPassword(s, id, stored);
}

qint64 UsersRepository::activeAdministrators(Session& session) {
    return session.scalarInt64(
        QStringLiteral("SELECT COUNT(*) FROM Users WHERE PermissionLevel = :level AND Active = 1"),
        {{QStringLiteral(":level"), kAdministratorLevel}}, -1);
}

qint64 UsersRepository::loginNameUses(Session& session, const QString& userName, int except) {
    return session.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Users WHERE ") + kSameUserName +
                                   QStringLiteral(" AND ID <> :except"),
                               {{QStringLiteral(":userName"), userName.trimmed().toLower()},
                                {QStringLiteral(":except"), except}},
                               -1);
}

int UsersRepository::insert(Session& session, const UserRow& row) {
    return static_cast<int>(
        procedures::ReturningInsert::insert(session, QStringLiteral("Users"),
                                            {{QStringLiteral("Name"), row.name},
                                             {QStringLiteral("UserName"), row.userName.trimmed()},
                                             {QStringLiteral("Password"), row.password},
                                             {QStringLiteral("PermissionLevel"), row.level},
                                             {QStringLiteral("Location"), QString()},
                                             {QStringLiteral("Active"), row.active ? 1 : 0},
                                             {QStringLiteral("UserGroupId"), 0}},
                                            QStringLiteral("ID")));
}

bool UsersRepository::writeLinks(Session& session, const UserRow& row) {
    const SqlBinds user{{QStringLiteral(":userId"), row.id}};
    if (!session.exec(QStringLiteral("DELETE FROM UserStation WHERE UserID = :userId"), user) ||
        !session.exec(QStringLiteral("DELETE FROM UserWarehouse WHERE UserID = :userId"), user)) {
        return false;
    }
    for (int station : row.stations) {
        if (!session.exec(
                QStringLiteral("INSERT INTO UserStation (UserID, StationID) "
                               "VALUES (:userId, :code)"),
                {{QStringLiteral(":userId"), row.id}, {QStringLiteral(":code"), station}})) {
            return false;
        }
    }
    for (int warehouse : row.warehouses) {
        if (!session.exec(
                QStringLiteral("INSERT INTO UserWarehouse (UserID, WarehouseCode, "
                               "ISActive) VALUES (:userId, :code, 1)"),
                {{QStringLiteral(":userId"), row.id}, {QStringLiteral(":code"), warehouse}})) {
            return false;
        }
    }
    return true;
}

UsersRepository::SaveOutcome UsersRepository::save(UserRow& row) {
    Session s = m_database.session(kModule, QStringLiteral("save"));
    if (!s) {
        return SaveOutcome::Failed;
    }
    Transaction tx(s);
    if (!tx.isActive()) {
        return SaveOutcome::Failed;
    }
    const int savedId = row.id;
    // Nothing of the user is kept when any part fails.
    auto failed = [&] {
        tx.rollback();
        row.id = savedId;
        return SaveOutcome::Failed;
    };
    const qint64 uses = loginNameUses(s, row.userName, row.id);
    if (uses < 0) {
        return failed();
    }
    if (uses > 0) {
        tx.rollback();
        return SaveOutcome::NameTaken;
    }
    if (row.id == 0) {
        row.id = insert(s, row);
        if (row.id == 0) {
            return failed();
        }
    } else if (!s.exec(QStringLiteral("UPDATE Users SET Name = :name, UserName = :userName, "
                                      "PermissionLevel = :level, Active = :active WHERE ID = :id"),
                       {{QStringLiteral(":name"), row.name},
                        {QStringLiteral(":userName"), row.userName.trimmed()},
                        {QStringLiteral(":level"), row.level},
                        {QStringLiteral(":active"), row.active ? 1 : 0},
                        {QStringLiteral(":id"), row.id}})) {
        return failed();
    }
    if (!writeLinks(s, row)) {
        return failed();
    }
    // Checked after the write, inside the transaction, so that two administrators
    // demoting each other at once cannot both succeed.
    const qint64 administrators = activeAdministrators(s);
    if (administrators <= 0) {
        tx.rollback();
        row.id = savedId;
        return administrators < 0 ? SaveOutcome::Failed : SaveOutcome::NoAdministrator;
    }
    if (!tx.commit()) {
        return failed();
    }
    return SaveOutcome::Saved;
}

QList<NamedCode> UsersRepository::stations() {
    return readNamed(m_database, QStringLiteral("stations"),
                     QStringLiteral("SELECT ID, COALESCE(Station_Name, '') FROM Stations "
                                    "WHERE :active = 1 ORDER BY ID"));
}

QList<NamedCode> UsersRepository::warehouses() {
    return readNamed(m_database, QStringLiteral("warehouses"),
                     QStringLiteral("SELECT Code, COALESCE(Name, '') FROM tblWarehouse "
                                    "WHERE ISActive = :active ORDER BY Code"));
}

QHash<QString, bool> UsersRepository::permissions(int level, int userId) {
    Session s = m_database.session(kModule, QStringLiteral("permissions"));
    QHash<QString, bool> stored;
    SqlQuery q(s, QStringLiteral("SELECT Permission, Allowed FROM UserPermission "
                                 "WHERE PermissionLevel = :level AND UserID = :userId"));
    q.bind(QStringLiteral(":level"), level).bind(QStringLiteral(":userId"), userId);
    if (q.exec()) {
        while (q.next()) {
            stored.insert(q.text(0).trimmed(), q.integer(1) == 1);
        }
    }
    return stored;
}

bool UsersRepository::setPermissions(int level, int userId,
                                     const QHash<QString, bool>& permissions) {
    Session s = m_database.session(kModule, QStringLiteral("setPermissions"));
    if (!s) {
        return false;
    }
    Transaction tx(s);
    if (!tx.isActive()) {
        return false;
    }
    const SqlBinds owner{{QStringLiteral(":level"), level}, {QStringLiteral(":userId"), userId}};
    if (!s.exec(
            QStringLiteral(
                "DELETE FROM UserPermission WHERE PermissionLevel = :level AND UserID = :userId"),
            owner)) {
        tx.rollback();
        return false;
    }
    for (auto it = permissions.cbegin(); it != permissions.cend(); ++it) {
        if (!s.exec(QStringLiteral("INSERT INTO UserPermission (PermissionLevel, UserID, "
                                   "Permission, Allowed) VALUES (:level, :userId, :permission, "
                                   ":allowed)"),
                    {{QStringLiteral(":level"), level},
                     {QStringLiteral(":userId"), userId},
                     {QStringLiteral(":permission"), it.key()},
                     {QStringLiteral(":allowed"), it.value() ? 1 : 0}})) {
            tx.rollback();
            return false;
        }
    }
    return tx.commit();
}

int UsersRepository::activeUserId(Session& session, const QString& userName) {
    SqlQuery q(session,
               QStringLiteral("SELECT ID FROM Users WHERE UserName = :name AND Active = 1"));
    q.bind(QStringLiteral(":name"), userName);
    return q.exec() && q.next() ? q.integer(0) : -1;
}

}  // namespace sandogh
