#pragma once

#include <QString>
#include <memory>

#include "data/ConnectionSettings.h"
#include "data/schema/Migrator.h"

namespace sandogh {

class Database;
class ErrorLog;
class MessageService;

// Makes the shop database of a program folder ready for use, as init-db does: the
// connection file is read (with the fiscal year of this machine), the database is created
// when it does not exist yet, and the migration steps bring it to the last version.
class ShopDatabaseSetup {
public:
    struct Result {
        bool ok = false;
        QString error;  // what failed, in English, for the person at the command line
        ConnectionSettings settings;
        bool created = false;  // the database did not exist before
        Migrator::Result migration;
        std::unique_ptr<Database> database;  // open on the ready database when ok
    };

    static Result run(const QString& programDir, const QString& fiscalYear,
                      MessageService& messages, ErrorLog& log);
};

}  // namespace sandogh
