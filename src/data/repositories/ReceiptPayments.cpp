#include "data/repositories/ReceiptPayments.h"

#include "data/SqlQuery.h"

namespace sandogh {

std::optional<ReceiptPayments::Split> ReceiptPayments::read(Session& session, qint64 saleCode,
                                                            bool isReturn) {
    Split split;
    SqlQuery rows(session, QStringLiteral(
                               "SELECT COALESCE(A.Name, ''), COALESCE(D.Debt, 0), "
                               "COALESCE(D.Credit, 0) FROM Whs_QTYDocH H "
                               "INNER JOIN tblDocumentD D ON D.DocumentHID = H.DocumentHID "
                               "LEFT OUTER JOIN tblAccountingGroup A ON A.ID = D.AccountingGroupID "
                               "WHERE H.Code = :code ORDER BY D.ID"));
    rows.bind(QStringLiteral(":code"), saleCode);
    if (!rows.exec()) {
        return std::nullopt;
    }
    while (rows.next()) {
        const double paid = isReturn ? rows.number(2) : rows.number(1);
        if (paid != 0) {
            split.parts.append({rows.text(0).trimmed(), paid});
        }
    }
    SqlQuery card(session, QStringLiteral("SELECT COALESCE(SUM(Amount), 0) FROM tblGiftCardItem "
                                          "WHERE DocHCode = :code"));
    card.bind(QStringLiteral(":code"), saleCode);
    if (!card.exec()) {
        return std::nullopt;
    }
    split.giftCard = card.next() ? card.number(0) : 0;
    return split;
}

}  // namespace sandogh
