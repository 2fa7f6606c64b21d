#include "data/repositories/SaleEditRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"

namespace sandogh {

QList<SaleEditRepository::Line> SaleEditRepository::lines(Session& session, qint64 code,
                                                          bool* failed) {
    QList<Line> result;
    SqlQuery q(session, QStringLiteral("SELECT D.ID, D.Code, D.EAN_Code, D.Qty, D.MFee, "
                                       "D.Discount, D.Fee, D.Price, D.TaxValue, D.UserID, G.Name "
                                       "FROM Whs_QTYDocD D LEFT OUTER JOIN Goods G ON G.EAN_Code = "
                                       "D.EAN_Code WHERE D.Code = :code ORDER BY D.ID"));
    q.bind(QStringLiteral(":code"), code);
    const bool ok = q.exec();
    if (failed != nullptr) {
        *failed = !ok;
    }
    if (!ok) {
        return result;
    }
    while (q.next()) {
        Line l;
        l.line.id = q.int64(0);
        l.line.code = q.int64(1);
        l.line.eanCode = q.text(2);
        l.line.qty = q.number(3);
        l.line.mFee = q.number(4);
        l.line.discount = q.number(5);
        l.line.fee = q.number(6);
        l.line.price = q.number(7);
        l.line.taxValue = q.number(8);
        if (!q.isNull(9)) {
            l.line.userId = q.integer(9);
        }
        l.name = q.text(10);
        result << l;
    }
    return result;
}

bool SaleEditRepository::deleteLine(Session& session, qint64 lineId) {
    return session.exec(QStringLiteral("DELETE FROM Whs_QTYDocD WHERE ID = :id"),
                        {{QStringLiteral(":id"), lineId}});
}

bool SaleEditRepository::updateHeader(Session& session, qint64 code, double discount, double docSum,
                                      double received) {
    return session.exec(QStringLiteral("UPDATE Whs_QTYDocH SET Discount = :discount, DocSum = "
                                       ":docSum, ReceivedPrice = :received WHERE Code = :code"),
                        {{QStringLiteral(":discount"), discount},
                         {QStringLiteral(":docSum"), docSum},
                         {QStringLiteral(":received"), received},
                         {QStringLiteral(":code"), code}});
}

QList<procedures::VoucherLine> SaleEditRepository::voucherRows(Session& session, qint64 documentHId,
                                                               bool* failed) {
    QList<procedures::VoucherLine> rows;
    SqlQuery q(session, QStringLiteral("SELECT ID, AccountingGroupID, Debt, Credit, Comment FROM "
                                       "tblDocumentD WHERE DocumentHID = :hid ORDER BY ID"));
    q.bind(QStringLiteral(":hid"), documentHId);
    const bool ok = q.exec();
    if (failed != nullptr) {
        *failed = !ok;
    }
    while (ok && q.next()) {
        procedures::VoucherLine row;
        row.id = q.int64(0);
        row.documentHId = documentHId;
        row.accountingGroupId = q.integer(1);
        row.debt = q.number(2);
        row.credit = q.number(3);
        row.comment = q.text(4);
        rows << row;
    }
    return rows;
}

}  // namespace sandogh
