#pragma once

#include <QString>

namespace sandogh {

class Database;

// The shop's own texts kept in single-row tables: its name (Company), the idle greeting of
// the customer display (Display) and the names of the cash desks (Stations). Each read is
// one data routine; when the database cannot be reached the connection message has been
// shown and the fallback comes back.
class ShopDetailsRepository {
public:
    // The greeting when Display has no row or cannot be read.
    static constexpr const char* kDefaultGreeting = "Welcome";

    explicit ShopDetailsRepository(Database& database) : m_database(database) {}

    // Company_Name of the first Company row, trimmed; empty without one.
    QString companyName();
    // Display of the first Display row (NULL reads as empty); kDefaultGreeting without one.
    QString greeting();
    // Station_Name of the Stations row with this ID, trimmed; empty when there is none.
    QString stationName(int stationId);

private:
    Database& m_database;
};

}  // namespace sandogh
