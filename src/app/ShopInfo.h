#pragma once

#include <QString>

#include "data/repositories/ShopDetailsRepository.h"

namespace sandogh {

class Database;

// The shop's own texts kept in single-row tables: its name (Company) for the login screen,
// the idle greeting of the customer display (Display), and the name of a cash desk
// (Stations). Each read is one data routine; when the database cannot be reached the
// connection message has been shown and the default comes back.
class ShopInfo {
public:
    // The shop name when Company has no row or its Company_Name is empty.
    static const QString& defaultShopName();
    // The display greeting when Display has no row.
    static constexpr const char* kDefaultGreeting = ShopDetailsRepository::kDefaultGreeting;

    explicit ShopInfo(Database& database) : m_database(database) {}

    // Company_Name of the first Company row.
    QString shopName();
    // Display of the first Display row; an empty or NULL value stays empty.
    QString displayGreeting();
    // Station_Name of the Stations row with this ID, trimmed; empty when there is none.
    QString stationName(int stationId);

private:
    Database& m_database;
};

}  // namespace sandogh
