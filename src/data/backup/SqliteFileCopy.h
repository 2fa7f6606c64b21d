#pragma once

#include <QString>

namespace sandogh {

// Whole-file operations on SQLite databases, each on a connection of its own: a consistent
// copy of a database that desks may be writing ("VACUUM INTO" reads one snapshot), the
// integrity check of a copy, and folding the write-ahead log into the file.
class SqliteFileCopy {
public:
    // Writes a compact copy of source to target (which must not exist).
    static bool snapshot(const QString& source, const QString& target, QString* error);
    // True when "PRAGMA integrity_check" finds the file whole.
    static bool isWhole(const QString& file, QString* error);
    // Moves what the write-ahead log holds into the file and empties the log.
    static bool checkpoint(const QString& file, QString* error);
};

}  // namespace sandogh
