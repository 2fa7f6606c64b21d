#include "data/procedures/TypesProcedures.h"

#include "data/SqlQuery.h"

namespace sandogh::procedures {

int sp_Types_GetNewCounter(Session& session, int /*typeNo*/) {
    const QVariant next =
        session.scalar(QStringLiteral("SELECT COALESCE(MAX(Counter), 0) + 1 FROM Types"));
    return next.isValid() ? next.toInt() : 0;
}

std::optional<TypesRow> sp_Types_SelectRow(Session& session, int counter) {
    SqlQuery q(session, QStringLiteral(
                            "SELECT Counter, TypeNo, Code, Name, NameEng, Note, Link, Value1, "
                            "Value2, Value3, Value4, Value5, Value6, Value7, Value8, Value9, "
                            "Value10, Value12, Value13, ID1, ID2, ID3, ID4, ID5, ID6, Account, "
                            "Credit, CstGrpCode, DiscountTakenTotal, LastDiscountTakenDate, "
                            "AccountingGroupID, Active, EconomicCode, NationalId, "
                            "RegistrationNumber, PostalCode FROM Types WHERE Counter = :counter"));
    q.bind(QStringLiteral(":counter"), counter);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    TypesRow row;
    row.counter = q.integer(QStringLiteral("Counter"));
    row.typeNo = q.integer(QStringLiteral("TypeNo"));
    row.code = q.text(QStringLiteral("Code"));
    row.name = q.text(QStringLiteral("Name"));
    row.nameEng = q.text(QStringLiteral("NameEng"));
    row.note = q.text(QStringLiteral("Note"));
    row.link = q.integer(QStringLiteral("Link"));
    for (int slot = 1; slot <= 10; ++slot) {
        row.values << q.text(QStringLiteral("Value%1").arg(slot));
    }
    row.value12 = q.text(QStringLiteral("Value12"));
    row.value13 = q.text(QStringLiteral("Value13"));
    for (int slot = 1; slot <= 6; ++slot) {
        row.ids[size_t(slot - 1)] = q.integer(QStringLiteral("ID%1").arg(slot));
    }
    row.account = q.int64(QStringLiteral("Account"));
    row.credit = q.number(QStringLiteral("Credit"));
    row.cstGrpCode = q.integer(QStringLiteral("CstGrpCode"));
    row.discountTakenTotal = q.integer(QStringLiteral("DiscountTakenTotal"));
    row.lastDiscountTakenDate = q.text(QStringLiteral("LastDiscountTakenDate"));
    row.accountingGroupId = q.integer(QStringLiteral("AccountingGroupID"));
    row.active = q.integer(QStringLiteral("Active"));
    row.economicCode = q.text(QStringLiteral("EconomicCode"));
    row.nationalId = q.text(QStringLiteral("NationalId"));
    row.registrationNumber = q.text(QStringLiteral("RegistrationNumber"));
    row.postalCode = q.text(QStringLiteral("PostalCode"));
    return row;
}

}  // namespace sandogh::procedures
