#pragma once

#include <QList>
#include <QString>

namespace sandogh {

// The reports the screen and the command line offer.
enum class ReportKind {
    SalesByDay,
    SalesByMonth,
    BestByQuantity,
    BestByAmount,
    WorstByQuantity,
    WorstByAmount,
    Profit,
    Stock,
    Payments,
    Desks,
};

class ReportKinds {
public:
    static QList<ReportKind> all();
    // The Persian title shown on the screen and printed on the page.
    static QString title(ReportKind kind);
};

}  // namespace sandogh
