#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace sandogh {

class Session;

// Reads back what a database holds: its tables and their columns, as the server
// reports them. Names are given in lower case, since PostgreSQL keeps them so, and
// columns in their order in the table.
class SchemaReader {
public:
    // Table name -> column names. database: empty for the shop database, or another
    // database (schema on PostgreSQL, attached file on SQLite). Empty on failure.
    static QMap<QString, QStringList> tables(Session& session, const QString& database = {});

    static bool tableExists(Session& session, const QString& table, const QString& database = {});
};

}  // namespace sandogh
