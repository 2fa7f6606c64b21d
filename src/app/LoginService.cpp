#include "app/LoginService.h"

#include <QtDebug>

#include "app/PasswordHasher.h"
#include "data/Database.h"
#include "data/Transaction.h"
#include "data/repositories/UsersRepository.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmLogin");

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
    UsersRepository users(m_database);
    const qint64 admins = users.activeAdministrators(session);
    if (admins < 0) {
        tx.rollback();
        return check;
    }
    if (admins > 0) {
        check.ok = tx.commit();
        return check;
    }

    // The initial name, or the first of admin2, admin3, ... that no row holds.
    const QString base = QString::fromLatin1(kInitialAdministratorName);
    QString userName = base;
    for (int suffix = 2;; ++suffix) {
        const qint64 uses = users.loginNameUses(session, userName);
        if (uses < 0) {
            tx.rollback();
            return check;
        }
        if (uses == 0) {
            break;
        }
        userName = base + QString::number(suffix);
    }

    const QString password = QString::fromLatin1(kInitialAdministratorPassword);
    UserRow row;
    row.name = initialAdministratorDisplayName();
    row.userName = userName;
    row.password = PasswordHasher::hash(password);
    row.level = static_cast<int>(PermissionLevel::Administrator);
    if (row.password.isEmpty() || users.insert(session, row) == 0) {
        tx.rollback();
        return check;
    }
    if (!tx.commit()) {
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

LoginService::Result LoginService::login(const QString& userName, const QString& password,
                                         int stationId) {
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
    UsersRepository users(m_database);
    const std::optional<QList<UserRow>> found = users.withLoginName(session, wanted);
    if (!found) {
        return result;
    }
    const QList<UserRow>& rows = *found;
    if (rows.isEmpty()) {
        result.outcome = Outcome::UnknownUser;
        return result;
    }

    result.outcome = Outcome::WrongPassword;
    for (const UserRow& row : rows) {
        const bool hashed = PasswordHasher::isHash(row.password);
        const bool matches =
            hashed ? PasswordHasher::verify(row.password, password) : row.password == password;
        if (!matches) {
            continue;
        }
        if (!row.active) {
            result.outcome = Outcome::Inactive;
            continue;
        }
        if (stationId > 0) {
            const QList<int> stations = users.stationsOf(session, row.id);
            if (!stations.isEmpty() && !stations.contains(stationId)) {
                result.outcome = Outcome::OtherStation;
                continue;
            }
        }
        result.outcome = Outcome::Accepted;
        result.user.id = row.id;
        result.user.userName = row.userName;
        result.user.name = row.name;
        result.user.level = permissionLevelFromColumn(row.level);
        result.user.active = true;
        result.user.rolePermissions = users.permissions(static_cast<int>(result.user.level), 0);
        result.user.userPermissions = users.permissions(0, row.id);
        if (!hashed || PasswordHasher::needsRehash(row.password)) {
            const QString hash = PasswordHasher::hash(password);
            // A password that cannot be re-kept now is still the right one: the login
            // goes on and the next one tries again.
            result.passwordRehashed = !hash.isEmpty() && users.setPassword(session, row.id, hash);
        }
        return result;
    }
    return result;
}

}  // namespace sandogh
