#pragma once

#include <QString>

#include "sales/ReceiptReport.h"

namespace sandogh {

struct ReceiptData;

// The command that hands a receipt to the companion accounting program, which prints it
// with one of its report layouts. The command word names the receipt form by the receipt
// mode of this machine; the fields follow, each ended by ",", and a "," inside a text is
// written as ";" so that the program can split the command on commas:
//
//   mnuRptFish,   (receipt mode 1; any other mode: mnuRptFish4,)
//    1 report file        "RptFish.rpt", "RptFish2.rpt" or "RptFish3.rpt"
//    2 shop name          Company_Name
//    3 shop telephone     Company_Tel
//    4 shop address       Company_Address
//    5 title              empty, or the reprint title
//    6 document key       Whs_QTYDocH.Code
//    7 invoice number     DocNo
//    8 date               DocDate
//    9 customer           Name and family, empty without a customer
//   10 payment kind       tblPaymentType.Name
//   11 amount received    ReceivedPrice
//   12 discount           Discount
//   13 discount kind      DiscountType.Name
//   14 overhead           Sarbar
//   15 overhead kind      Overhead.Name
//   16 total in words     DocSum in words, a blank and "ريال" or "تومان"
//   17 sentence of the day "Description : Author"
//
// Amounts are plain digits without separators.
class ReceiptCommand {
public:
    static QString commandWord(int receiptMode);

    static ReceiptReport chooseReport(bool discountKind, bool overheadKind, bool giftDiscount,
                                      bool giftPrint);
    static ReceiptReport chooseReport(const ReceiptData& receipt, bool giftDiscount,
                                      bool giftPrint);
    static QString reportName(ReceiptReport report);  // "RptFish"
    static QString reportFile(ReceiptReport report);  // "RptFish.rpt"

    // A text field: every "," turned into ";", then the ending ",".
    static QString field(const QString& text);
    // An amount field: plain digits, a "." and decimals only when there are any.
    static QString amountField(double amount);

    static QString build(const ReceiptData& receipt, ReceiptReport report, int receiptMode);
};

}  // namespace sandogh
