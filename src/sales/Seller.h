#pragma once

#include <QString>

namespace sandogh {

// A user who sells a line (column 9 of the grid).
struct Seller {
    int id = 0;
    QString name;
};

}  // namespace sandogh
