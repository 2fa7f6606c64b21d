#pragma once

#include <QString>
#include <QStringList>

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

    // Gives the server database the settings name another name (PostgreSQL), ending the
    // connections still open to it; SQLite renames the file with its journal files.
    static bool rename(const ConnectionSettings& settings, const QString& newName, QString* error);

    // The databases beside the one the settings name: the SQLite files of its folder (by
    // name, without ".sqlite"), or the server's databases other than templates and its
    // maintenance database.
    static QStringList list(const ConnectionSettings& settings, QString* error);

    // A database name quoted exactly as written (servers keep database names as given).
    static QString quoteDatabaseName(Backend backend, const QString& name);
};

}  // namespace sandogh
