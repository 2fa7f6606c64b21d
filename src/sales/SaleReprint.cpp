#include "sales/SaleReprint.h"

#include "data/Database.h"
#include "data/repositories/SaleReprintRepository.h"
#include "sales/ReceiptOptions.h"
#include "sales/ReceiptReader.h"
#include "sales/SaleReceipt.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmRePrint");

}  // namespace

SaleReprint::SaleReprint(Database& database, MessageService& messages)
    : m_database(database), m_messages(messages) {}

QString SaleReprint::lastNumber(int transType, int stationId) {
    Session s = m_database.session(kModule, QStringLiteral("LastNumber"));
    return SaleReprintRepository::lastDocNo(s, transType, stationId);
}

SaleReprint::Lookup SaleReprint::find(int transType, const QString& docNo, const QString& docDate) {
    Lookup lookup;
    Session s = m_database.session(kModule, QStringLiteral("Find"));
    bool failed = false;
    const QList<qint64> all =
        SaleReprintRepository::codes(s, transType, docNo.trimmed(), {}, failed);
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
        codes =
            SaleReprintRepository::codes(s, transType, docNo.trimmed(), docDate.trimmed(), failed);
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

bool SaleReprint::print(SaleReceipt& receipt, qint64 code, bool a4) {
    ReceiptOptions options;
    options.title = ReceiptReader::reprintTitle();
    options.a4 = a4;
    return receipt.print(code, options);
}

}  // namespace sandogh
