#pragma once

#include <QString>
#include <QStringList>

#include "data/Session.h"

namespace sandogh::procedures {

// StockMonth: what the document lines moved per article (Barcode) and Jalali month
// (YearMonth, the first seven characters of DocDate), with the meaning of sp_StockRepair.
// Ordinary documents with DocType NULL give the purchases (TransType 1: quantity and value
// at the landed unit cost MFee less Discount % plus TaxValue %), purchase returns (4),
// sales (2) and sale returns (3) with their quantities and amounts (Price) and the count of
// their lines; internal documents give InternalIn (1 and 3) and InternalOut (2 and 4).
// Documents without a date and lines without a barcode are left out. The rows equal what
// the lines give at every commit: the documents' writers add a document's lines to them
// (stockMonthApply) in the transaction that writes or deletes them, and sp_StockRepair
// recomputes them with Stock.

// The statement that fills an empty StockMonth from every document (the migration's).
QString stockMonthFillSql();

// The rows of barcodes (every row when empty) made again from the lines. Runs in the
// caller's transaction; false when a statement failed (reported).
bool stockMonthRebuild(Session& session, const QStringList& barcodes);

// The lines of document `code` added to their articles' months (sign +1, once written) or
// taken out of them (-1, before they are deleted). Reads only that document's lines.
bool stockMonthApply(Session& session, qint64 code, int sign, bool internal);

}  // namespace sandogh::procedures
