#pragma once

#include <QString>
#include <optional>

#include "data/Session.h"
#include "data/procedures/StockDocumentHeader.h"

namespace sandogh::procedures {

// sp_tblWhs_QTYDocH_SelectRow (@Code): one stock document header, or nothing. Empty dates
// read as "____/__/__".
std::optional<StockDocumentHeader> sp_tblWhs_QTYDocH_SelectRow(Session& session, qint64 code);

// sp_tblWhs_QTYDocD_GetLastBuyPrice (barcode): the Fee of the newest purchase line of the
// article: TransType 1, ordinary documents (DocType NULL), newest document (Code) first
// and, within it, the newest line. 0 when the article was never bought.
double sp_tblWhs_QTYDocD_GetLastBuyPrice(Session& session, const QString& barcode);

}  // namespace sandogh::procedures
