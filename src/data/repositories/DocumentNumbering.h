#pragma once

#include <QString>
#include <optional>

#include "data/Session.h"

namespace sandogh {

class Database;

// Keys and numbers of stock documents, read at save time as the largest existing one plus
// one. Document numbers (DocNo) are digit text compared as 64-bit numbers and run per
// transaction type over the ordinary documents (DocType NULL); purchases (1) and purchase
// returns (4) keep two runs, sales (2) and sale returns (3) one each, for all time or per
// document date (daily numbering). Internal documents number per type, except receipts
// and their returns (1 and 4), which share one run. An empty table gives key 1 and number
// 1; 0 means the look-up failed (the failure has been reported).
//
// Each number is one index seek (the partial indexes on CAST(DocNo AS BIGINT)), whatever
// the number of documents.
class DocumentNumbering {
public:
    explicit DocumentNumbering(Database& database);

    // The next Code of Whs_QTYDocH / Whs_QTYDocHInternal (for display: the insert
    // allocates the key it writes itself).
    qint64 nextCode();
    qint64 nextInternalCode();
    // The next number of a kind over all dates.
    qint64 nextDocNo(int transType);
    // The next number of a kind among the documents of one date.
    qint64 nextDocNoOfDate(int transType, const QString& date);
    // The sale screen's number: per date with daily numbering (1 for the first document
    // of a new date), else over all dates.
    qint64 nextSaleDocNo(int transType, const QString& date, bool daily);
    qint64 nextInternalDocNo(int transType);
    // The latest DocDate of a kind ("" when there is none).
    QString lastDocDate(int transType);

    // Whether a supplier's number typed for a purchase (1) or purchase return (4) is taken
    // by an ordinary document of the kind (compared trimmed). Nothing on failure.
    std::optional<bool> isSupplierDocNoRepeated(int transType, const QString& docNo);
    // Whether a number typed on the sale screen is taken by a document of the kind and date.
    std::optional<bool> isSaleDocNoTaken(int transType, const QString& docNo, const QString& date);

    // The statements that read the largest numbers, for plan checks and benchmarks.
    struct Statements {
        QString lastDocNo;          // :transType
        QString lastDocNoOfDate;    // :transType, :docDate
        QString lastInternalDocNo;  // :transType
        QString lastReceiptDocNo;   // internal receipts and their returns
    };
    static Statements statements();

    // The voucher of a sale, numbered as it is written: one insert on the caller's session,
    // after the desks' lock and last before the commit, that takes the sale's invoice
    // number (the next one of the kind, per date with daily numbering, or the typed one
    // when the date does not have it yet) and the next voucher code (tblDocumentH.Code),
    // and writes the voucher with Serial = the number and Note = notePrefix + number +
    // noteSuffix. A typed number that is taken writes nothing (typedTaken). Nothing on
    // failure.
    struct SaleVoucherRequest {
        int transType = 0;
        QString date;  // the sale's date
        bool daily = false;
        QString typedDocNo;  // empty: the next number
        QString voucherDate;
        QString voucherTime;
        int userId = 0;
        QString notePrefix;
        QString noteSuffix;
    };
    struct NumberedVoucher {
        bool typedTaken = false;
        QString docNo;
        qint64 voucherId = 0;
        qint64 voucherCode = 0;
        QString note;
    };
    static std::optional<NumberedVoucher> insertSaleVoucher(Session& session,
                                                            const SaleVoucherRequest& request);

    // The same on a session of the caller, for use inside its transaction.
    static qint64 nextCode(Session& session);
    static qint64 nextInternalCode(Session& session);
    static qint64 nextDocNo(Session& session, int transType);
    static qint64 nextDocNoOfDate(Session& session, int transType, const QString& date);
    static qint64 nextInternalDocNo(Session& session, int transType);

private:
    Database& m_database;
};

}  // namespace sandogh
