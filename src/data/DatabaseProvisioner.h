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

    // The fiscal years of one shop on a server (PostgreSQL): the shop's first database is
    // the family; each later year carries the comment yearMarker(family), which the new-year
    // routine and a restore write. SQLite years are the files of the shop's own folder.
    static QString yearMarker(const QString& family);
    // The family of the database the settings name: the one its comment names, else itself.
    static QString yearFamily(const ConnectionSettings& settings, QString* error);
    // Writes the marker of family on the database the settings name (nothing on SQLite).
    static bool markYear(const ConnectionSettings& settings, const QString& family, QString* error);
    // The databases of the family on the server of the settings, by name: the family's
    // own database and every database marked with it.
    static QStringList years(const ConnectionSettings& settings, const QString& family,
                             QString* error);

    // A database name quoted exactly as written (servers keep database names as given).
    static QString quoteDatabaseName(Backend backend, const QString& name);
};

}  // namespace sandogh
