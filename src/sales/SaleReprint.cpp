#include "sales/SaleReprint.h"

#include "data/Database.h"
#include "data/repositories/SaleReprintRepository.h"
#include "sales/ReceiptOptions.h"
#include "sales/ReceiptReader.h"
#include "sales/SaleReceipt.h"
#include "settings/MessageService.h"

namespace sandogh {

SaleReprint::SaleReprint(Database& database, MessageService& messages, DocumentFamily family)
    : m_database(database)
    , m_messages(messages)
    , m_family(family)
    , m_module(family == DocumentFamily::Internal ? QStringLiteral("frmRePrintInter")
                                                  : QStringLiteral("frmRePrint")) {}

QString SaleReprint::lastNumber(int transType, int stationId) {
    Session s = m_database.session(m_module, QStringLiteral("LastNumber"));
    return SaleReprintRepository::lastDocNo(s, transType, stationId, m_family);
}

SaleReprint::Lookup SaleReprint::find(int transType, const QString& docNo, const QString& docDate) {
    Lookup lookup;
    Session s = m_database.session(m_module, QStringLiteral("Find"));
    bool failed = false;
    const QList<qint64> all =
        SaleReprintRepository::codes(s, transType, docNo.trimmed(), {}, failed, m_family);
    if (failed) {
        lookup.status = Lookup::Status::Failed;
        return lookup;
    }
    QList<qint64> codes = all;
    if (all.size() > 1) {
        if (docDate.trimmed().isEmpty()) {
            lookup.status = Lookup::Status::NeedsDate;
            return lookup;
        }
        codes = SaleReprintRepository::codes(s, transType, docNo.trimmed(), docDate.trimmed(),
                                             failed, m_family);
        if (failed) {
            lookup.status = Lookup::Status::Failed;
            return lookup;
        }
    }
    if (codes.isEmpty()) {
        m_messages.show(ReceiptReader::notFoundText(), MessageStyle::Critical);
        lookup.status = Lookup::Status::NotFound;
        return lookup;
    }
    lookup.status = Lookup::Status::Found;
    lookup.code = codes.first();
    return lookup;
}

bool SaleReprint::print(SaleReceipt& receipt, qint64 code, bool a4, DocumentFamily family) {
    ReceiptOptions options;
    options.family = family;
    options.title = ReceiptReader::reprintTitle();
    options.a4 = a4;
    return receipt.print(code, options);
}

}  // namespace sandogh
