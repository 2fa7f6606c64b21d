#include "sales/SaleList.h"

namespace sandogh {

QString SaleList::choiceName(Choice choice) {
    switch (choice) {
        case Choice::Last500:
            return QStringLiteral("500 فاکتور آخر");
        case Choice::First500:
            return QStringLiteral("500 فاکتور اول");
        case Choice::All:
            return QStringLiteral("تمام فاکتورها");
    }
    return {};
}

QStringList SaleList::choiceNames() {
    return {choiceName(Choice::Last500), choiceName(Choice::First500), choiceName(Choice::All)};
}

QStringList SaleList::columnNames(DocumentFamily family) {
    QStringList names{
        QStringLiteral("شماره"),     QStringLiteral("تاريخ"),  QStringLiteral("نام و نام خانوادگي"),
        QStringLiteral("مبلغ"),      QStringLiteral("مبنا"),   QStringLiteral("شماره سند"),
        QStringLiteral("کد فاکتور"), QStringLiteral("کد سند"), QStringLiteral("کد مشتري")};
    if (family == DocumentFamily::Internal) {
        names[2] = QStringLiteral("شعبه");
        names[8] = QStringLiteral("کد شعبه");
    }
    return names;
}

QString SaleList::printCommand(int transType) {
    return transType == 1 || transType == 4 ? QStringLiteral("mnuRptBuyFactor,")
                                            : QStringLiteral("mnuRptSaleFactor,");
}

}  // namespace sandogh
