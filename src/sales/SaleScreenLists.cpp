#include "sales/SaleScreenLists.h"

#include "data/Database.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");
const QString kRoutine = QStringLiteral("Form_Load");

const QString kDiscountKinds = QStringLiteral("SELECT Id, Name FROM DiscountType");
const QString kOverheadKinds = QStringLiteral("SELECT Id, Name FROM Overhead");
const QString kWarehouses = QStringLiteral(
    "SELECT Code, COALESCE(Name, '') AS Name FROM tblWarehouse WHERE ISActive = :active");
const QString kReturnCauses = QStringLiteral("SELECT Id, Name FROM ReturnCause");
const QString kPaymentKinds =
    QStringLiteral("SELECT Code, COALESCE(Name, '') FROM tblPaymentType ORDER BY Code");
const QString kSellers =
    QStringLiteral("SELECT ID, COALESCE(UserName, '') FROM Users WHERE Active = :active");

// Reads (code, name) rows; false when the statement failed.
bool readItems(Session& session, const QString& sql, bool activeOnly,
               QList<SaleScreenLists::Item>& items) {
    SqlQuery q(session, sql);
    if (activeOnly) {
        q.bind(QStringLiteral(":active"), 1);
    }
    if (!q.exec()) {
        return false;
    }
    while (q.next()) {
        items.append({q.integer(0), q.text(1).trimmed()});
    }
    return true;
}

QList<SaleScreenLists::Item> readOne(Database& database, const QString& sql, bool activeOnly) {
    Session session = database.session(kModule, kRoutine);
    QList<SaleScreenLists::Item> items;
    if (!readItems(session, sql, activeOnly, items)) {
        items.clear();
    }
    return items;
}

}  // namespace

SaleScreenLists::SaleScreenLists(Database& database) : m_database(database) {}

SaleScreenLists::Lists SaleScreenLists::readAll() {
    Lists lists;
    Session session = m_database.session(kModule, kRoutine);
    const struct {
        const QString& sql;
        bool activeOnly;
        QList<Item>& items;
    } statements[] = {
        {kDiscountKinds, false, lists.discountKinds}, {kOverheadKinds, false, lists.overheadKinds},
        {kWarehouses, true, lists.warehouses},        {kReturnCauses, false, lists.returnCauses},
        {kPaymentKinds, false, lists.paymentKinds},   {kSellers, true, lists.sellers},
    };
    for (const auto& s : statements) {
        if (!readItems(session, s.sql, s.activeOnly, s.items)) {
            s.items.clear();
            lists.ok = false;
        }
    }
    return lists;
}

QList<SaleScreenLists::Item> SaleScreenLists::discountKinds() {
    return readOne(m_database, kDiscountKinds, false);
}

QList<SaleScreenLists::Item> SaleScreenLists::overheadKinds() {
    return readOne(m_database, kOverheadKinds, false);
}

QList<SaleScreenLists::Item> SaleScreenLists::warehouses() {
    return readOne(m_database, kWarehouses, true);
}

QList<SaleScreenLists::Item> SaleScreenLists::returnCauses() {
    return readOne(m_database, kReturnCauses, false);
}

QList<SaleScreenLists::Item> SaleScreenLists::paymentKinds() {
    return readOne(m_database, kPaymentKinds, false);
}

QList<SaleScreenLists::Item> SaleScreenLists::sellers() {
    return readOne(m_database, kSellers, true);
}

}  // namespace sandogh
