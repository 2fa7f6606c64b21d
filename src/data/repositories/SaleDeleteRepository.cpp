#include "data/repositories/SaleDeleteRepository.h"

#include "data/Dialect.h"
#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

QString SaleDeleteRepository::kindName(int transType) {
    switch (transType) {
        case 1:
            return QStringLiteral("خريد");
        case 2:
            return QStringLiteral("فروش");
        case 3:
            return QStringLiteral("مرجوعي فروش");
        case 4:
            return QStringLiteral("مرجوعي خريد");
        default:
            return {};
    }
}

std::optional<SaleDeleteRepository::Found> SaleDeleteRepository::find(
    Session& session, int transType, const QString& docNo, const QString& docDate, bool& failed) {
    failed = false;
    SqlQuery q(session, QStringLiteral("SELECT Code, COALESCE(DocumentHID, 0), "
                                       "COALESCE(DiscountTypeId, 0), COALESCE(CompanyID, 0) FROM "
                                       "Whs_QTYDocH WHERE TransType = :transType AND DocDate = "
                                       ":docDate AND DocNo = :docNo"));
    q.bind(QStringLiteral(":transType"), transType)
        .bind(QStringLiteral(":docDate"), docDate)
        .bind(QStringLiteral(":docNo"), docNo);
    if (!q.exec()) {
        failed = true;
        return std::nullopt;
    }
    if (!q.next()) {
        return std::nullopt;
    }
    return Found{q.int64(0), q.int64(1), q.integer(2), q.integer(3)};
}

qint64 SaleDeleteRepository::movements(Session& session, qint64 code, int transType,
                                       qint64 documentHId) {
    qint64 count = 0;
    {
        SqlQuery q(session,
                   QStringLiteral("SELECT COUNT(*) AS Counter, Whs_QTYDocH.Code, "
                                  "Whs_QTYDocH.TransType FROM Whs_QTYDocH INNER JOIN OtherPayment "
                                  "ON Whs_QTYDocH.Code = OtherPayment.Code GROUP BY "
                                  "Whs_QTYDocH.Code, Whs_QTYDocH.TransType HAVING "
                                  "(Whs_QTYDocH.Code = :code) AND (Whs_QTYDocH.TransType = "
                                  ":transType)"));
        q.bind(QStringLiteral(":code"), code).bind(QStringLiteral(":transType"), transType);
        if (!q.exec()) {
            return -1;
        }
        while (q.next()) {
            count += q.int64(0);
        }
    }
    SqlQuery q(session,
               QStringLiteral("SELECT Code FROM tblSourcePayment WHERE DocumentHID = :hid"));
    q.bind(QStringLiteral(":hid"), documentHId);
    if (!q.exec()) {
        return -1;
    }
    while (q.next()) {
        ++count;
    }
    return count;
}

bool SaleDeleteRepository::isGiftDiscount(Session& session, int discountTypeId) {
    return discountTypeId != 0 &&
           session.scalarInt64(
               QStringLiteral("SELECT COALESCE(IsImpactGift, 0) FROM DiscountType WHERE Id = :id"),
               {{QStringLiteral(":id"), discountTypeId}}) != 0;
}

bool SaleDeleteRepository::giveGiftsBack(Session& session, int customer, int gifts) {
    return session.exec(
        QStringLiteral("UPDATE Types SET DiscountTakenTotal = DiscountTakenTotal "
                       "- :gifts WHERE Counter = :customer"),
        {{QStringLiteral(":gifts"), gifts}, {QStringLiteral(":customer"), customer}});
}

bool SaleDeleteRepository::deleteGiftCardItems(Session& session, qint64 code) {
    return session.exec(QStringLiteral("DELETE FROM tblGiftCardItem WHERE DocHCode = :code"),
                        {{QStringLiteral(":code"), code}});
}

QList<SaleDeleteRepository::ListRow> SaleDeleteRepository::list(Session& session,
                                                                const QString& docDate) {
    QList<ListRow> rows;
    const Dialect& d = session.dialect();
    QString sql = QStringLiteral(
                      "SELECT Whs_QTYDocH.Code, Whs_QTYDocH.DocNo, (CASE Whs_QTYDocH.TransType "
                      "WHEN 1 THEN :k1 WHEN 2 THEN :k2 WHEN 3 THEN :k3 WHEN 4 THEN :k4 END) AS "
                      "KindName, ") +
                  d.concat({QStringLiteral("COALESCE(Types.Name, '')"), QStringLiteral("' '"),
                            QStringLiteral("COALESCE(Types.Value1, '')")}) +
                  QStringLiteral(
                      ", Whs_QTYDocH.DocDate, Whs_QTYDocH.TransType, "
                      "COALESCE(Whs_QTYDocH.DocumentHID, 0), COALESCE(Whs_QTYDocH.CompanyID, 0) "
                      "FROM Whs_QTYDocH LEFT OUTER JOIN Types ON Whs_QTYDocH.CompanyID = "
                      "Types.Counter WHERE Whs_QTYDocH.DocType IS NULL");
    if (!docDate.trimmed().isEmpty()) {
        sql += QStringLiteral(" AND Whs_QTYDocH.DocDate = :docDate");
    }
    sql += QStringLiteral(" ORDER BY Whs_QTYDocH.Code DESC");
    SqlQuery q(session, sql);
    for (int kind = 1; kind <= 4; ++kind) {
        q.bind(QStringLiteral(":k%1").arg(kind), kindName(kind));
    }
    if (!docDate.trimmed().isEmpty()) {
        q.bind(QStringLiteral(":docDate"), docDate.trimmed());
    }
    if (!q.exec()) {
        return rows;
    }
    while (q.next()) {
        ListRow r;
        r.code = q.int64(0);
        r.docNo = q.text(1);
        r.kindName = q.text(2);
        r.customerName = q.text(3).trimmed();
        r.docDate = q.date(4);
        r.transType = q.integer(5);
        r.documentHId = q.int64(6);
        r.companyId = q.integer(7);
        rows << r;
    }
    return rows;
}

}  // namespace sandogh
