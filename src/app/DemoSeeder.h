#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>
#include <QVariant>

#include "data/Session.h"

namespace sandogh {

// The few statements the demo seeding is made of, on one session inside its transaction:
// reading the keys already there and inserting a row of bound values. The first failure
// is kept and every later call does nothing, so a seeding step can run to its end and the
// caller checks ok() once.
class DemoSeeder {
public:
    // Column names (fixed by the program) and their values (always bound).
    using Row = QList<QPair<QString, QVariant>>;

    DemoSeeder(Session& session, QMap<QString, int>& added) : m_session(session), m_added(added) {}

    bool ok() const { return m_error.isEmpty(); }
    const QString& error() const { return m_error; }

    // Field 0 of every row of sql, trimmed and in lower case.
    QSet<QString> keys(const QString& sql, const SqlBinds& binds = {});
    // Field 1 of every row of sql as a number (0 when there is no field 1), by field 0
    // trimmed and in lower case.
    QHash<QString, qint64> numbersByKey(const QString& sql, const SqlBinds& binds = {});
    // Rows of a table.
    qint64 count(const QString& table);
    // Field 0 of the first row of sql as a number (a "Max + 1" query); 0 on failure.
    qint64 number(const QString& sql, const SqlBinds& binds = {});

    // INSERT INTO table (columns) VALUES (bound values); counted under the table's name.
    bool insert(const QString& table, const Row& row);

private:
    bool fail(const QString& what, const QString& why);

    Session& m_session;
    QMap<QString, int>& m_added;
    QString m_error;
};

}  // namespace sandogh
