#include "data/repositories/PartiesRepository.h"

#include <QRegularExpression>

#include "common/JalaliCalendar.h"
#include "data/Database.h"
#include "data/Dialect.h"
#include "data/SqlQuery.h"
#include "data/Transaction.h"
#include "data/procedures/ReturningInsert.h"
#include "data/repositories/PartyMessages.h"
#include "data/repositories/SearchKeys.h"
#include "data/repositories/TypedSearch.h"
#include "data/repositories/TypesRepository.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("PartiesRepository");

const QString kColumns = QStringLiteral(
    "T.Counter, T.TypeNo, COALESCE(T.Code, ''), COALESCE(T.Name, ''), COALESCE(T.Value1, ''), "
    "COALESCE(T.Value2, ''), COALESCE(T.Value5, ''), COALESCE(T.Value6, ''), "
    "COALESCE(T.Value7, ''), COALESCE(T.Value9, ''), COALESCE(T.CstGrpCode, 0), "
    "COALESCE(T.AccountingGroupID, 0), COALESCE(T.Credit, 0), COALESCE(T.Active, 0), "
    "COALESCE(G.Name, '')");

Party readParty(const SqlQuery& q) {
    Party p;
    p.counter = q.integer(0);
    p.typeNo = q.integer(1);
    p.code = q.text(2);
    p.name = q.text(3);
    p.family = q.text(4);
    p.telephone = q.text(5);
    p.mobile = q.text(6);
    p.email = q.text(7);
    p.address = q.text(8);
    p.birthday = q.text(9);
    p.customerGroup = q.integer(10);
    p.accountingGroupId = q.integer(11);
    p.credit = q.number(12);
    p.active = q.integer(13) == 1;
    p.groupName = q.text(14);
    return p;
}

// What a party writes, bound to ":" + the column's name.
procedures::ColumnValues partyColumns(const Party& p) {
    return {
        {QStringLiteral("Code"), p.code.trimmed()},
        {QStringLiteral("Name"), p.name},
        {QStringLiteral("Value1"), p.family},
        {QStringLiteral("NameKey"), SearchKeys::party(p.name, p.family)},
        {QStringLiteral("Value2"), p.telephone},
        {QStringLiteral("Value5"), p.mobile},
        {QStringLiteral("Value6"), p.email.trimmed()},
        {QStringLiteral("Value7"), p.address},
        {QStringLiteral("Value9"), p.birthday},
        {QStringLiteral("CstGrpCode"), p.customerGroup},
        {QStringLiteral("AccountingGroupID"), p.accountingGroupId},
        {QStringLiteral("Credit"), p.credit},
        {QStringLiteral("Active"), p.active ? 1 : 0},
    };
}

// Documents, payments, gift cards and cars that name a party.
const QString kUsesSql = QStringLiteral(
    "SELECT (SELECT COUNT(*) FROM Whs_QTYDocH WHERE CompanyID = :documents) + "
    "(SELECT COUNT(*) FROM OtherPayment WHERE CompanyID = :payments) + "
    "(SELECT COUNT(*) FROM tblSourcePayment WHERE TypesCounter = :supplierPayments) + "
    "(SELECT COUNT(*) FROM tblGiftCard WHERE CustomerID = :giftCards) + "
    "(SELECT COUNT(*) FROM Car WHERE Counter = :cars)");

SqlBinds usesBinds(int counter) {
    return {{QStringLiteral(":documents"), counter},
            {QStringLiteral(":payments"), counter},
            {QStringLiteral(":supplierPayments"), counter},
            {QStringLiteral(":giftCards"), counter},
            {QStringLiteral(":cars"), counter}};
}

}  // namespace

PartiesRepository::PartiesRepository(Database& database) : m_database(database) {}

bool PartiesRepository::isPartyCode(const QString& code) {
    static const QRegularExpression pattern(QStringLiteral("^[0-9]+(-[0-9]+)*$"));
    return pattern.match(code.trimmed()).hasMatch();
}

QList<Party> PartiesRepository::list(int typeNo, SearchColumn column, const QString& text,
                                     bool withInactive) {
    Session s = m_database.session(kModule, QStringLiteral("list"));
    QString sql = QStringLiteral("SELECT ") + kColumns +
                  QStringLiteral(
                      " FROM Types T LEFT JOIN tblCustomerGroup G ON G.Code = "
                      "T.CstGrpCode WHERE T.TypeNo = :typeNo");
    const Dialect& d = s.dialect();
    const auto searched = [&d](const QString& searchedColumn, const QString& parameter) {
        return TypedSearch::condition(d, searchedColumn, parameter);
    };
    switch (column) {
        case SearchColumn::Code:
            sql += QStringLiteral(" AND ") +
                   searched(QStringLiteral("COALESCE(T.Code, '')"), QStringLiteral(":pattern"));
            break;
        case SearchColumn::Name:
            sql += QStringLiteral(" AND ") +
                   searched(QStringLiteral("COALESCE(T.Name, '')"), QStringLiteral(":pattern"));
            break;
        case SearchColumn::Family:
            sql += QStringLiteral(" AND ") +
                   searched(QStringLiteral("COALESCE(T.Value1, '')"), QStringLiteral(":pattern"));
            break;
        case SearchColumn::Telephone:
            sql += QStringLiteral(" AND (") +
                   searched(QStringLiteral("COALESCE(T.Value2, '')"), QStringLiteral(":pattern")) +
                   QStringLiteral(" OR ") +
                   searched(QStringLiteral("COALESCE(T.Value5, '')"),
                            QStringLiteral(":patternAgain")) +
                   QLatin1Char(')');
            break;
        case SearchColumn::None:
            break;
    }
    if (!withInactive) {
        sql += QStringLiteral(" AND COALESCE(T.Active, 0) = 1");
    }
    sql += QStringLiteral(" ORDER BY T.Code");
    SqlQuery q(s, sql);
    q.bind(QStringLiteral(":typeNo"), typeNo);
    const QString pattern = TypedSearch::contains(text);
    if (column != SearchColumn::None) {
        q.bind(QStringLiteral(":pattern"), pattern);
    }
    if (column == SearchColumn::Telephone) {
        q.bind(QStringLiteral(":patternAgain"), pattern);
    }
    QList<Party> parties;
    if (!q.exec()) {
        return parties;
    }
    while (q.next()) {
        parties << readParty(q);
    }
    return parties;
}

std::optional<Party> PartiesRepository::find(int counter) {
    Session s = m_database.session(kModule, QStringLiteral("find"));
    SqlQuery q(s, QStringLiteral("SELECT ") + kColumns +
                      QStringLiteral(" FROM Types T LEFT JOIN tblCustomerGroup G ON G.Code = "
                                     "T.CstGrpCode WHERE T.Counter = :counter AND "
                                     "(T.TypeNo = :persons OR T.TypeNo = :companies)"));
    q.bind(QStringLiteral(":counter"), counter);
    q.bind(QStringLiteral(":persons"), Party::kPerson);
    q.bind(QStringLiteral(":companies"), Party::kCompany);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    return readParty(q);
}

QString PartiesRepository::newCode() {
    const qint64 code = TypesRepository(m_database).newPartyCode();
    return code > 0 ? QString::number(code) : QString();
}

CheckResult PartiesRepository::check(const Party& party) {
    using namespace partymessages;
    if (party.name.trimmed().isEmpty()) {
        return CheckResult::refused(listmessages::kEnterName, listmessages::kNoticeTitle);
    }
    const QString code = party.code.trimmed();
    if (code.isEmpty()) {
        return CheckResult::refused(kEnterCode, listmessages::kNoticeTitle);
    }
    if (!isPartyCode(code)) {
        return CheckResult::refused(kCodeDigitsOnly);
    }
    if (!party.birthday.isEmpty() &&
        !JalaliCalendar::isValidDateText(party.birthday.toStdString())) {
        return CheckResult::refused(kBadBirthday);
    }
    if (party.credit < 0) {
        return CheckResult::refused(kBadCredit);
    }
    // One run for persons and companies: "12-3" and "123" are the same number.
    Session s = m_database.session(kModule, QStringLiteral("check"));
    const QVariant count =
        s.scalar(QStringLiteral("SELECT COUNT(*) FROM Types WHERE (TypeNo = :persons OR TypeNo = "
                                ":companies) AND REPLACE(COALESCE(Code, ''), '-', '') = :digits "
                                "AND Counter <> :counter"),
                 {{QStringLiteral(":persons"), Party::kPerson},
                  {QStringLiteral(":companies"), Party::kCompany},
                  {QStringLiteral(":digits"), QString(code).remove(QLatin1Char('-'))},
                  {QStringLiteral(":counter"), party.counter}});
    if (!count.isValid()) {
        return CheckResult::failed();
    }
    if (count.toLongLong() > 0) {
        return CheckResult::refused(listmessages::kRepeatedCode);
    }
    return CheckResult::passed();
}

CheckResult PartiesRepository::save(Party& party) {
    if (party.typeNo != Party::kPerson && party.typeNo != Party::kCompany) {
        party.typeNo = Party::kPerson;
    }
    CheckResult checked = check(party);
    if (!checked.ok) {
        return checked;
    }
    Session s = m_database.session(kModule, QStringLiteral("save"));
    Transaction tx(s);
    if (!tx.isActive()) {
        return CheckResult::failed();
    }
    const procedures::ColumnValues values = partyColumns(party);
    if (party.isNew()) {
        procedures::ColumnValues row{{QStringLiteral("TypeNo"), party.typeNo}};
        row << values;
        const qint64 counter = procedures::ReturningInsert::allocate(
            s, QStringLiteral("Types"), QStringLiteral("Counter"), row);
        if (counter <= 0) {
            return CheckResult::failed();
        }
        if (!tx.commit()) {
            return CheckResult::failed();
        }
        party.counter = int(counter);
    } else {
        QStringList assignments;
        SqlBinds binds;
        for (const auto& [column, value] : values) {
            assignments << column + QStringLiteral(" = :") + column;
            binds.append({QLatin1Char(':') + column, value});
        }
        binds.append({QStringLiteral(":counter"), party.counter});
        if (!s.exec(QStringLiteral("UPDATE Types SET %1 WHERE Counter = :counter")
                        .arg(assignments.join(QStringLiteral(", "))),
                    binds) ||
            !tx.commit()) {
            return CheckResult::failed();
        }
    }
    party.code = party.code.trimmed();
    return CheckResult::passed(listmessages::kSaved, listmessages::kNoticeTitle);
}

CheckResult PartiesRepository::canDelete(int counter) {
    Session s = m_database.session(kModule, QStringLiteral("canDelete"));
    const QVariant uses = s.scalar(kUsesSql, usesBinds(counter));
    if (!uses.isValid() || uses.toLongLong() > 0) {
        return CheckResult::refused(partymessages::partyInUseRefusal());
    }
    return CheckResult::passed(listmessages::kDeleteQuestion);
}

CheckResult PartiesRepository::remove(int counter) {
    Session s = m_database.session(kModule, QStringLiteral("remove"));
    Transaction tx(s);
    if (!tx.isActive()) {
        return CheckResult::failed();
    }
    const QVariant uses = s.scalar(kUsesSql, usesBinds(counter));
    if (!uses.isValid()) {
        tx.rollback();
        return CheckResult::failed();
    }
    if (uses.toLongLong() > 0) {
        tx.rollback();
        return CheckResult::refused(partymessages::partyInUseRefusal());
    }
    const SqlBinds binds{{QStringLiteral(":counter"), counter},
                         {QStringLiteral(":persons"), Party::kPerson},
                         {QStringLiteral(":companies"), Party::kCompany}};
    if (!s.exec(QStringLiteral("DELETE FROM Types WHERE Counter = :counter AND "
                               "(TypeNo = :persons OR TypeNo = :companies)"),
                binds) ||
        !s.exec(QStringLiteral("DELETE FROM CustomerTag WHERE Counter = :counter"),
                {{QStringLiteral(":counter"), counter}}) ||
        !tx.commit()) {
        return CheckResult::failed();
    }
    return CheckResult::passed();
}

bool PartiesRepository::setActive(int counter, bool active) {
    Session s = m_database.session(kModule, QStringLiteral("setActive"));
    SqlQuery q(s, QStringLiteral("UPDATE Types SET Active = :active WHERE Counter = :counter AND "
                                 "(TypeNo = :persons OR TypeNo = :companies)"));
    q.bind(QStringLiteral(":active"), active ? 1 : 0);
    q.bind(QStringLiteral(":counter"), counter);
    q.bind(QStringLiteral(":persons"), Party::kPerson);
    q.bind(QStringLiteral(":companies"), Party::kCompany);
    return q.exec() && q.rowsAffected() != 0;
}

QList<PartiesRepository::Choice> PartiesRepository::customerGroups() {
    Session s = m_database.session(kModule, QStringLiteral("customerGroups"));
    SqlQuery q(s, QStringLiteral("SELECT Code, COALESCE(Name, '') FROM tblCustomerGroup "
                                 "ORDER BY Code"));
    QList<Choice> choices;
    if (q.exec()) {
        while (q.next()) {
            choices << Choice{q.integer(0), q.text(0), q.text(1)};
        }
    }
    return choices;
}

QList<PartiesRepository::Choice> PartiesRepository::accountingGroups() {
    Session s = m_database.session(kModule, QStringLiteral("accountingGroups"));
    // Parties hang on ledgers: the three-digit codes under a group.
    SqlQuery q(s, QStringLiteral("SELECT ID, COALESCE(Code, 0), COALESCE(Name, '') FROM "
                                 "tblAccountingGroup WHERE Code >= 100 ORDER BY Code"));
    QList<Choice> choices;
    if (q.exec()) {
        while (q.next()) {
            choices << Choice{q.integer(0), q.text(1), q.text(2)};
        }
    }
    return choices;
}

}  // namespace sandogh
