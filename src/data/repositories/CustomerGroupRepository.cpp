#include "data/repositories/CustomerGroupRepository.h"

#include "data/Database.h"
#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/ReturningInsert.h"
#include "data/repositories/PartyMessages.h"
#include "data/repositories/TypedSearch.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("CustomerGroupRepository");

const QString kColumns = QStringLiteral(
    "Code, COALESCE(Name, ''), COALESCE(Color, 0), COALESCE(DiscountPercent, 0), "
    "COALESCE(BuyFactor, 0), COALESCE(AmountRebate, 0)");

CustomerGroup readGroup(const SqlQuery& q) {
    return {q.integer(0), q.text(1), q.int64(2), q.number(3), q.number(4), q.number(5)};
}

procedures::ColumnValues groupColumns(const CustomerGroup& g) {
    return {{QStringLiteral("Name"), g.name},
            {QStringLiteral("Color"), g.color},
            {QStringLiteral("DiscountPercent"), g.discountPercent},
            {QStringLiteral("BuyFactor"), g.buyFactor},
            {QStringLiteral("AmountRebate"), g.amountRebate}};
}

const QString kMembersSql = QStringLiteral(
    "SELECT COUNT(*) FROM Types WHERE CstGrpCode = :code AND (TypeNo = 10 OR TypeNo = 11)");

}  // namespace

CustomerGroupRepository::CustomerGroupRepository(Database& database) : m_database(database) {}

QList<CustomerGroup> CustomerGroupRepository::list(const QString& nameText) {
    Session s = m_database.session(kModule, QStringLiteral("list"));
    QString sql = QStringLiteral("SELECT ") + kColumns + QStringLiteral(" FROM tblCustomerGroup");
    if (!nameText.isEmpty()) {
        sql += QStringLiteral(" WHERE ") +
               TypedSearch::condition(s.dialect(), QStringLiteral("COALESCE(Name, '')"),
                                      QStringLiteral(":pattern"));
    }
    SqlQuery q(s, sql + QStringLiteral(" ORDER BY Code"));
    if (!nameText.isEmpty()) {
        q.bind(QStringLiteral(":pattern"), TypedSearch::contains(nameText));
    }
    QList<CustomerGroup> groups;
    if (q.exec()) {
        while (q.next()) {
            groups << readGroup(q);
        }
    }
    return groups;
}

std::optional<CustomerGroup> CustomerGroupRepository::find(int code) {
    Session s = m_database.session(kModule, QStringLiteral("find"));
    SqlQuery q(s, QStringLiteral("SELECT ") + kColumns +
                      QStringLiteral(" FROM tblCustomerGroup WHERE Code = :code"));
    q.bind(QStringLiteral(":code"), code);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    return readGroup(q);
}

int CustomerGroupRepository::nextCode() {
    Session s = m_database.session(kModule, QStringLiteral("nextCode"));
    const QVariant next =
        s.scalar(QStringLiteral("SELECT COALESCE(MAX(Code), 0) + 1 FROM tblCustomerGroup"));
    return next.isValid() ? next.toInt() : 0;
}

CheckResult CustomerGroupRepository::check(const CustomerGroup& group) {
    using namespace partymessages;
    if (group.name.trimmed().isEmpty()) {
        return CheckResult::refused(listmessages::kEnterName, listmessages::kNoticeTitle);
    }
    if (group.code < 0) {
        return CheckResult::refused(kEnterGroupCode);
    }
    if (group.discountPercent < 0 || group.discountPercent > 100) {
        return CheckResult::refused(kBadDiscountPercent);
    }
    return CheckResult::passed();
}

CheckResult CustomerGroupRepository::save(CustomerGroup& group) {
    CheckResult checked = check(group);
    if (!checked.ok) {
        return checked;
    }
    Session s = m_database.session(kModule, QStringLiteral("save"));
    Transaction tx(s);
    if (!tx.isActive()) {
        return CheckResult::failed();
    }
    const procedures::ColumnValues values = groupColumns(group);
    if (group.code == 0) {
        // Max + 1 inside the insert: two seats adding a group collide and one retries.
        const qint64 code = procedures::ReturningInsert::allocate(
            s, QStringLiteral("tblCustomerGroup"), QStringLiteral("Code"), values);
        if (code <= 0 || !tx.commit()) {
            return CheckResult::failed();
        }
        group.code = int(code);
    } else {
        QStringList assignments;
        SqlBinds binds;
        for (const auto& [column, value] : values) {
            assignments << column + QStringLiteral(" = :") + column;
            binds.append({QLatin1Char(':') + column, value});
        }
        binds.append({QStringLiteral(":code"), group.code});
        if (!s.exec(QStringLiteral("UPDATE tblCustomerGroup SET %1 WHERE Code = :code")
                        .arg(assignments.join(QStringLiteral(", "))),
                    binds) ||
            !tx.commit()) {
            return CheckResult::failed();
        }
    }
    return CheckResult::passed(listmessages::kSaved, listmessages::kNoticeTitle);
}

int CustomerGroupRepository::memberCount(int code) {
    Session s = m_database.session(kModule, QStringLiteral("memberCount"));
    const QVariant count = s.scalar(kMembersSql, {{QStringLiteral(":code"), code}});
    return count.isValid() ? int(count.toLongLong()) : -1;
}

CheckResult CustomerGroupRepository::canDelete(int code) {
    if (memberCount(code) != 0) {
        return CheckResult::refused(partymessages::groupInUseRefusal());
    }
    return CheckResult::passed(listmessages::kDeleteQuestion);
}

CheckResult CustomerGroupRepository::remove(int code) {
    Session s = m_database.session(kModule, QStringLiteral("remove"));
    Transaction tx(s);
    if (!tx.isActive()) {
        return CheckResult::failed();
    }
    const QVariant members = s.scalar(kMembersSql, {{QStringLiteral(":code"), code}});
    if (!members.isValid()) {
        tx.rollback();
        return CheckResult::failed();
    }
    if (members.toLongLong() > 0) {
        tx.rollback();
        return CheckResult::refused(partymessages::groupInUseRefusal());
    }
    if (!s.exec(QStringLiteral("DELETE FROM tblCustomerGroup WHERE Code = :code"),
                {{QStringLiteral(":code"), code}}) ||
        !tx.commit()) {
        return CheckResult::failed();
    }
    return CheckResult::passed();
}

}  // namespace sandogh
