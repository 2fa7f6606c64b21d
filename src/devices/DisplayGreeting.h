#pragma once

#include <QString>

#include "data/repositories/ShopDetailsRepository.h"

namespace sandogh {

class Database;

// The shop's greeting on the two-line customer display: the first row of the
// table Display, read once when the main window loads.
class DisplayGreeting {
public:
    // Without a row (or when the database cannot be read) the greeting is this.
    static constexpr const char* kDefault = ShopDetailsRepository::kDefaultGreeting;

    // The connection message is shown by the database when it cannot be reached.
    static QString read(Database& database);
};

}  // namespace sandogh
