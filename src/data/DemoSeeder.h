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
// reading the keys already there and inserting a row of bound values. Table and column
// names are fixed by the program; every value is bound. The first failure
// is kept and every later call does nothing, so a seeding step can run to its end and the
// caller checks ok() once.
class DemoSeeder {
public:
    // Column names (fixed by the program) and their values (always bound).
    using Row = QList<QPair<QString, QVariant>>;

    DemoSeeder(Session& session, QMap<QString, int>& added) : m_session(session), m_added(added) {}

    bool ok() const { return m_error.isEmpty(); }
    const QString& error() const { return m_error; }

    // A condition on one column: equal to the one value, or among the values; no condition
    // without a column. Values are always bound.
    struct Where {
        QString column;
        QVariantList values;
    };

    // The column of every row of the table, trimmed and in lower case.
    QSet<QString> keys(const QString& table, const QString& column, const Where& where = {});
    // numberColumn of every row of the table by keyColumn trimmed and in lower case.
    QHash<QString, qint64> numbersByKey(const QString& table, const QString& keyColumn,
                                        const QString& numberColumn, const Where& where = {});
    // Rows of a table.
    qint64 count(const QString& table);
    // The largest value of the column (0 for none): a "Max + 1" starts from it.
    qint64 largest(const QString& table, const QString& column, const Where& where = {});

    // INSERT INTO table (columns) VALUES (bound values); counted under the table's name.
    bool insert(const QString& table, const Row& row);

private:
    QHash<QString, qint64> read(const QString& sql, const Where& where, bool withNumber);
    qint64 number(const QString& sql, const Where& where);
    bool fail(const QString& what, const QString& why);

    Session& m_session;
    QMap<QString, int>& m_added;
    QString m_error;
};

}  // namespace sandogh
