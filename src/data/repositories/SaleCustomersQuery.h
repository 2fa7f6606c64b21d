#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/repositories/SaleCustomer.h"

namespace sandogh {

class Session;

// The customers the till looks up: Types rows of TypeNo 10 or 11 with their group
// (tblCustomerGroup), narrowed by telephone (Value2 or Value3), mobile, name and family, or
// code. Texts are compared in their search form, as people type.
class SaleCustomersQuery {
public:
    enum class Mode { Telephone, Mobile, NameFamily, Code };

    // The customers the text finds; nullopt when the read failed.
    static std::optional<QList<SaleCustomer>> search(Session& session, Mode mode,
                                                     const QString& text);
    // One customer by Counter; an invalid customer when there is none or the read failed.
    static SaleCustomer byCounter(Session& session, int counter);
};

}  // namespace sandogh
