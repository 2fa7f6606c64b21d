#pragma once

#include <QList>
#include <optional>

#include "data/repositories/ReportFilter.h"
#include "data/repositories/ReportRows.h"

namespace sandogh {

class Session;

// The aggregates the shop's reports read from ordinary sale documents (TransType 2 and 3,
// DocType NULL) and their vouchers. Each runs on the caller's session
// (a report may run on a worker thread with its own) and gives std::nullopt when its
// statement failed (reported as every failed statement is).
class SalesReportQueries {
public:
    // Count, DocSum and ReceivedPrice per date and kind; dates without documents are absent.
    static std::optional<QList<reportrows::DayKind>> days(Session& session,
                                                          const ReportFilter& filter);
    // Quantity and amount per article, sales less returns: the whole months of the range
    // from StockMonth when no desk, shift or user is asked for, the other days from the lines.
    static std::optional<QList<reportrows::ArticleSales>> articles(Session& session,
                                                                   const ReportFilter& filter);
    // Count, DocSum and ReceivedPrice per cash desk, shift and kind, with their names.
    static std::optional<QList<reportrows::DeskShiftKind>> desks(Session& session,
                                                                 const ReportFilter& filter);
    // The payment side of the vouchers of the range's sales (debits) less that of returns
    // (credits), per account, telling the card terminals and the parties' own accounts.
    static std::optional<QList<reportrows::AccountShare>> accountShares(Session& session,
                                                                        const ReportFilter& filter);
    // Gift card amounts spent on the range's sales (tblGiftCardItem.DocHCode).
    static std::optional<double> giftCards(Session& session, const ReportFilter& filter);
    // Cheques received (tblChequeAndTravel, TransType 0) on the vouchers of the range's
    // sales, less those paid out on its returns.
    static std::optional<double> cheques(Session& session, const ReportFilter& filter);
};

}  // namespace sandogh
