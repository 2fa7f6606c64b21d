#include "app/LoginService.h"

#include <QList>
#include <QtDebug>

#include "app/PasswordHasher.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmLogin");

// Login names are compared as the screens always have: trimmed, without regard to case.
const QString kSameUserName = QStringLiteral("LOWER(LTRIM(RTRIM(UserName))) = :userName");

struct StoredUser {
    UserAccount account;
    QString password;
};

// Fixed-width text columns on some servers come back padded with blanks.
QString withoutTrailingBlanks(QString text) {
    while (text.endsWith(QLatin1Char(' '))) {
        text.chop(1);
    }
    return text;
}

}  // namespace

const QString& LoginService::initialAdministratorDisplayName() {
    static const QString name = QStringLiteral("مدیر سیستم");
    return name;
}

QString LoginService::administratorCreatedMessage(const AdministratorCheck& check) {
    return QStringLiteral(
               "کاربر مدیر سیستم با نام «%1» و رمز «%2» ساخته شد.\n"
               "پس از نخستین ورود، رمز را عوض کنید.")
        .arg(check.userName, check.password);
}

LoginService::AdministratorCheck LoginService::ensureAdministrator() {
    AdministratorCheck check;
    Session session = m_database.session(kModule, QStringLiteral("CheckAdminUser"));
    if (!session) {
        return check;
    }
    Transaction tx(session);
    if (!tx.isActive()) {
        return check;
    }
    SqlQuery admins(session, QStringLiteral("SELECT COUNT(*) FROM Users "
                                            "WHERE PermissionLevel = :level AND Active = 1"));
    admins.bind(QStringLiteral(":level"), static_cast<int>(PermissionLevel::Administrator));
    if (!admins.exec() || !admins.next()) {
        return check;
    }
    if (admins.int64(0) > 0) {
        check.ok = tx.commit();
        return check;
    }

    // The initial name, or the first of admin2, admin3, ... that no row holds.
    const QString base = QString::fromLatin1(kInitialAdministratorName);
    QString userName = base;
    for (int suffix = 2;; ++suffix) {
        SqlQuery taken(session,
                       QStringLiteral("SELECT COUNT(*) FROM Users WHERE ") + kSameUserName);
        taken.bind(QStringLiteral(":userName"), userName.toLower());
        if (!taken.exec() || !taken.next()) {
            return check;
        }
        if (taken.int64(0) == 0) {
            break;
        }
        userName = base + QString::number(suffix);
    }

    const QString password = QString::fromLatin1(kInitialAdministratorPassword);
    const QString hash = PasswordHasher::hash(password);
    if (hash.isEmpty()) {
        return check;
    }
    SqlQuery insert(
        session, QStringLiteral("INSERT INTO Users (Name, UserName, Password, PermissionLevel, "
                                "Location, Active, UserGroupId) "
                                "VALUES (:name, :userName, :password, :level, :location, 1, 0)"));
    insert.bind(QStringLiteral(":name"), initialAdministratorDisplayName())
        .bind(QStringLiteral(":userName"), userName)
        .bind(QStringLiteral(":password"), hash)
        .bind(QStringLiteral(":level"), static_cast<int>(PermissionLevel::Administrator))
        .bind(QStringLiteral(":location"), QString());
    if (!insert.exec() || !tx.commit()) {
        return check;
    }
    check.ok = true;
    check.created = true;
    check.userName = userName;
    check.password = password;
    qInfo().noquote() << "No active administrator was found; created user" << userName
                      << "with the initial password.";
    return check;
}

LoginService::Result LoginService::login(const QString& userName, const QString& password) {
    Result result;
    const QString wanted = userName.trimmed().toLower();
    if (wanted.isEmpty()) {
        result.outcome = Outcome::UnknownUser;
        return result;
    }
    Session session = m_database.session(kModule, QStringLiteral("cmdOK_Click"));
    if (!session) {
        return result;
    }

    QList<StoredUser> rows;
    {
        SqlQuery q(session, QStringLiteral("SELECT ID, UserName, Name, Password, PermissionLevel, "
                                           "Active FROM Users WHERE ") +
                                kSameUserName + QStringLiteral(" ORDER BY ID"));
        q.bind(QStringLiteral(":userName"), wanted);
        if (!q.exec()) {
            return result;
        }
        while (q.next()) {
            StoredUser row;
            row.account.id = q.integer(0);
            row.account.userName = q.text(1).trimmed();
            row.account.name = q.text(2).trimmed();
            row.password = q.text(3);
            row.account.level = permissionLevelFromColumn(q.integer(4));
            row.account.active = q.integer(5) == 1;
            rows << row;
        }
    }
    if (rows.isEmpty()) {
        result.outcome = Outcome::UnknownUser;
        return result;
    }

    result.outcome = Outcome::WrongPassword;
    for (const StoredUser& row : rows) {
        const bool hashed = PasswordHasher::isHash(row.password);
        const bool matches = hashed ? PasswordHasher::verify(row.password, password)
                                    : withoutTrailingBlanks(row.password) == password;
        if (!matches) {
            continue;
        }
        if (!row.account.active) {
            result.outcome = Outcome::Inactive;
            continue;
        }
        result.outcome = Outcome::Accepted;
        result.user = row.account;
        if (!hashed || PasswordHasher::needsRehash(row.password)) {
            const QString hash = PasswordHasher::hash(password);
            // A password that cannot be re-kept now is still the right one: the login
            // goes on and the next one tries again.
            result.passwordRehashed =
                !hash.isEmpty() &&
                session.exec(
                    QStringLiteral("UPDATE Users SET Password = :password WHERE ID = :id"),
                    {{QStringLiteral(":password"), hash}, {QStringLiteral(":id"), row.account.id}});
        }
        return result;
    }
    return result;
}

}  // namespace sandogh
