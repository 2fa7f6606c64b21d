#include "sales/CustomerCardSummary.h"

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/repositories/GiftCardRepository.h"
#include "data/repositories/TypesRepository.h"
#include "sales/SettlementTexts.h"

namespace sandogh {

CustomerCardSummary::CustomerCardSummary(Database& database) : m_database(database) {}

CustomerCardSummary::Figures CustomerCardSummary::figures(int customer) {
    Figures f;
    Session session =
        m_database.session(QStringLiteral("frmSale"), QStringLiteral("btnCalculateHesab_Click"));
    const auto cards = GiftCardRepository::cardsOf(session, customer);
    if (!cards) {
        f.ok = false;
        return f;
    }
    f.cards = cards->count;
    f.cardsTotal = cards->total;
    // A customer without a row has taken no gifts.
    const auto gifts = TypesRepository::giftsOfRow(session, customer);
    if (!gifts) {
        f.ok = false;
    } else if (gifts->found) {
        f.gifts = gifts->total;
        f.lastGift = gifts->lastDate;
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
