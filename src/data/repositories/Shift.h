#pragma once

#include <QString>

namespace sandogh {

// A named part of the shop's working day (a row of tblShift).
struct Shift {
    int code = 0;
    QString name;
};

}  // namespace sandogh
