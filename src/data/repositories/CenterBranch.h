#pragma once

#include <QString>

namespace sandogh {

// One row of tblCenterBranches: the centre (TypeNo 1) or one of its branches (TypeNo 2).
struct CenterBranch {
    int id = 0;
    QString name;
};

}  // namespace sandogh
