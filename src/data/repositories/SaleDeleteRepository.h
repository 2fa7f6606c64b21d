#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace sandogh {

class Session;

// The statements of deleting a saved document, each on the caller's session and inside
// its transaction. The stock lines and header are removed by StockDocumentWriter, the
// voucher by its procedures and the stock totals by sp_StockRepair; what is here is the
// rest: the look-up, the movements check, the loyalty gift given back, the gift card
// movements and the list of the group delete.
class SaleDeleteRepository {
public:
    // The document found by kind, date and number.
    struct Found {
        qint64 code = 0;
        qint64 documentHId = 0;  // 0: no voucher
        int discountTypeId = 0;
        int companyId = 0;  // 0: no customer
    };

    // A row of the group delete's list.
    struct ListRow {
        qint64 code = 0;
        QString docNo;
        QString kindName;  // the kind's name (kindName())
        QString customerName;
        QString docDate;
        int transType = 0;
        qint64 documentHId = 0;
        int companyId = 0;
    };

    // "خريد", "فروش", "مرجوعي فروش", "مرجوعي خريد" for TransType 1 to 4; empty otherwise.
    static QString kindName(int transType);

    // Empty when there is no such document; failed is set when the read failed.
    static std::optional<Found> find(Session& session, int transType, const QString& docNo,
                                     const QString& docDate, bool& failed);
    // Rows of OtherPayment on the document plus rows of tblSourcePayment on its voucher;
    // -1 when a read failed.
    static qint64 movements(Session& session, qint64 code, int transType, qint64 documentHId);
    // Whether the discount kind is a loyalty gift (DiscountType.IsImpactGift).
    static bool isGiftDiscount(Session& session, int discountTypeId);
    // Gifts given back to the customer (DiscountTakenTotal lowered).
    static bool giveGiftsBack(Session& session, int customer, int gifts);
    // The gift card movements that paid the document.
    static bool deleteGiftCardItems(Session& session, qint64 code);
    // The documents of every kind dated `date` (all dates when empty), newest key first.
    static QList<ListRow> list(Session& session, const QString& docDate);
};

}  // namespace sandogh
