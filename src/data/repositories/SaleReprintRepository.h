#pragma once

#include <QList>
#include <QString>

#include "data/repositories/DocumentFamily.h"

namespace sandogh {

class Session;

// The look-ups of reprinting a saved document by kind and number, in the ordinary or the
// internal headers.
class SaleReprintRepository {
public:
    // The number of the newest document of the kind written at a station; empty when none.
    static QString lastDocNo(Session& session, int transType, int stationId,
                             DocumentFamily family = DocumentFamily::Ordinary);
    // The keys of the documents of the kind with this number (and date, when not empty),
    // newest first; failed is set when the read failed.
    static QList<qint64> codes(Session& session, int transType, const QString& docNo,
                               const QString& docDate, bool& failed,
                               DocumentFamily family = DocumentFamily::Ordinary);
};

}  // namespace sandogh
