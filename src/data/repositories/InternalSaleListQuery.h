#pragma once

#include <QList>
#include <QString>

#include "data/repositories/SaleListQuery.h"

namespace sandogh {

class Session;

// The internal documents of one kind (Whs_QTYDocHInternal rows of a TransType: 2 internal
// sale, 3 internal return) a page at a time, in the order and with the keyset pages of
// SaleListQuery: by number as a number, then by key, each page continuing after the last
// row of the one before (on the index of TransType and the number).
//
// Rows come in SaleListQuery's shape so that the list's model and grid serve both: the
// party is the branch (tblCenterBranches.Name, its ID as the party key), and an internal
// document has no voucher. The filters are the number, the date and the branch name
// (matched on search keys as the customer is); Base is not used by internal documents and
// the filter ignores it.
class InternalSaleListQuery {
public:
    static QList<SaleListQuery::Row> page(Session& session, const SaleListQuery::Filter& filter,
                                          bool descending, const SaleListQuery::Position& after,
                                          int rows);
    // The statement page() runs for these choices.
    static QString statement(Session& session, const SaleListQuery::Filter& filter, bool descending,
                             bool atStart, int rows);
};

}  // namespace sandogh
