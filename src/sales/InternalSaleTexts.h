#pragma once

#include <QString>

namespace sandogh {

// The texts of the internal sale screen. The refusals keep their leading "!" (and the
// blank before it where there is one): they were written for a right-to-left box, where
// the "!" lands at the end of the line.
class InternalSaleTexts {
public:
    static QString noBranch() { return QStringLiteral("!شعبه انتخاب نشده است"); }
    static QString noGoods() { return QStringLiteral("!كالايي انتخاب نشده است"); }
    static QString noDocNo() { return QStringLiteral(" !شماره فاكتور وارد نشده است"); }
    static QString noReturnedInvoice() {
        return QStringLiteral(" !شماره فاكتور مرجوعي خريد مربوطه وارد نشده است");
    }
    static QString docNoTaken() { return QStringLiteral("شماره وارد شده تکراري است"); }
    // A return of an invoice that was already returned: the title, and the text before
    // the earlier return's number.
    static QString noticeTitle() { return QStringLiteral("توجه!"); }
    static QString earlierReturn() { return QStringLiteral("فاکتور مرجوعي شماره "); }
};

}  // namespace sandogh
