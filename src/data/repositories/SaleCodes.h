#pragma once

#include <QString>
#include <optional>

namespace sandogh {

class Database;

// The codes a sale names and that must exist before it is saved: its payment kind
// (tblPaymentType.Code), discount kind (DiscountType.Id), station (Stations.ID) and customer
// (Types.Counter of a customer or supplier row). The screens pick them from lists of what
// exists; the command line takes them as typed.
class SaleCodes {
public:
    enum class Missing { None, PaymentKind, DiscountKind, Station, Customer, Unreachable };

    explicit SaleCodes(Database& database);

    // The first code given that does not exist; None when all do. Zero or no value means
    // "not given" and is not looked up.
    Missing firstMissing(std::optional<int> paymentKind, std::optional<int> discountKind,
                         int station, int customer);

    // Whether the customer counter names a customer or supplier row of the parameter
    // table; false also when the look-up failed.
    bool customerResolves(int counter);

    // The Persian message for a missing code (empty for None and Unreachable, whose
    // message the data layer has shown).
    static QString message(Missing missing);

private:
    Database& m_database;
};

}  // namespace sandogh
