#pragma once

#include <QString>

#include "data/ConnectionSettings.h"

namespace sandogh {

// Makes and removes whole databases, for set-up (sandogh-admin init-db) and tests:
// the SQLite file and its folder, or a database on the server through its maintenance
// database ("postgres" on PostgreSQL, "master" on SQL Server).
class DatabaseProvisioner {
public:
    enum class Outcome { Existed, Created, Failed };

    // Creates the database the settings name when it does not exist yet.
    static Outcome ensureExists(const ConnectionSettings& settings, QString* error);
    static bool exists(const ConnectionSettings& settings, bool& exists, QString* error);
    // Removes it with everything in it; connections still open to it are ended.
    static bool drop(const ConnectionSettings& settings, QString* error);

    // A database name quoted exactly as written (servers keep database names as given).
    static QString quoteDatabaseName(Backend backend, const QString& name);
};

}  // namespace sandogh
