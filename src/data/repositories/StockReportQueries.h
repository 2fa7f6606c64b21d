#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/repositories/ReportRows.h"

namespace sandogh {

class Session;

// The stock of every article on hand now (Stock.Stock, as sp_StockRepair keeps it) and as
// it stood at the end of a past Jalali date: the quantity now less what the documents
// dated after that day moved (ordinary documents with DocType NULL and internal ones, in
// for 1 and 3, out for 2 and 4, as the repair counts them), or the sum of what they moved
// up to that day. The report reads from whichever end is nearer the date. Whole months are
// read from StockMonth, only the days of the date's own month from the lines, so neither an
// early nor a recent date reads most of the year's lines.
class StockReportQueries {
public:
    // Every article with a Stock row, of one goods group when given.
    static std::optional<QList<reportrows::ArticleStock>> onHand(Session& session,
                                                                 std::optional<int> goodsGroup);
    // The signed quantity moved per article by the documents dated after asOf.
    static std::optional<QList<reportrows::ArticleStock>> movedAfter(Session& session,
                                                                     const QString& asOf);
    // The signed quantity moved per article by the documents dated up to asOf: the stock
    // on that day when the shop's Stock rows are repaired (their sum from the first document).
    static std::optional<QList<reportrows::ArticleStock>> movedUpTo(Session& session,
                                                                    const QString& asOf);
    // Ordinary purchases dated up to asOf, one row per article: quantity and landed value.
    static std::optional<QList<reportrows::PurchaseCost>> purchaseCosts(Session& session,
                                                                        const QString& asOf);

private:
    // Rows per source (lines, months), an article in several: the caller adds them up.
    static std::optional<QList<reportrows::ArticleStock>> moved(Session& session,
                                                                const QString& asOf, bool after);
};

}  // namespace sandogh
