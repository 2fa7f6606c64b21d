#pragma once

#include <QString>

namespace sandogh::procedures {

// One posting of an accounting voucher, tblDocumentD.
struct VoucherLine {
    qint64 id = 0;
    qint64 documentHId = 0;
    int accountingGroupId = 0;
    double debt = 0;
    double credit = 0;
    QString comment;  // text of 255
};

}  // namespace sandogh::procedures
