#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace sandogh {

class Session;

// The short (code, name) lists the sale screen offers: discount kinds (DiscountType),
// overhead kinds (Overhead), active warehouses (tblWarehouse), return causes (ReturnCause),
// payment kinds (tblPaymentType) and active sellers (Users).
class PickListsRepository {
public:
    enum class List {
        DiscountKinds,
        OverheadKinds,
        Warehouses,
        ReturnCauses,
        PaymentKinds,
        Sellers
    };

    struct Item {
        int code = 0;  // Id, Code or ID of the row
        QString name;
    };

    // The rows of the list, names trimmed; nothing when the statement failed.
    static std::optional<QList<Item>> read(Session& session, List list);
};

}  // namespace sandogh
