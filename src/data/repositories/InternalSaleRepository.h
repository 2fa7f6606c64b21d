#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/Session.h"

namespace sandogh {

// The statements of the internal sale on Whs_QTYDocHInternal / Whs_QTYDocDInternal, each on
// the caller's session (the writes inside its transaction). Every value is bound.
class InternalSaleRepository {
public:
    struct Header {
        qint64 code = 0;
        QString docNo;
        int transType = 2;  // 2 internal sale, 3 internal return
        int branchId = 0;   // CompanyID: tblCenterBranches.ID
        QString docDate;
        int userId = 0;
        double docSum = 0;
        double discount = 0;
        QString docTime;  // "HH:MM:SS"
        double sarbar = 0;
        double receivedPrice = 0;
        int stationId = 0;
        QString note;
        int salesType = 1;
        QString atf;  // a return: the number of the invoice it returns; else empty (NULL)
    };
    struct Line {
        QString barcode;
        double qty = 0;
        double fee = 0;
        double price = 0;
        QString name;  // Goods.Name, read with a saved document only
    };
    struct Document {
        qint64 code = 0;
        QString docNo;
    };
    struct Previous {
        QString docNo = QStringLiteral("0");
        double received = 0;
    };
    // The next key, the largest plus one (1 on an empty table); 0 when the statement failed.
    static qint64 nextCode(Session& session);
    // Whether a document of the kind other than exceptCode already has this number; nothing
    // on failure.
    static std::optional<bool> docNoTaken(Session& session, int transType, const QString& docNo,
                                          qint64 exceptCode = 0);
    // The return other than exceptCode already saved for an invoice number (compared as a
    // number); an empty inner value when there is none, nothing on failure.
    static std::optional<std::optional<Document>> earlierReturn(Session& session,
                                                                const QString& invoiceNo,
                                                                qint64 exceptCode = 0);
    // A saved document, its header and its lines in the order written; nothing when it is
    // not there or the statement failed.
    struct Saved {
        Header header;
        QList<Line> lines;
    };
    static std::optional<Saved> document(Session& session, qint64 code);
    // The header under its key; the lines under the same key. False when one failed.
    static bool insertHeader(Session& session, const Header& header);
    static bool insertLines(Session& session, qint64 code, const QList<Line>& lines);
    // The last internal sale or return of a desk; nothing on failure.
    static std::optional<Previous> previousInvoice(Session& session, int stationId);
    // The number as it is kept in Atf and compared: its digits without leading zeros.
    static QString invoiceNumber(const QString& typed);
};

}  // namespace sandogh
