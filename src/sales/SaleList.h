#pragma once

#include <QString>
#include <QStringList>

#include "data/repositories/DocumentFamily.h"

namespace sandogh {

// The choices and captions of the saved sales list (frmSaleList).
class SaleList {
public:
    enum class Choice {
        Last500,   // "500 فاکتور آخر": the last 500, newest number first
        First500,  // "500 فاکتور اول": the first 500, oldest number first
        All,  // "تمام فاکتورها": every document, newest number first, a page at a time
    };

    // Rows read per page as the grid scrolls.
    static constexpr int kPageRows = 100;
    // The most rows of the two bounded choices.
    static constexpr int kBoundedRows = 500;

    static QString choiceName(Choice choice);
    static QStringList choiceNames();
    static bool descending(Choice choice) { return choice != Choice::First500; }
    // The most rows a choice shows; 0: no limit.
    static int limit(Choice choice) { return choice == Choice::All ? 0 : kBoundedRows; }

    // The grid's column captions: number, date, customer, total, Base, voucher number,
    // document key, voucher key, customer Counter. The internal documents' list names the
    // branch instead of the customer (frmSaleInterList).
    static QStringList columnNames(DocumentFamily family = DocumentFamily::Ordinary);

    // The companion program's command word of the print button: "mnuRptSaleFactor," for
    // sales and their returns, "mnuRptBuyFactor," for purchases and theirs.
    static QString printCommand(int transType);
};

}  // namespace sandogh
