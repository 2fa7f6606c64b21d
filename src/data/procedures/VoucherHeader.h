#pragma once

#include <QString>

namespace sandogh::procedures {

// An accounting voucher header, tblDocumentH.
struct VoucherHeader {
    qint64 id = 0;    // @MaxID: the database's row number
    qint64 code = 0;  // the voucher number; 0 asks the insert to allocate it
    QString date;     // Jalali, text of 10
    QString time;     // "HH:MM", text of 8
    int userId = 0;
    bool transfer = false;
    bool permanent = false;
    QString serial;  // text of 50
    QString note;    // text of 255
};

}  // namespace sandogh::procedures
