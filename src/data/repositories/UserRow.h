#pragma once

#include <QList>
#include <QString>

namespace sandogh {

// A row of Users with the cash desks and warehouses the user may work at.
struct UserRow {
    int id = 0;  // 0: a user not saved yet
    QString name;
    QString userName;
    QString password;  // as stored: a hash, or the password itself in old rows
    int level = 2;     // Users.PermissionLevel
    bool active = true;
    QList<int> stations;    // UserStation.StationID; empty: any cash desk
    QList<int> warehouses;  // active UserWarehouse.WarehouseCode
};

// A cash desk or a warehouse as the users screen offers it.
struct NamedCode {
    int code = 0;
    QString name;
};

}  // namespace sandogh
