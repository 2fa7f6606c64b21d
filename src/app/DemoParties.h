#pragma once

#include <QList>
#include <QString>

namespace sandogh {

// The customers, suppliers and customer groups of the demo shop, made from word lists;
// the same list every time.
class DemoParties {
public:
    struct Group {
        int code = 0;  // tblCustomerGroup.Code
        QString name;
        qint64 color = 0;  // 0xRRGGBB
        double discountPercent = 0;
    };

    struct Party {
        int typeNo = 10;     // 10 a person (customer), 11 a company (supplier)
        QString code;        // party code: digits, one number run for persons and companies
        QString name;        // first name, or the company's name
        QString familyName;  // Value1
        QString telephone;   // Value2
        QString mobile;      // Value5
        QString address;     // Value7
        QString birthday;    // Value9, Jalali
        int groupCode = 0;   // CstGrpCode
    };

    static QList<Group> groups();
    static QList<Party> parties();
};

}  // namespace sandogh
