#pragma once

#include <QString>

namespace sandogh {

// A customer (Types, TypeNo 10: persons) or a supplier (TypeNo 11: companies).
struct Party {
    static constexpr int kPerson = 10;
    static constexpr int kCompany = 11;

    int counter = 0;  // 0 for a party not saved yet
    int typeNo = kPerson;
    QString code;               // digits, a dash allowed; one run for persons and companies
    QString name;               // first name, or the company's name
    QString family;             // Value1
    QString telephone;          // Value2
    QString mobile;             // Value5
    QString email;              // Value6
    QString address;            // Value7
    QString birthday;           // Value9: Jalali date text, empty when not known
    int customerGroup = 0;      // CstGrpCode: tblCustomerGroup.Code, 0 for none
    int accountingGroupId = 0;  // AccountingGroupID: tblAccountingGroup.ID, 0 for none
    double credit = 0;          // added to the party's sum of sales
    bool active = true;
    QString groupName;  // read with the list, not written

    bool isNew() const { return counter == 0; }
};

}  // namespace sandogh
