#pragma once

#include "app/DemoShop.h"

namespace sandogh {

class Database;

// The demo shop's purchasing side, seeded after the rest of the shop: an account for every
// supplier that has none (ledgers under "بستانکاران تجاری", group 40), the purchase account
// "خريد کالا" (501) and, in a shop without purchases, a purchase from each of the first
// suppliers over the last month, saved through the purchase screen's saver. Running it again
// adds nothing.
class DemoPurchases {
public:
    explicit DemoPurchases(Database& database) : m_database(database) {}

    // Adds what is missing and counts it into report.added; false with report.error set.
    bool seed(DemoShop::Report& report);

private:
    Database& m_database;
};

}  // namespace sandogh
