#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "data/Session.h"

namespace sandogh::procedures {

// sp_StockRepair: recomputes Stock from the document lines. Per barcode,
//   Import = quantities of incoming lines: purchases (TransType 1) and sale returns (3);
//   Export = quantities of outgoing lines: sales (2) and purchase returns (4);
//   Stock  = Import - Export.
// Ordinary documents count when their DocType is NULL: a non-null DocType marks a paper of
// another origin (a pre-invoice, a branch request) that moves no goods. Internal documents
// count with the same meaning of the four types: goods received from the centre come in,
// goods sent to a branch leave the shop.
//
// With barcodes (the lines of the document just written) only those articles are
// recomputed; without, every Stock row is. Articles of Goods without a Stock row get one
// (Branch 1) first. The same articles' rows of StockMonth are made again from the lines.
// Runs in the caller's transaction, or in one of its own. False when a statement failed
// (it has been reported).
bool sp_StockRepair(Session& session, const QStringList& barcodes = {});

// Stock following one document instead of its whole history: the quantities of the lines
// of document `code` are added to Import, Export and Stock of their articles (sign +1,
// once the lines are written) or taken back (sign -1, before they are deleted), with the
// meaning of the four types and DocType of sp_StockRepair. The statement reads only the
// lines of that document, so its cost does not grow with the articles' history, and the
// result is what sp_StockRepair gives as long as Stock agreed with it before. Articles
// without a Stock row are left to the caller (stockRowsMissing, then a scoped repair
// after the change). Runs in the caller's transaction; false when it failed (reported).
bool stockApplyDocument(Session& session, qint64 code, int sign);
bool stockApplyInternalDocument(Session& session, qint64 code, int sign);

// Stock rows: all of them, or whether the barcode has one; -1 when the look-up failed.
qint64 stockRowCount(Session& session, const QString& barcode = {});

// Articles of Goods among barcodes that have no Stock row yet (sp_StockRepair makes it).
// Nothing when the look-up failed.
std::optional<QStringList> stockRowsMissing(Session& session, const QStringList& barcodes);

// SP_ComputeWarehouseQtyByEanCode: the quantity of an article on hand in one warehouse,
// by the formula of sp_StockRepair over the ordinary documents whose WarehouseCode is that
// warehouse. A warehouse of 0 or empty text means the whole shop: then every document
// counts, internal ones included, and the result equals the repaired Stock.Stock.
// 0 when the barcode has no lines or the statement failed.
double SP_ComputeWarehouseQtyByEanCode(Session& session, const QString& barcode,
                                       const QString& warehouseCode);

}  // namespace sandogh::procedures
