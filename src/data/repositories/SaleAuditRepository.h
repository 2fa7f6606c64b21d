#pragma once

#include <QList>
#include <QString>

namespace sandogh {

class Session;

// tblSaleAudit: the record of every deleted or edited sale document.
class SaleAuditRepository {
public:
    enum Action : int { Delete = 1, Edit = 2 };

    struct Record {
        qint64 id = 0;
        int action = Delete;
        qint64 docCode = 0;
        int transType = 0;
        QString docNo;
        QString docDate;
        int userId = 0;
        int stationId = 0;
        QString auditDate;  // Jalali
        QString auditTime;  // "HH:mm:ss"
        QString document;   // the document before the change: header and lines as JSON
        QString userName;   // Users.UserName, read by list()
    };

    // Written on the caller's session (inside the change's transaction); its ID, or 0.
    static qint64 insert(Session& session, const Record& record);
    // Records dated from..to (either empty: open), of one user (0: every user), newest first.
    static QList<Record> list(Session& session, const QString& fromDate, const QString& toDate,
                              int userId);
};

}  // namespace sandogh
