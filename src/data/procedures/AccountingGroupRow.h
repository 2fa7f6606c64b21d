#pragma once

#include <QString>

namespace sandogh::procedures {

// An account of the chart, tblAccountingGroup: a group (two-digit Code under a one-digit
// ParentCode) or a ledger (three-digit Code under a two-digit ParentCode).
struct AccountingGroupRow {
    int id = 0;
    int code = 0;
    int parentCode = 0;
    QString name;
    bool isOpen = true;
};

}  // namespace sandogh::procedures
