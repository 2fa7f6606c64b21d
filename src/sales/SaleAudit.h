#pragma once

#include <QList>
#include <QString>

#include "data/repositories/SaleAuditRepository.h"

namespace sandogh {

class Clock;
class Database;
class Session;

// The record kept of every deleted or edited sale document: who, when, at which cash
// desk, and the document as it stood before the change (its header and lines as JSON
// text). It is written on the change's session, inside its transaction, so a change that
// is rolled back leaves no record and a record never lacks its change.
class SaleAudit {
public:
    // Who makes the changes and where.
    struct Desk {
        int userId = 0;
        int stationId = 0;
    };

    // Reads document `code` as it stands and writes the record of `action`
    // (SaleAuditRepository::Delete or Edit); false when a statement failed.
    static bool record(Session& session, const Clock& clock, const Desk& desk, int action,
                       qint64 code);
    // The document `code` as the record keeps it; empty when it cannot be read.
    static QString documentJson(Session& session, qint64 code);
    // The records dated from..to (either empty: open) of one user (0: everyone).
    static QList<SaleAuditRepository::Record> list(Database& database, const QString& fromDate,
                                                   const QString& toDate, int userId);
    // "حذف" or "ويرايش".
    static QString actionName(int action);
    // Today's Jalali date text by the clock.
    static QString today(const Clock& clock);
};

}  // namespace sandogh
