#pragma once

#include <QString>

#include "data/Session.h"
#include "data/repositories/ReportFilter.h"

namespace sandogh {

// The WHERE pieces a report shares: the range and the header filters of documents under
// alias H, and the goods group under alias G, each with its values bound by name.
class ReportConditions {
public:
    // " AND H.DocDate >= :from AND H.DocDate <= :to" and the desk, shift and user.
    static QString headers(const ReportFilter& filter, SqlBinds& binds);
    // " AND G.Spec_Group = :goodsGroup" when the filter names a group.
    static QString goodsGroup(const ReportFilter& filter, SqlBinds& binds);
    // The same as the whole WHERE clause of a statement: " WHERE G.Spec_Group = :goodsGroup".
    static QString goodsGroupWhere(const ReportFilter& filter, SqlBinds& binds);
};

}  // namespace sandogh
