#include "sales/CustomerCardSummary.h"

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/SqlQuery.h"
#include "sales/SettlementTexts.h"

namespace sandogh {

CustomerCardSummary::CustomerCardSummary(Database& database) : m_database(database) {}

CustomerCardSummary::Figures CustomerCardSummary::figures(int customer) {
    Figures f;
    Session session =
        m_database.session(QStringLiteral("frmSale"), QStringLiteral("btnCalculateHesab_Click"));
    SqlQuery cards(session, QStringLiteral("SELECT COUNT(ID) AS countId, SUM(Amount) AS Amount "
                                           "FROM tblGiftCard WHERE CustomerID = :customer"));
    cards.bind(QStringLiteral(":customer"), customer);
    if (!cards.exec() || !cards.next()) {
        f.ok = false;
        return f;
    }
    f.cards = cards.int64(0);
    f.cardsTotal = cards.number(1);

    // A customer without a row has taken no gifts.
    SqlQuery gifts(session, QStringLiteral("SELECT COALESCE(DiscountTakenTotal,0), "
                                           "COALESCE(LastDiscountTakenDate,'') FROM Types WHERE "
                                           "Counter = :counter"));
    gifts.bind(QStringLiteral(":counter"), customer);
    if (!gifts.exec()) {
        f.ok = false;
    } else if (gifts.next()) {
        f.gifts = gifts.number(0);
        f.lastGift = gifts.text(1).trimmed();
    }
    return f;
}

QStringList CustomerCardSummary::lines(const Figures& figures) {
    return {SettlementTexts::cardsReceived() + QString::number(figures.cards),
            SettlementTexts::cardsReceivedTotal() +
                QString::fromStdString(AmountText::formatWhole(figures.cardsTotal)),
            SettlementTexts::giftsTaken() + QString::number(figures.gifts),
            SettlementTexts::lastGiftDate() + figures.lastGift};
}

}  // namespace sandogh
