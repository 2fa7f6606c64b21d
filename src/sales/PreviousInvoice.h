#pragma once

#include <QString>

namespace sandogh {

// The last sale or return of a cash desk (lblPrevFactor, lblPrevPrice); docNo "0" and
// received 0 before its first one.
struct PreviousInvoice {
    QString docNo = QStringLiteral("0");
    double received = 0;
};

}  // namespace sandogh
