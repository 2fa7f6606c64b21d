#pragma once

#include <QDate>
#include <QString>

namespace sandogh {

// The weighed tickets printed by the shop's label scales, as the barcode box reads them.
//
// MizanNet, 8 characters: the scale prefix, the scale number (1), the ticket number (5)
// and a check character that is not used. Its lines are kept under the key
// "00000" + scale + "00000" + ticket + dd + mm + yy + "0" of today's Gregorian date.
//
// OnlineSales, 18 characters: a prefix (2), two unused fields (2 and 7), the receipt
// number (4) and the scale number (3). Its lines are kept under the last 8 characters
// of today's Jalali date ("04/01/05"), the receipt and the scale number.
class ScaleTicket {
public:
    static constexpr int kMizanLength = 8;
    static constexpr int kOnlineSalesLength = 18;

    // Whether text is a MizanNet ticket for this prefix (its first character).
    static bool isMizanTicket(const QString& text, const QString& prefix);
    static QString mizanKey(const QString& text, const QDate& today);

    static int onlineSalesReceipt(const QString& text);
    static int onlineSalesScale(const QString& text);
    static QString onlineSalesDate(const QString& todayJalali);
};

}  // namespace sandogh
