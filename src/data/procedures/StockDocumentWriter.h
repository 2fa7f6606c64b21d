#pragma once

#include "data/DbError.h"
#include "data/Session.h"
#include "data/procedures/StockDocumentHeader.h"
#include "data/procedures/StockDocumentLine.h"

namespace sandogh::procedures {

// Writes stock documents inside the caller's transaction. The header's Code is allocated
// by its own insert as the table's largest plus one, so two seats saving at once collide
// on the key rather than sharing it; the slower one takes the next key (KeyConflictRetry).
// Lines are then written under the key the header was given, never under a Code read
// again. After the lines the caller runs sp_StockRepair for their barcodes.
//
//   Transaction tx(session);
//   const qint64 code = StockDocumentWriter::insertHeader(session, header);
//   for (const StockDocumentLine& line : lines)
//       ok = ok && StockDocumentWriter::insertLine(session, code, line);
//   ok = ok && sp_StockRepair(session, barcodesOf(lines));
//   ok && tx.commit();
class StockDocumentWriter {
public:
    // Whs_QTYDocH: the new Code, or 0 when the insert failed (reported).
    static qint64 insertHeader(Session& session, const StockDocumentHeader& header);
    // One attempt without retry: 0 with the failure in error, a key conflict unreported.
    static qint64 insertHeaderOnce(Session& session, const StockDocumentHeader& header,
                                   DbError& error);
    // Whs_QTYDocD: the line's ID, or 0.
    static qint64 insertLine(Session& session, qint64 code, const StockDocumentLine& line);

    // The same for Whs_QTYDocHInternal / Whs_QTYDocDInternal.
    static qint64 insertInternalHeader(Session& session, const StockDocumentHeader& header);
    static qint64 insertInternalLine(Session& session, qint64 code, const StockDocumentLine& line);

    // Lines, then the header, of one document.
    static bool deleteDocument(Session& session, qint64 code);
    static bool deleteInternalDocument(Session& session, qint64 code);
};

}  // namespace sandogh::procedures
