#pragma once

#include <QString>

namespace sandogh {

// The cash desk this machine is: Stations.ID as the settings name it ("Station"/"ID"),
// with its name from the Stations table (empty when the table has no such row).
struct Station {
    int id = 0;
    QString name;
};

}  // namespace sandogh
