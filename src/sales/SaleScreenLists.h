#pragma once

#include <QList>
#include <QString>

#include "data/repositories/PickListsRepository.h"

namespace sandogh {

class Database;

// The pick lists the sale screen fills when it opens: discount kinds (cmbDiscountType),
// overhead kinds (cmbOverhead), active warehouses (cmbWarehouseSelector), return causes
// (cmbReturnCause), payment kinds (cmbPayType) and active sellers (frmUserSelect). Each
// list is one statement; a list whose look-up failed is left empty and the failure has
// been reported by the data layer.
class SaleScreenLists {
public:
    using Item = PickListsRepository::Item;
    struct Lists {
        QList<Item> discountKinds;
        QList<Item> overheadKinds;
        QList<Item> warehouses;
        QList<Item> returnCauses;
        QList<Item> paymentKinds;
        QList<Item> sellers;
        bool ok = true;  // false when any of the look-ups failed
    };

    explicit SaleScreenLists(Database& database);

    // All six lists on one session.
    Lists readAll();

    QList<Item> discountKinds();
    QList<Item> overheadKinds();
    QList<Item> warehouses();
    QList<Item> returnCauses();
    QList<Item> paymentKinds();
    QList<Item> sellers();

private:
    Database& m_database;
};

}  // namespace sandogh
