#pragma once

#include <QList>
#include <QString>

namespace sandogh {

class Session;
class SqlQuery;

// The saved documents of one kind (Whs_QTYDocH rows of a TransType, ordinary documents
// only) a page at a time, ordered by number as a number and then by key, so that a list of
// a million documents opens at once: each page continues after the last row of the page
// before it (keyset pagination on the index of TransType, number and Code), and nothing
// counts or reads the whole table.
//
// The filters combine: number equal, date equal, customer name and family holding the
// text, Base holding the text. Customer and Base are matched on the search key of the typed
// text (SearchKeys: Persian letter forms, ASCII digits, no zero-width non-joiner, lower
// case) against the keys stored beside them (Types.NameKey of Name + ' ' + Value1,
// Whs_QTYDocH.BaseKey), through their trigram indexes where the backend has them.
class SaleListQuery {
public:
    struct Filter {
        int transType = 2;
        QString docNo;     // equal; empty: any
        QString docDate;   // equal; empty: any ("____/__/__" finds documents without one)
        QString customer;  // inside name and family; empty: any
        QString base;      // inside Base; empty: any
    };

    struct Row {
        QString docNo;
        QString docDate;  // "____/__/__" when empty
        QString customerName;
        double docSum = 0;
        QString base;
        qint64 voucherCode = 0;  // tblDocumentH.Code of the document's voucher
        qint64 code = 0;         // Whs_QTYDocH.Code
        qint64 documentHId = 0;  // the voucher's key
        int customerId = 0;      // Types.Counter
        qint64 number = 0;       // DocNo as a number: where the next page starts
    };

    // Where the next page starts: after the row with this number and key.
    struct Position {
        bool atStart = true;
        qint64 number = 0;
        qint64 code = 0;
    };

    // Up to `rows` rows after `after`, newest number first when `descending`. A failed
    // read returns no rows (the failure has been reported).
    static QList<Row> page(Session& session, const Filter& filter, bool descending,
                           const Position& after, int rows);
    // The position after the last of `rows`; `after` itself when there are none.
    static Position positionAfter(const QList<Row>& rows, const Position& after);
    // The statement page() runs for these choices (for the benchmarks' query plans).
    static QString statement(Session& session, const Filter& filter, bool descending, bool atStart,
                             int rows);
    // The search key form of a column expression, in SQL (nested REPLACEs), for comparing
    // with `key` (already a search key).
    static QString searchKeySql(const QString& expression, const QString& key);
    // The keyset part of a list statement over headers H ordered by the number expression
    // and H.Code: the rows after the position (unless atStart), the order and the limit.
    static QString keysetTail(Session& session, const QString& number, bool descending,
                              bool atStart, int rows);
    // Binds the position keysetTail() compares with.
    static void bindAfter(SqlQuery& query, Session& session, const Position& after);
};

}  // namespace sandogh
