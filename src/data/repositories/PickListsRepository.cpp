#include "data/repositories/PickListsRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

struct Statement {
    QString sql;
    bool activeOnly;  // binds :active to 1
};

Statement statementOf(PickListsRepository::List list) {
    using List = PickListsRepository::List;
    switch (list) {
        case List::DiscountKinds:
            return {QStringLiteral("SELECT Id, Name FROM DiscountType"), false};
        case List::OverheadKinds:
            return {QStringLiteral("SELECT Id, Name FROM Overhead"), false};
        case List::Warehouses:
            return {QStringLiteral("SELECT Code, COALESCE(Name, '') AS Name FROM tblWarehouse "
                                   "WHERE ISActive = :active"),
                    true};
        case List::ReturnCauses:
            return {QStringLiteral("SELECT Id, Name FROM ReturnCause"), false};
        case List::PaymentKinds:
            return {
                QStringLiteral("SELECT Code, COALESCE(Name, '') FROM tblPaymentType ORDER BY Code"),
                false};
        case List::Sellers:
            return {QStringLiteral(
                        "SELECT ID, COALESCE(UserName, '') FROM Users WHERE Active = :active"),
                    true};
    }
    return {};
}

}  // namespace

std::optional<QList<PickListsRepository::Item>> PickListsRepository::read(Session& session,
                                                                          List list) {
    const Statement statement = statementOf(list);
    SqlQuery q(session, statement.sql);
    if (statement.activeOnly) {
        q.bind(QStringLiteral(":active"), 1);
    }
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<Item> items;
    while (q.next()) {
        items.append({q.integer(0), q.text(1).trimmed()});
    }
    return items;
}

}  // namespace sandogh
