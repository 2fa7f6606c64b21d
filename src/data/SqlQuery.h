#pragma once

#include <QByteArray>
#include <QSqlRecord>
#include <QString>
#include <QVariant>
#include <memory>

#include "data/Session.h"
#include "data/schema/SchemaModel.h"

namespace sandogh {

// One statement on a session: ":name" placeholders bound with typed values, run,
// and its rows read forward by position (field 0 first) or by column name (without
// regard to case). The readers follow the Isnull conventions: a NULL (or a missing
// row or column) reads as the fallback, empty text, 0 or the empty date mask.
//
//   SqlQuery q(session, "SELECT Name, Cost FROM Goods WHERE EAN_Code = :barcode");
//   q.bind(":barcode", barcode);
//   if (q.exec() && q.next()) { name = q.text(0); cost = q.number("Cost"); }
//
// A query must end before its session.
class SqlQuery {
public:
    // An empty date column reads as this mask text.
    static constexpr const char* kEmptyDate = "____/__/__";

    SqlQuery(Session& session, QString sql);
    ~SqlQuery();
    SqlQuery(const SqlQuery&) = delete;
    SqlQuery& operator=(const SqlQuery&) = delete;

    // Values; the name may be given with or without its colon.
    SqlQuery& bind(const QString& name, const QString& value);
    SqlQuery& bind(const QString& name, const char* value);
    SqlQuery& bind(const QString& name, int value);
    SqlQuery& bind(const QString& name, qint64 value);
    SqlQuery& bind(const QString& name, double value);
    SqlQuery& bind(const QString& name, bool value);  // bound as 0/1
    SqlQuery& bind(const QString& name, const QByteArray& value);
    // A NULL of the column's type.
    SqlQuery& bindNull(const QString& name, ColumnType type);
    SqlQuery& bindValue(const QString& name, const QVariant& value);

    SqlQuery& setLogging(FailureLogging logging);

    // Runs the statement (again, with the values now bound). False on failure, which
    // is reported as setLogging() asks and kept in error().
    bool exec();
    // Moves to the next row; false after the last one.
    bool next();

    int columnCount() const;
    // The position of a column, without regard to case; -1 when there is none.
    int columnIndex(const QString& name) const;

    QVariant value(int column) const;
    QVariant value(const QString& column) const;
    bool isNull(int column) const;
    bool isNull(const QString& column) const;

    QString text(int column, const QString& fallback = {}) const;
    QString text(const QString& column, const QString& fallback = {}) const;
    qint64 int64(int column, qint64 fallback = 0) const;
    qint64 int64(const QString& column, qint64 fallback = 0) const;
    int integer(int column, int fallback = 0) const;
    int integer(const QString& column, int fallback = 0) const;
    double number(int column, double fallback = 0.0) const;
    double number(const QString& column, double fallback = 0.0) const;
    // A Jalali date column: the mask "____/__/__" for NULL or empty text.
    QString date(int column) const;
    QString date(const QString& column) const;

    // Rows changed by the last exec(); -1 when unknown.
    int rowsAffected() const;
    const DbError& error() const { return m_error; }
    const QString& sql() const { return m_sql; }

private:
    bool fail(DbError error);

    Session::State* m_session;
    QString m_sql;
    SqlBinds m_binds;
    FailureLogging m_logging = FailureLogging::Log;
    std::shared_ptr<QSqlQuery> m_query;
    bool m_prepared = false;
    mutable QSqlRecord m_record;
    mutable bool m_recordRead = false;
    DbError m_error;
};

}  // namespace sandogh
