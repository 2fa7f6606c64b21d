#pragma once

#include <QString>

#include "data/repositories/DocumentFamily.h"

namespace sandogh {

class Database;
class MessageService;
class SaleReceipt;

// frmRePrint without its widgets: the last number of a kind at this cash desk proposed,
// the number looked up (with its date when the number occurs more than once), and the
// receipt printed again through the receipt path under the title "چاپ مجدد". The internal
// family is frmRePrintInter: the same over the internal headers, the branch as the party.
class SaleReprint {
public:
    struct Lookup {
        enum class Status { Found, NotFound, NeedsDate, Failed };
        Status status = Status::NotFound;
        qint64 code = 0;
    };

    SaleReprint(Database& database, MessageService& messages,
                DocumentFamily family = DocumentFamily::Ordinary);

    // The number of the newest document of the kind written at this station; empty: none.
    QString lastNumber(int transType, int stationId);
    // The document of the kind with this number; when several share it, the one of
    // `docDate` (NeedsDate while no date is given). NotFound shows the message.
    Lookup find(int transType, const QString& docNo, const QString& docDate = {});
    // The receipt of the document again, titled as a reprint. False when nothing printed.
    static bool print(SaleReceipt& receipt, qint64 code, bool a4 = false,
                      DocumentFamily family = DocumentFamily::Ordinary);

private:
    Database& m_database;
    MessageService& m_messages;
    DocumentFamily m_family;
    QString m_module;
};

}  // namespace sandogh
