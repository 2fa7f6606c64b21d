#include "data/repositories/ActiveUsers.h"

#include "data/Database.h"
#include "data/SqlQuery.h"

namespace sandogh {

std::optional<int> ActiveUsers::idOf(Database& database, const QString& userName) {
    Session s = database.session(QStringLiteral("ActiveUsers"), QStringLiteral("idOf"));
    SqlQuery q(s, QStringLiteral("SELECT ID FROM Users WHERE UserName = :name AND Active = 1"));
    q.bind(QStringLiteral(":name"), userName.trimmed());
    if (q.exec() && q.next()) {
        return q.integer(0);
    }
    return std::nullopt;
}

}  // namespace sandogh
