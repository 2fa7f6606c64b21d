#pragma once

namespace sandogh {

class DemoSeeder;

// The demo shop's lists in the parameter table and its goods: units (Types, TypeNo 61),
// the goods of DemoGoods with their Stock rows and their place in the central warehouse,
// the customer groups, and the customers (TypeNo 10) and suppliers (TypeNo 11) of
// DemoParties. Adds only what is missing; new Types rows take Max(Counter) + 1 onwards.
class DemoCatalogue {
public:
    static constexpr int kUnitTypeNo = 61;
    static constexpr int kWarehouseCode = 1;

    static void seed(DemoSeeder& seeder);
};

}  // namespace sandogh
