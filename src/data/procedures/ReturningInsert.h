#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "data/Backend.h"
#include "data/DbError.h"
#include "data/Session.h"

namespace sandogh::procedures {

// Values of a row to insert, in column order: {{"DocNo", docNo}, {"TransType", 2}}.
// Each column is bound to the placeholder ":" + its name.
using ColumnValues = QList<QPair<QString, QVariant>>;

// An INSERT that hands back a key of the row it wrote: RETURNING on PostgreSQL and
// SQLite (3.35 and later), OUTPUT INSERTED on SQL Server. Either the key is a row number
// of the database, or the program allocates it inside the insert itself as the column's
// largest value plus one, so that two seats racing for it collide on the key instead of
// both succeeding:
//
//   INSERT INTO Whs_QTYDocH (Code, DocNo, ...)
//   SELECT COALESCE(MAX(Code), 0) + 1, :DocNo, ... FROM Whs_QTYDocH RETURNING Code
class ReturningInsert {
public:
    // head ("INSERT INTO table (columns)") and source ("VALUES (...)" or "SELECT ...")
    // with the clause that returns the column `returned` where the backend wants it.
    static QString statement(Backend backend, const QString& head, const QString& source,
                             const QString& returned);
    // INSERT INTO table (columns) VALUES (:columns) returning `returned`.
    static QString values(Backend backend, const QString& table, const QStringList& columns,
                          const QString& returned);
    // INSERT INTO table (key, columns) SELECT COALESCE(MAX(key), 0) + 1, :columns FROM
    // table, returning the key (or the column `returned`, such as a row number).
    static QString maxPlusOne(Backend backend, const QString& table, const QString& key,
                              const QStringList& columns, const QString& returned = {});

    // Runs an insert built above with the values bound; the returned key, or 0 with the
    // failure in error. Key conflicts are reported quietly (the caller retries them).
    static qint64 run(Session& session, const QString& sql, const ColumnValues& values,
                      DbError& error);

    // maxPlusOne() retried on key conflicts (KeyConflictRetry): the allocated key, or 0.
    static qint64 allocate(Session& session, const QString& table, const QString& key,
                           const ColumnValues& values);
    // values() run once: the row number the database gave the row, or 0.
    static qint64 insert(Session& session, const QString& table, const ColumnValues& values,
                         const QString& returned);

    static QStringList columnsOf(const ColumnValues& values);
};

}  // namespace sandogh::procedures
