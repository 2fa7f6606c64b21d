#pragma once

#include <QList>
#include <QString>

#include "data/ConnectionSettings.h"

namespace sandogh {

class Database;

// Backup and restore of a shop. The archive (TarArchive) holds "manifest.json" (format,
// backend, schema version, date, shop name, and the SHA-256 of every other member) and:
//   SQLite      one consistent copy per database file ("VACUUM INTO"): the shop's as
//               "shop.sqlite", each scale vendor's as "<name>.sqlite"
//   PostgreSQL  "shop.dump", pg_dump's custom format of the shop database (the vendors'
//               databases are schemas in it)
// A restore refuses an archive whose members fail their checksum, of another backend, or
// whose schema is newer than this program; it puts the copy beside the live shop, checks it
// (SQLite: the integrity check; PostgreSQL: pg_restore into a new database, then the schema
// version), and only then puts the live database aside (renamed "<name>_before_<stamp>")
// and the copy in its place. Nothing may be connected to the shop during a restore.
class ShopBackup {
public:
    struct Result {
        bool ok = false;
        QString error;     // in English, for the person at the command line
        QString archive;   // the archive written (backup)
        QString previous;  // where the live database was put aside (restore)
        int schemaVersion = 0;
    };

    static constexpr const char* kManifestName = "manifest.json";
    static constexpr const char* kFormat = "sandogh-backup 1";

    // The archive name used when none is given: <folder>/<catalog>-<yyyyMMdd-HHmmss>.tar.
    static QString defaultArchive(const ConnectionSettings& settings, const QString& folder);

    // Takes a backup of the open shop into archive.
    static Result backup(Database& database, const QString& archive);
    // Restores archive over the shop the settings name.
    static Result restore(const ConnectionSettings& settings, const QString& archive);

    // The PostgreSQL client program name ("pg_dump"), or empty when it is not on this machine.
    static QString findClientProgram(const QString& name);
};

}  // namespace sandogh
