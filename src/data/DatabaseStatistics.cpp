#include "data/DatabaseStatistics.h"

#include "data/Database.h"
#include "data/Session.h"

namespace sandogh {

bool DatabaseStatistics::refresh(Database& database) {
    Session session =
        database.session(QStringLiteral("DatabaseStatistics"), QStringLiteral("refresh"));
    return refresh(session);
}

bool DatabaseStatistics::refresh(Session& session) {
    if (!session) {
        return false;
    }
    return session.exec(session.backend() == Backend::SqlServer
                            ? QStringLiteral("EXEC sp_updatestats")
                            : QStringLiteral("ANALYZE"));
}

}  // namespace sandogh
