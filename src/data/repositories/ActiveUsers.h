#pragma once

#include <QString>
#include <optional>

namespace sandogh {

class Database;

// Users by their login name, for the command line that acts as one of them.
class ActiveUsers {
public:
    // The ID of the active user of this login name; nothing when there is none or the
    // look-up failed.
    static std::optional<int> idOf(Database& database, const QString& userName);
};

}  // namespace sandogh
