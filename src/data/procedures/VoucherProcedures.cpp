#include "data/procedures/VoucherProcedures.h"

#include "data/SqlQuery.h"
#include "data/procedures/KeyConflictRetry.h"
#include "data/procedures/ReturningInsert.h"

namespace sandogh::procedures {

namespace {

ColumnValues headerValues(const VoucherHeader& header) {
    return {
        {QStringLiteral("Date"), header.date},
        {QStringLiteral("Time"), header.time},
        {QStringLiteral("UserID"), header.userId},
        {QStringLiteral("Transfer"), header.transfer ? 1 : 0},
        {QStringLiteral("Permanent"), header.permanent ? 1 : 0},
        {QStringLiteral("Serial"), header.serial},
        {QStringLiteral("Note"), header.note},
    };
}

}  // namespace

qint64 sp_tblDocumentH_GetNewCode(Session& session) {
    const QVariant next =
        session.scalar(QStringLiteral("SELECT COALESCE(MAX(Code), 0) + 1 FROM tblDocumentH"));
    return next.isValid() ? next.toLongLong() : 0;
}

qint64 sp_tblDocumentH_Insert(Session& session, VoucherHeader& header) {
    const ColumnValues values = headerValues(header);
    if (header.code > 0) {
        ColumnValues withCode{{QStringLiteral("Code"), header.code}};
        withCode << values;
        header.id = ReturningInsert::insert(session, QStringLiteral("tblDocumentH"), withCode,
                                            QStringLiteral("ID"));
        return header.id;
    }
    // The number is allocated in the insert; the row is then found by its ID to learn it.
    const QString sql = ReturningInsert::maxPlusOne(
        session.backend(), QStringLiteral("tblDocumentH"), QStringLiteral("Code"),
        ReturningInsert::columnsOf(values), QStringLiteral("ID"));
    const qint64 id = KeyConflictRetry::run(
        session, [&](DbError& error) { return ReturningInsert::run(session, sql, values, error); });
    if (id <= 0) {
        return 0;
    }
    header.id = id;
    header.code =
        session.scalarInt64(QStringLiteral("SELECT Code FROM tblDocumentH WHERE ID = :id"),
                            {{QStringLiteral(":id"), id}});
    return id;
}

qint64 sp_tblDocumentD_Insert(Session& session, const VoucherLine& line) {
    return ReturningInsert::insert(
        session, QStringLiteral("tblDocumentD"),
        {
            {QStringLiteral("DocumentHID"), line.documentHId},
            {QStringLiteral("AccountingGroupID"), line.accountingGroupId},
            {QStringLiteral("Debt"), line.debt},
            {QStringLiteral("Credit"), line.credit},
            {QStringLiteral("Comment"), line.comment},
        },
        QStringLiteral("ID"));
}

bool sp_tblDocumentD_InsertRows(Session& session, qint64 documentHId,
                                const QList<VoucherLine>& lines) {
    if (lines.isEmpty()) {
        return true;
    }
    QStringList tuples;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        tuples << QStringLiteral("(:hid, :a%1, :d%1, :c%1, :t%1)").arg(i);
    }
    SqlQuery q(session, QStringLiteral("INSERT INTO tblDocumentD (DocumentHID, AccountingGroupID, "
                                       "Debt, Credit, Comment) VALUES ") +
                            tuples.join(QStringLiteral(", ")));
    q.bind(QStringLiteral(":hid"), documentHId);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString n = QString::number(i);
        q.bind(QStringLiteral(":a") + n, lines.at(i).accountingGroupId);
        q.bind(QStringLiteral(":d") + n, lines.at(i).debt);
        q.bind(QStringLiteral(":c") + n, lines.at(i).credit);
        q.bind(QStringLiteral(":t") + n, lines.at(i).comment);
    }
    return q.exec();
}

std::optional<VoucherHeader> sp_tblDocumentH_SelectRow(Session& session, qint64 id) {
    SqlQuery q(session, QStringLiteral("SELECT ID, Code, Date, Time, UserID, Transfer, Permanent, "
                                       "Serial, Note FROM tblDocumentH WHERE ID = :id"));
    q.bind(QStringLiteral(":id"), id);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    VoucherHeader header;
    header.id = q.int64(0);
    header.code = q.int64(1);
    header.date = q.date(2);
    header.time = q.text(3);
    header.userId = q.integer(4);
    header.transfer = q.integer(5) != 0;
    header.permanent = q.integer(6) != 0;
    header.serial = q.text(7);
    header.note = q.text(8);
    return header;
}

bool sp_tblDocumentH_Update(Session& session, const VoucherHeader& header) {
    SqlBinds binds{{QStringLiteral(":ID"), header.id}, {QStringLiteral(":Code"), header.code}};
    QStringList sets{QStringLiteral("Code = :Code")};
    for (const auto& [column, value] : headerValues(header)) {
        sets << column + QStringLiteral(" = :") + column;
        binds.append({QLatin1Char(':') + column, value});
    }
    return session.exec(QStringLiteral("UPDATE tblDocumentH SET ") +
                            sets.join(QStringLiteral(", ")) + QStringLiteral(" WHERE ID = :ID"),
                        binds);
}

bool sp_tblDocumentH_DeleteRow(Session& session, qint64 id) {
    return session.exec(QStringLiteral("DELETE FROM tblDocumentH WHERE ID = :id"),
                        {{QStringLiteral(":id"), id}});
}

bool sp_tblDocumentD_DeleteRow(Session& session, qint64 documentHId) {
    return session.exec(QStringLiteral("DELETE FROM tblDocumentD WHERE DocumentHID = :hid"),
                        {{QStringLiteral(":hid"), documentHId}});
}

}  // namespace sandogh::procedures
