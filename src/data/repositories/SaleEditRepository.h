#pragma once

#include <QList>
#include <QString>

#include "data/procedures/StockDocumentLine.h"
#include "data/procedures/VoucherLine.h"

namespace sandogh {

class Session;

// The statements of editing a saved sale or return, on the caller's session: its lines
// read, a line removed by its ID, and the header's amounts written again. Lines are
// added with StockDocumentWriter::insertLine (MFee and Discount, no UserID).
class SaleEditRepository {
public:
    // The lines of a document in the order they were written, with the articles' names.
    struct Line {
        procedures::StockDocumentLine line;
        QString name;  // Goods.Name; empty when the article is gone
    };
    // Empty on failure (failed set) or when the document has no lines.
    static QList<Line> lines(Session& session, qint64 code, bool* failed = nullptr);
    static bool deleteLine(Session& session, qint64 lineId);
    // Discount, and the total and amount received that follow the new lines.
    static bool updateHeader(Session& session, qint64 code, double discount, double docSum,
                             double received);
    // The rows of the sale's voucher in the order they were written; empty on failure
    // (failed set).
    static QList<procedures::VoucherLine> voucherRows(Session& session, qint64 documentHId,
                                                      bool* failed = nullptr);
};

}  // namespace sandogh
