#include "app/UsersService.h"

#include "app/PasswordHasher.h"
#include "app/Permissions.h"
#include "data/repositories/UsersRepository.h"

namespace sandogh {

namespace {

QHash<QString, bool> entriesOf(const QHash<Permission, bool>& list) {
    QHash<QString, bool> entries;
    for (auto it = list.cbegin(); it != list.cend(); ++it) {
        entries.insert(permissionName(it.key()), it.value());
    }
    return entries;
}

}  // namespace

const QString& UsersService::nameRequiredMessage() {
    static const QString text = QStringLiteral("نام کاربر را وارد کنید.");
    return text;
}

const QString& UsersService::loginNameRequiredMessage() {
    static const QString text = QStringLiteral("نام ورود کاربر را وارد کنید.");
    return text;
}

const QString& UsersService::loginNameTakenMessage() {
    static const QString text = QStringLiteral("این نام ورود را کاربر دیگری دارد.");
    return text;
}

const QString& UsersService::passwordRequiredMessage() {
    static const QString text = QStringLiteral("برای کاربر تازه رمز بگذارید.");
    return text;
}

const QString& UsersService::lastAdministratorMessage() {
    static const QString text =
        QStringLiteral("این تنها مدیر فعال سیستم است؛ ") +
        QStringLiteral(
            "نمی‌توان آن را غیرفعال کرد یا از مدیری برداشت.");
    return text;
}

const QString& UsersService::saveFailedMessage() {
    static const QString text = QStringLiteral("ذخیره کاربر انجام نشد.");
    return text;
}

QList<UserRow> UsersService::users() {
    return UsersRepository(m_database).list();
}

QList<NamedCode> UsersService::stations() {
    return UsersRepository(m_database).stations();
}

QList<NamedCode> UsersService::warehouses() {
    return UsersRepository(m_database).warehouses();
}

QString UsersService::save(UserRow& user, const QString& password) {
    user.name = user.name.trimmed();
    user.userName = user.userName.trimmed();
    if (user.name.isEmpty()) {
        return nameRequiredMessage();
    }
    if (user.userName.isEmpty()) {
        return loginNameRequiredMessage();
    }
    if (user.id == 0 && password.isEmpty()) {
        return passwordRequiredMessage();
    }
    // Only the two roles the program knows are written.
    user.level = static_cast<int>(permissionLevelFromColumn(user.level));
    const bool isNew = user.id == 0;
    if (isNew) {
        user.password = PasswordHasher::hash(password);
        if (user.password.isEmpty()) {
            return saveFailedMessage();
        }
    }
    UsersRepository repository(m_database);
    switch (repository.save(user)) {
        case UsersRepository::SaveOutcome::Saved:
            break;
        case UsersRepository::SaveOutcome::NameTaken:
            return loginNameTakenMessage();
        case UsersRepository::SaveOutcome::NoAdministrator:
            return lastAdministratorMessage();
        case UsersRepository::SaveOutcome::Failed:
            return saveFailedMessage();
    }
    // A new user's password went in with the row; another's is changed on its own.
    if (!isNew && !password.isEmpty()) {
        return setPassword(user.id, password);
    }
    return {};
}

QString UsersService::setPassword(int userId, const QString& password) {
    if (password.isEmpty()) {
        return passwordRequiredMessage();
    }
    const QString hash = PasswordHasher::hash(password);
    if (hash.isEmpty() || !UsersRepository(m_database).setPassword(userId, hash)) {
        return saveFailedMessage();
    }
    return {};
}

QHash<Permission, bool> UsersService::permissionList(PermissionLevel level, int userId) {
    UsersRepository repository(m_database);
    const Permissions permissions(
        level, repository.permissions(static_cast<int>(level), 0),
        userId > 0 ? repository.permissions(0, userId) : QHash<QString, bool>{});
    QHash<Permission, bool> list;
    for (Permission permission : allPermissions()) {
        list.insert(permission, permissions.allows(permission));
    }
    return list;
}

bool UsersService::setPermissionList(PermissionLevel level, int userId,
                                     const QHash<Permission, bool>& list) {
    UsersRepository repository(m_database);
    if (userId == 0) {
        // A role's entries are what differs from the program's default for it.
        QHash<Permission, bool> changed;
        for (auto it = list.cbegin(); it != list.cend(); ++it) {
            if (it.value() != Permissions::roleDefault(level, it.key())) {
                changed.insert(it.key(), it.value());
            }
        }
        return repository.setPermissions(static_cast<int>(level), 0, entriesOf(changed));
    }
    const QHash<Permission, bool> role = permissionList(level);
    QHash<Permission, bool> own;
    for (auto it = list.cbegin(); it != list.cend(); ++it) {
        if (it.value() != role.value(it.key())) {
            own.insert(it.key(), it.value());
        }
    }
    return repository.setPermissions(0, userId, entriesOf(own));
}

}  // namespace sandogh
