#pragma once

#include <QString>
#include <QStringList>
#include <array>

namespace sandogh::procedures {

// A whole row of the parameter table Types, as sp_Types_SelectRow reads it; NULL columns
// read as empty text or 0.
struct TypesRow {
    int counter = 0;
    int typeNo = 0;
    QString code;
    QString name;
    QString nameEng;
    QString note;
    int link = 0;
    QStringList values;  // Value1 .. Value10 at 0 .. 9
    QString value12;
    QString value13;
    std::array<int, 6> ids{};  // ID1 .. ID6
    qint64 account = 0;
    double credit = 0;
    int cstGrpCode = 0;
    int discountTakenTotal = 0;
    QString lastDiscountTakenDate;
    int accountingGroupId = 0;
    int active = 0;
    QString economicCode;
    QString nationalId;
    QString registrationNumber;
    QString postalCode;

    // Value1 .. Value10 by their number; empty text outside.
    QString value(int slot) const {
        return slot >= 1 && slot <= values.size() ? values.at(slot - 1) : QString();
    }
};

}  // namespace sandogh::procedures
