#pragma once

#include <QString>

namespace sandogh {

// An error as the error log records it: its number, its description and where it
// came from (the driver or the part of the program that raised it).
struct AppError {
    QString number;
    QString description;
    QString source;

    bool isEmpty() const { return number.isEmpty() && description.isEmpty(); }
};

}  // namespace sandogh
