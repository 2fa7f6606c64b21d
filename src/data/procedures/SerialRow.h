#pragma once

#include <QString>

namespace sandogh::procedures {

// A serial number of a sold article, table Serial.
struct SerialRow {
    qint64 id = 0;
    QString serialNo;  // digit text; allocated as the largest plus one when left empty
    QString eanCode;
    qint64 code = 1;  // the sale document; 1 while the sale is still open
    QString expireDate;
    QString note;
};

}  // namespace sandogh::procedures
