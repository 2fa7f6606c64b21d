#pragma once

#include <QList>
#include <QStringList>

#include "data/DbError.h"
#include "data/Session.h"
#include "data/procedures/StockDocumentHeader.h"
#include "data/procedures/StockDocumentLine.h"

namespace sandogh::procedures {

// Writes stock documents inside the caller's transaction. The header's Code is allocated
// by its own insert as the table's largest plus one, so two seats saving at once collide
// on the key rather than sharing it; the slower one takes the next key (KeyConflictRetry).
// On PostgreSQL the insert also passes over the keys that open transactions have taken
// and not yet committed (a transaction advisory lock per key, tried, never waited for), so
// that a desk writing its document outside the desks' lock neither waits for another nor
// makes a writer under the lock wait for it.
// Lines are then written under the key the header was given, never under a Code read
// again. After the lines the caller adds the document to Stock (addToStock), which reads
// only this document's lines; deleting and replacing lines take them back out first.
//
//   Transaction tx(session);
//   const qint64 code = StockDocumentWriter::insertHeader(session, header);
//   ok = code > 0 && StockDocumentWriter::insertLines(session, code, lines) &&
//        StockDocumentWriter::addToStock(session, code);
//   ok && tx.commit();
class StockDocumentWriter {
public:
    // The desks' lock: makes the writers of stock documents wait for each other until
    // their transactions end, so that the numbers they take as the largest plus one
    // (DocNo, voucher code) are read after the previous writer's commit. Writers that take
    // it first hold it for their whole transaction; the sale takes it last, after its
    // header and lines (see SaleSaver). A no-op on SQLite, where BEGIN IMMEDIATE already
    // excludes other writers.
    static bool lockWriters(Session& session);

    // Whs_QTYDocH: the new Code, or 0 when the insert failed (reported).
    static qint64 insertHeader(Session& session, const StockDocumentHeader& header);
    // The same without savepoints, for a writer that does not hold the desks' lock yet
    // (PostgreSQL) or is the only writer (SQLite): a key that turns out committed meanwhile
    // is passed over by a new attempt rather than rolled back. An empty DocNo is written
    // NULL (setNumber gives it later). 0 when it failed (reported).
    static qint64 insertHeaderUnlocked(Session& session, const StockDocumentHeader& header);
    // The number and voucher of a header written without them (insertHeaderUnlocked with
    // DocNo NULL), taken under the desks' lock.
    static bool setNumber(Session& session, qint64 code, const QString& docNo, qint64 documentHId);
    // Whs_QTYDocD: the line's ID, or 0.
    static qint64 insertLine(Session& session, qint64 code, const StockDocumentLine& line);
    // All lines of a document in as few statements as the backend's limit of bound values
    // allows (one for any sale); false when one failed (reported).
    static bool insertLines(Session& session, qint64 code, const QList<StockDocumentLine>& lines);
    // Serial numbers typed during a sale wait under the placeholder key 1 (pendingSerialCode)
    // until the sale is saved; they then belong to document `code`.
    static constexpr qint64 kPendingSerialCode = 1;
    static bool bindPendingSerials(Session& session, qint64 code);

    // Stock follows the document's lines (sp_StockRepair's meaning, see stockApplyDocument):
    // their quantities added, articles without a Stock row made and recomputed whole.
    static bool addToStock(Session& session, qint64 code);
    // The same when the caller has looked up the articles without a Stock row already
    // (stockRowsMissing on the lines' barcodes, before the desks' lock).
    static bool addToStock(Session& session, qint64 code, const QStringList& missing);
    static bool addInternalToStock(Session& session, qint64 code);
    // An edit: the lines of a document replaced by others, Stock following both.
    static bool replaceLines(Session& session, qint64 code, const QList<StockDocumentLine>& lines);

    // The same for Whs_QTYDocHInternal / Whs_QTYDocDInternal.
    static qint64 insertInternalHeader(Session& session, const StockDocumentHeader& header);
    static qint64 insertInternalLine(Session& session, qint64 code, const StockDocumentLine& line);

    // Lines, then the header, of one document, their quantities taken out of Stock.
    static bool deleteDocument(Session& session, qint64 code);
    static bool deleteInternalDocument(Session& session, qint64 code);
};

}  // namespace sandogh::procedures
