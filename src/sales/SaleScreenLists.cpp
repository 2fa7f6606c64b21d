#include "sales/SaleScreenLists.h"

#include "data/Database.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");
const QString kRoutine = QStringLiteral("Form_Load");

using List = PickListsRepository::List;

QList<SaleScreenLists::Item> readOne(Database& database, List list) {
    Session session = database.session(kModule, kRoutine);
    return PickListsRepository::read(session, list).value_or(QList<SaleScreenLists::Item>{});
}

}  // namespace

SaleScreenLists::SaleScreenLists(Database& database) : m_database(database) {}

SaleScreenLists::Lists SaleScreenLists::readAll() {
    Lists lists;
    Session session = m_database.session(kModule, kRoutine);
    const struct {
        List list;
        QList<Item>& items;
    } tables[] = {
        {List::DiscountKinds, lists.discountKinds}, {List::OverheadKinds, lists.overheadKinds},
        {List::Warehouses, lists.warehouses},       {List::ReturnCauses, lists.returnCauses},
        {List::PaymentKinds, lists.paymentKinds},   {List::Sellers, lists.sellers},
    };
    for (const auto& l : tables) {
        const auto items = PickListsRepository::read(session, l.list);
        if (items) {
            l.items = *items;
        } else {
            l.items.clear();
            lists.ok = false;
        }
    }
    return lists;
}

QList<SaleScreenLists::Item> SaleScreenLists::discountKinds() {
    return readOne(m_database, List::DiscountKinds);
}

QList<SaleScreenLists::Item> SaleScreenLists::overheadKinds() {
    return readOne(m_database, List::OverheadKinds);
}

QList<SaleScreenLists::Item> SaleScreenLists::warehouses() {
    return readOne(m_database, List::Warehouses);
}

QList<SaleScreenLists::Item> SaleScreenLists::returnCauses() {
    return readOne(m_database, List::ReturnCauses);
}

QList<SaleScreenLists::Item> SaleScreenLists::paymentKinds() {
    return readOne(m_database, List::PaymentKinds);
}

QList<SaleScreenLists::Item> SaleScreenLists::sellers() {
    return readOne(m_database, List::Sellers);
}

}  // namespace sandogh
