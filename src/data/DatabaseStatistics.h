#pragma once

namespace sandogh {

class Database;
class Session;

// The planner's statistics of the shop database refreshed (ANALYZE; sp_updatestats on SQL
// Server), after the schema is made or upgraded, after the demo shop is filled and after
// large imports: plans are then chosen for the tables as they are, not as they were when
// empty. Runs outside any transaction; false when it failed (reported).
class DatabaseStatistics {
public:
    static bool refresh(Database& database);
    static bool refresh(Session& session);
};

}  // namespace sandogh
