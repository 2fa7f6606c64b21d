#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace sandogh {

class Session;

// The look-ups of deleting an internal document (frmDeleteFactorInternal), each on the
// caller's session. The lines and header themselves are removed by StockDocumentWriter
// and the stock repaired by sp_StockRepair.
class InternalSaleDeleteRepository {
public:
    // The key of the internal document of the kind with this number ("Isnull(Code,0)": a
    // key of 0 counts as none). Empty when there is none; failed is set when the read
    // failed. The internal save refuses a number already used, so a number names one
    // document of its kind.
    static std::optional<qint64> find(Session& session, int transType, const QString& docNo,
                                      bool& failed);
    // The distinct barcodes of the document's lines; nothing when the read failed.
    static std::optional<QStringList> barcodes(Session& session, qint64 code);
};

}  // namespace sandogh
