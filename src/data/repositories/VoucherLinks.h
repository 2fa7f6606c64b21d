#pragma once

#include <QList>
#include <QString>

namespace sandogh {

class Database;

// The link from purchase documents to their accounting vouchers (Whs_QTYDocH.DocumentHID).
class VoucherLinks {
public:
    // A purchase or purchase return still waiting for its voucher.
    struct WaitingDocument {
        qint64 code = 0;
        QString docNo;
        int transType = 0;
        int companyId = 0;
        QString docDate;  // "____/__/__" when empty
        double docSum = 0;
        QString docTime;
    };

    explicit VoucherLinks(Database& database);

    // Releases the documents whose voucher no longer exists (DocumentHID back to NULL);
    // the number of documents released, or -1 on failure.
    int releaseOrphans();
    // The ordinary purchases and purchase returns without a voucher.
    QList<WaitingDocument> waiting();

private:
    Database& m_database;
};

}  // namespace sandogh
