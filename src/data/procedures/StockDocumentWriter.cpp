#include "data/procedures/StockDocumentWriter.h"

#include <algorithm>
#include <functional>

#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/procedures/KeyConflictRetry.h"
#include "data/procedures/ReturningInsert.h"
#include "data/procedures/StockProcedures.h"
#include "data/repositories/SearchKeys.h"

namespace sandogh::procedures {

namespace {

const QString kHeaders = QStringLiteral("Whs_QTYDocH");
const QString kLines = QStringLiteral("Whs_QTYDocD");
const QString kInternalHeaders = QStringLiteral("Whs_QTYDocHInternal");
const QString kInternalLines = QStringLiteral("Whs_QTYDocDInternal");

template <typename T>
QVariant orNull(const std::optional<T>& value) {
    return value ? QVariant::fromValue(*value) : QVariant(QMetaType::fromType<T>());
}

ColumnValues headerValues(const StockDocumentHeader& h) {
    return {
        {QStringLiteral("DocNo"), h.docNo},
        {QStringLiteral("TransType"), h.transType},
        {QStringLiteral("CompanyID"), orNull(h.companyId)},
        {QStringLiteral("DocDate"), h.docDate},
        {QStringLiteral("UserID"), h.userId},
        {QStringLiteral("DocSum"), h.docSum},
        {QStringLiteral("Discount"), h.discount},
        {QStringLiteral("DocTime"), h.docTime},
        {QStringLiteral("Sarbar"), h.sarbar},
        {QStringLiteral("ReceivedPrice"), h.receivedPrice},
        {QStringLiteral("StationID"), orNull(h.stationId)},
        {QStringLiteral("Note"), h.note},
        {QStringLiteral("SalesType"), orNull(h.salesType)},
        {QStringLiteral("ShiftCode"), orNull(h.shiftCode)},
        {QStringLiteral("PayType"), orNull(h.payType)},
        {QStringLiteral("DocumentHID"), orNull(h.documentHId)},
        {QStringLiteral("WarehouseCode"), orNull(h.warehouseCode)},
        {QStringLiteral("DiscountTypeId"), orNull(h.discountTypeId)},
        {QStringLiteral("CarId"), orNull(h.carId)},
        {QStringLiteral("Transporter"), h.transporter},
        {QStringLiteral("KilometerEntry"), orNull(h.kilometerEntry)},
        {QStringLiteral("Base"), h.base},
        {QStringLiteral("BaseKey"), SearchKeys::base(h.base)},
        {QStringLiteral("ReturnCauseId"), orNull(h.returnCauseId)},
        {QStringLiteral("OverheadID"), orNull(h.overheadId)},
        {QStringLiteral("IsUpdatable"), orNull(h.isUpdatable)},
        {QStringLiteral("DocType"), orNull(h.docType)},
    };
}

ColumnValues internalHeaderValues(const StockDocumentHeader& h) {
    return {
        {QStringLiteral("DocNo"), h.docNo},
        {QStringLiteral("TransType"), h.transType},
        {QStringLiteral("CompanyID"), orNull(h.companyId)},
        {QStringLiteral("DocDate"), h.docDate},
        {QStringLiteral("UserID"), h.userId},
        {QStringLiteral("Atf"), h.atf},
        {QStringLiteral("Note"), h.note},
        {QStringLiteral("DocSum"), h.docSum},
        {QStringLiteral("Discount"), h.discount},
        {QStringLiteral("DocTime"), h.docTime},
        {QStringLiteral("StationID"), orNull(h.stationId)},
        {QStringLiteral("SalesType"), orNull(h.salesType)},
        {QStringLiteral("Sarbar"), h.sarbar},
        {QStringLiteral("ReceivedPrice"), h.receivedPrice},
        {QStringLiteral("PayType"), orNull(h.payType)},
        {QStringLiteral("IsUpdatable"), orNull(h.isUpdatable)},
        {QStringLiteral("Base"), h.base},
    };
}

ColumnValues lineValues(qint64 code, const StockDocumentLine& line) {
    return {
        {QStringLiteral("Code"), code},
        {QStringLiteral("EAN_Code"), line.eanCode},
        {QStringLiteral("Qty"), line.qty},
        {QStringLiteral("MFee"), line.mFee},
        {QStringLiteral("Discount"), line.discount},
        {QStringLiteral("Fee"), line.fee},
        {QStringLiteral("Price"), line.price},
        {QStringLiteral("TaxValue"), line.taxValue},
    };
}

// Rows per multi-row insert: 9 values each stays far below every backend's limit of bound
// values (SQL Server's 2,100 is the lowest).
constexpr qsizetype kLinesPerStatement = 200;

const QString kLineColumns =
    QStringLiteral("Code, EAN_Code, Qty, MFee, Discount, Fee, Price, TaxValue, UserID");

QStringList barcodesOf(Session& session, const QString& lines, qint64 code) {
    QStringList barcodes;
    SqlQuery q(session,
               QStringLiteral("SELECT DISTINCT EAN_Code FROM %1 WHERE Code = :code").arg(lines));
    q.bind(QStringLiteral(":code"), code);
    if (q.exec()) {
        while (q.next()) {
            barcodes << q.text(0);
        }
    }
    return barcodes;
}

// Stock follows a change of document `code`'s lines: the old lines taken out before it
// (takeOut), the new ones added after (putIn); articles that had no Stock row are
// recomputed whole last.
bool changeWithStock(Session& session, const QString& lines, qint64 code, bool internal,
                     bool takeOut, const std::function<bool()>& change, bool putIn) {
    const auto apply = [&](int sign) {
        return internal ? stockApplyInternalDocument(session, code, sign)
                        : stockApplyDocument(session, code, sign);
    };
    QStringList missing;
    const auto collect = [&] {
        const std::optional<QStringList> found =
            stockRowsMissing(session, barcodesOf(session, lines, code));
        if (found) {
            missing << *found;
        }
        return found.has_value();
    };
    if (takeOut && !(collect() && apply(-1))) {
        return false;
    }
    if (!change() || (putIn && !(collect() && apply(+1)))) {
        return false;
    }
    return missing.isEmpty() || sp_StockRepair(session, missing);
}

// Keys above the largest committed one that a PostgreSQL header insert tries: more than
// the writers that can have a document open at once.
constexpr int kKeysTried = 64;
// The advisory lock space of the keys taken and not yet committed (two-key form, apart
// from the desks' lock, which uses the one-key form).
const QString kKeyLockSpace = QStringLiteral("Whs_QTYDocH.Code");

// PostgreSQL: the first key above the largest committed one whose advisory lock this
// transaction gets at once (held to its end; a key another transaction holds is passed
// over, never waited for). A key committed by another after this statement began is
// skipped by ON CONFLICT: the insert then writes nothing and the caller tries again with a
// fresh view. No ORDER BY: the series is tried in its own order and the LIMIT stops at the
// first key locked, so that no other key is locked in passing.
QString probedInsert(const QStringList& columns) {
    QStringList names;
    for (const QString& c : columns) {
        names << QLatin1Char(':') + c;
    }
    return QStringLiteral(
               "INSERT INTO %1 (Code, %2) SELECT K.Code, %3 FROM (SELECT M.Last + C.Step AS Code "
               "FROM (SELECT COALESCE(MAX(Code), 0) AS Last FROM %1) M "
               "CROSS JOIN generate_series(1, %4) AS C(Step) "
               "WHERE pg_try_advisory_xact_lock(hashtext(:keyLockSpace), "
               "CAST(MOD(M.Last + C.Step, 2147483647) AS INTEGER)) LIMIT 1) K "
               "ON CONFLICT (Code) DO NOTHING RETURNING Code")
        .arg(kHeaders, columns.join(QStringLiteral(", ")), names.join(QStringLiteral(", ")))
        .arg(kKeysTried);
}

qint64 insertProbed(Session& session, const ColumnValues& values) {
    const QString sql = probedInsert(ReturningInsert::columnsOf(values));
    for (int attempt = 0; attempt < KeyConflictRetry::kAttempts; ++attempt) {
        SqlQuery q(session, sql);
        q.bind(QStringLiteral(":keyLockSpace"), kKeyLockSpace);
        for (const auto& [column, value] : values) {
            q.bindValue(QLatin1Char(':') + column, value);
        }
        if (!q.exec()) {
            return 0;
        }
        if (q.next()) {
            return q.int64(0);
        }
    }
    DbError error;
    error.kind = DbErrorKind::KeyConflict;
    error.driverText =
        QStringLiteral("no free document key after %1 attempts").arg(KeyConflictRetry::kAttempts);
    error.sql = sql;
    if (session.state() != nullptr) {
        session.state()->fail(error, FailureLogging::Log);
    }
    return 0;
}

bool deleteByCode(Session& session, const QString& lines, const QString& headers, qint64 code,
                  bool internal) {
    const SqlBinds binds{{QStringLiteral(":code"), code}};
    const auto remove = [&] {
        return session.exec(QStringLiteral("DELETE FROM %1 WHERE Code = :code").arg(lines),
                            binds) &&
               session.exec(QStringLiteral("DELETE FROM %1 WHERE Code = :code").arg(headers),
                            binds);
    };
    return changeWithStock(session, lines, code, internal, true, remove, false);
}

}  // namespace

bool StockDocumentWriter::lockWriters(Session& session) {
    const QString lock = session.dialect().writersLockSql();
    return lock.isEmpty() || session.exec(lock, {{QStringLiteral(":name"), kHeaders}});
}

qint64 StockDocumentWriter::insertHeader(Session& session, const StockDocumentHeader& header) {
    if (session.backend() == Backend::PostgreSQL) {
        return insertProbed(session, headerValues(header));
    }
    return ReturningInsert::allocate(session, kHeaders, QStringLiteral("Code"),
                                     headerValues(header));
}

qint64 StockDocumentWriter::insertHeaderUnlocked(Session& session,
                                                 const StockDocumentHeader& header) {
    ColumnValues values = headerValues(header);
    if (header.docNo.isEmpty()) {
        values.first().second = QVariant(QMetaType::fromType<QString>());  // numbered later
    }
    if (session.backend() == Backend::PostgreSQL) {
        return insertProbed(session, values);
    }
    // SQL Server has no probe here: its keys are taken under the desks' lock (a no-op on
    // SQLite, where the transaction is the only writer).
    if (!lockWriters(session)) {
        return 0;
    }
    const QString sql = ReturningInsert::maxPlusOne(
        session.backend(), kHeaders, QStringLiteral("Code"), ReturningInsert::columnsOf(values));
    DbError error;
    const qint64 code = ReturningInsert::run(session, sql, values, error);
    if (error.isKeyConflict() && session.state() != nullptr) {
        session.state()->fail(error, FailureLogging::Log);
    }
    return code;
}

bool StockDocumentWriter::setNumber(Session& session, qint64 code, const QString& docNo,
                                    qint64 documentHId) {
    return session.exec(QStringLiteral("UPDATE Whs_QTYDocH SET DocNo = :docNo, DocumentHID = "
                                       ":documentHId WHERE Code = :code"),
                        {{QStringLiteral(":docNo"), docNo},
                         {QStringLiteral(":documentHId"), documentHId},
                         {QStringLiteral(":code"), code}});
}

qint64 StockDocumentWriter::insertLine(Session& session, qint64 code,
                                       const StockDocumentLine& line) {
    ColumnValues values = lineValues(code, line);
    values.append({QStringLiteral("UserID"), orNull(line.userId)});
    return ReturningInsert::insert(session, kLines, values, QStringLiteral("ID"));
}

qint64 StockDocumentWriter::insertInternalHeader(Session& session,
                                                 const StockDocumentHeader& header) {
    return ReturningInsert::allocate(session, kInternalHeaders, QStringLiteral("Code"),
                                     internalHeaderValues(header));
}

qint64 StockDocumentWriter::insertInternalLine(Session& session, qint64 code,
                                               const StockDocumentLine& line) {
    ColumnValues values = lineValues(code, line);
    values.append({QStringLiteral("QtyR"), line.qtyR});
    return ReturningInsert::insert(session, kInternalLines, values, QStringLiteral("ID"));
}

bool StockDocumentWriter::insertLines(Session& session, qint64 code,
                                      const QList<StockDocumentLine>& lines) {
    for (qsizetype from = 0; from < lines.size(); from += kLinesPerStatement) {
        const qsizetype rows = std::min(kLinesPerStatement, lines.size() - from);
        QStringList tuples;
        for (qsizetype i = 0; i < rows; ++i) {
            tuples
                << QStringLiteral("(:code, :e%1, :q%1, :m%1, :d%1, :f%1, :p%1, :t%1, :u%1)").arg(i);
        }
        SqlQuery q(session, QStringLiteral("INSERT INTO %1 (%2) VALUES %3")
                                .arg(kLines, kLineColumns, tuples.join(QStringLiteral(", "))));
        q.bind(QStringLiteral(":code"), code);
        for (qsizetype i = 0; i < rows; ++i) {
            const StockDocumentLine& l = lines.at(from + i);
            const QString n = QString::number(i);
            q.bindValue(QStringLiteral(":e") + n, l.eanCode);
            q.bindValue(QStringLiteral(":q") + n, l.qty);
            q.bindValue(QStringLiteral(":m") + n, l.mFee);
            q.bindValue(QStringLiteral(":d") + n, l.discount);
            q.bindValue(QStringLiteral(":f") + n, l.fee);
            q.bindValue(QStringLiteral(":p") + n, l.price);
            q.bindValue(QStringLiteral(":t") + n, l.taxValue);
            q.bindValue(QStringLiteral(":u") + n, orNull(l.userId));
        }
        if (!q.exec()) {
            return false;
        }
    }
    return true;
}

bool StockDocumentWriter::bindPendingSerials(Session& session, qint64 code) {
    return session.exec(
        QStringLiteral("UPDATE Serial SET Code = :code WHERE Code = :pending"),
        {{QStringLiteral(":code"), code}, {QStringLiteral(":pending"), kPendingSerialCode}});
}

bool StockDocumentWriter::addToStock(Session& session, qint64 code) {
    return changeWithStock(
        session, kLines, code, false, false, [] { return true; }, true);
}

bool StockDocumentWriter::addToStock(Session& session, qint64 code, const QStringList& missing) {
    return stockApplyDocument(session, code, +1) &&
           (missing.isEmpty() || sp_StockRepair(session, missing));
}

bool StockDocumentWriter::addInternalToStock(Session& session, qint64 code) {
    return changeWithStock(
        session, kInternalLines, code, true, false, [] { return true; }, true);
}

bool StockDocumentWriter::replaceLines(Session& session, qint64 code,
                                       const QList<StockDocumentLine>& lines) {
    const auto replace = [&] {
        return session.exec(QStringLiteral("DELETE FROM %1 WHERE Code = :code").arg(kLines),
                            {{QStringLiteral(":code"), code}}) &&
               insertLines(session, code, lines);
    };
    return changeWithStock(session, kLines, code, false, true, replace, true);
}

bool StockDocumentWriter::deleteDocument(Session& session, qint64 code) {
    return deleteByCode(session, kLines, kHeaders, code, false);
}

bool StockDocumentWriter::deleteInternalDocument(Session& session, qint64 code) {
    return deleteByCode(session, kInternalLines, kInternalHeaders, code, true);
}

}  // namespace sandogh::procedures
