#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "data/DbError.h"
#include "data/schema/SchemaModel.h"

namespace sandogh {

class Database;
class Session;

// Brings a database up to the last of a list of migration steps. Steps already
// recorded in SchemaVersion are skipped, so applying the same list twice changes
// nothing; each new step runs in its own transaction and records its version in it.
// Other databases named by the steps are made first, outside the transactions:
// schemas on PostgreSQL, attached files on SQLite, databases on SQL Server. Tables and
// columns they already hold are left as they are. A step that fails leaves the database
// at the version before it (on SQLite the attached files roll back with the shop file).
class Migrator {
public:
    struct Result {
        bool ok = false;
        int versionBefore = 0;
        int versionAfter = 0;
        QList<int> applied;
        QString message;           // what failed, for the person running it
        bool newerSchema = false;  // refused: a later program's steps are recorded
        DbError error;
    };

    explicit Migrator(Database& database);

    // The refusal of a database whose SchemaVersion is beyond the last step known here.
    static QString newerSchemaMessage();

    Result apply(const QList<MigrationStep>& steps);

    // The last applied step: 0 for a database without SchemaVersion, -1 when the
    // database cannot be read.
    int currentVersion();

    // Every other database the steps name, in order of first mention.
    static QStringList otherDatabasesOf(const QList<MigrationStep>& steps);

private:
    bool ensureVersionTable(Session& session, Result& result);
    bool ensureOtherDatabase(Session& session, const QString& name, Result& result);
    bool applyStep(Session& session, const MigrationStep& step, const QStringList& statements,
                   bool rebuildsTables, Result& result);
    bool fail(Result& result, const QString& message, const DbError& error = {});
    // The step without the tables (and their indexes) and columns that other databases
    // hold already.
    static MigrationStep withoutExistingOtherObjects(Session& session, const MigrationStep& step);

    Database& m_database;
};

}  // namespace sandogh
