#include "data/repositories/SaleCodes.h"

#include "data/Database.h"
#include "data/SqlQuery.h"

namespace sandogh {

SaleCodes::SaleCodes(Database& database) : m_database(database) {}

SaleCodes::Missing SaleCodes::firstMissing(std::optional<int> paymentKind,
                                           std::optional<int> discountKind, int station,
                                           int customer) {
    Session s = m_database.session(QStringLiteral("frmSale"), QStringLiteral("CheckCodes"));
    if (!s) {
        return Missing::Unreachable;
    }
    struct Look {
        bool given;
        const char* sql;
        int code;
        Missing missing;
    };
    const Look looks[] = {
        {paymentKind.value_or(0) != 0, "SELECT COUNT(*) FROM tblPaymentType WHERE Code = :code",
         paymentKind.value_or(0), Missing::PaymentKind},
        {discountKind.value_or(0) != 0, "SELECT COUNT(*) FROM DiscountType WHERE Id = :code",
         discountKind.value_or(0), Missing::DiscountKind},
        {station != 0, "SELECT COUNT(*) FROM Stations WHERE ID = :code", station, Missing::Station},
        {customer != 0,
         "SELECT COUNT(*) FROM Types WHERE Counter = :code AND (TypeNo = 10 OR TypeNo = 11)",
         customer, Missing::Customer},
    };
    for (const Look& look : looks) {
        if (!look.given) {
            continue;
        }
        const qint64 found = s.scalarInt64(QString::fromLatin1(look.sql),
                                           {{QStringLiteral(":code"), look.code}}, -1);
        if (found < 0) {
            return Missing::Unreachable;
        }
        if (found == 0) {
            return look.missing;
        }
    }
    return Missing::None;
}

bool SaleCodes::customerResolves(int counter) {
    Session s = m_database.session(QStringLiteral("frmSale"), QStringLiteral("CheckCustomer"));
    SqlQuery q(s, QStringLiteral("SELECT Counter FROM Types WHERE Counter = :counter AND "
                                 "(TypeNo = 10 OR TypeNo = 11)"));
    q.bind(QStringLiteral(":counter"), counter);
    return q.exec() && q.next();
}

QString SaleCodes::message(Missing missing) {
    switch (missing) {
        case Missing::PaymentKind:
            return QStringLiteral("نوع پرداخت انتخاب شده وجود ندارد");  // no such payment kind
        case Missing::DiscountKind:
            return QStringLiteral("نوع تخفيف انتخاب شده وجود ندارد");  // no such discount kind
        case Missing::Station:
            return QStringLiteral("صندوق انتخاب شده وجود ندارد");  // no such cash desk
        case Missing::Customer:
            return QStringLiteral("مشتري انتخاب شده وجود ندارد");  // no such customer
        case Missing::None:
        case Missing::Unreachable:
            break;
    }
    return {};
}

}  // namespace sandogh
