#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace sandogh {

class Session;

// The reads of an internal document's receipt: its header with the branch's name, and its
// lines with the articles' names. An internal document has no voucher, payment kind,
// discount kind or overhead.
class InternalReceiptRepository {
public:
    struct Header {
        qint64 code = 0;
        QString docNo;
        QString docDate;  // "____/__/__" when empty
        QString docTime;
        int transType = 0;
        int branchId = 0;
        QString branchName;  // empty when the branch is gone
        double docSum = 0;
        double discount = 0;
        double overhead = 0;  // Sarbar
        double received = 0;  // ReceivedPrice
    };
    struct Line {
        QString barcode;
        QString name;
        double quantity = 0;
        double fee = 0;
        double price = 0;
    };

    // The header of Code = code; empty when there is no such row or the read failed
    // (failed set).
    static std::optional<Header> header(Session& session, qint64 code, bool& failed);
    // The lines in the order they were written; nothing when the read failed.
    static std::optional<QList<Line>> lines(Session& session, qint64 code);
};

}  // namespace sandogh
