#include "sales/LoyaltyGift.h"

#include <cmath>

#include "data/Database.h"
#include "data/repositories/DiscountTypes.h"
#include "data/repositories/DocumentTotalsRepository.h"
#include "data/repositories/TypesRepository.h"
#include "sales/SettlementTexts.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");
const QString kRoutine = QStringLiteral("btnBuyFactor_Click");
const QString kLineBreak = QStringLiteral("\r\n");

constexpr int kSale = 2;
constexpr int kSaleReturn = 3;

}  // namespace

LoyaltyGift::LoyaltyGift(Database& database, const MachineSettings& settings,
                         MessageService& messages)
    : m_database(database), m_settings(settings), m_messages(messages) {}

LoyaltyGift::Taken LoyaltyGift::taken(int customer) {
    Session session = m_database.session(kModule, kRoutine);
    const GiftsTaken row = TypesRepository::giftsOfActiveParty(session, customer);
    Taken t;
    t.found = row.found;
    t.gifts = row.total;
    t.lastDate = row.lastDate;
    return t;
}

double LoyaltyGift::purchases(int customer) {
    Session session = m_database.session(kModule, kRoutine);
    return DocumentTotalsRepository::netPurchases(session, customer, kSale, kSaleReturn);
}

bool LoyaltyGift::countsAsGift(int discountTypeId) {
    Session session = m_database.session(kModule, kRoutine);
    return DiscountTypes::countsAsGift(session, discountTypeId).value_or(false);
}

int LoyaltyGift::giftCount(double purchases, double buyFactor, double taken) {
    if (buyFactor <= 0) {
        return 0;
    }
    const double earned = std::floor(purchases / buyFactor);
    return static_cast<int>(earned - std::floor(taken));
}

int LoyaltyGift::giftsInDiscount(double discount, double amountRebate) {
    if (amountRebate <= 0) {
        return 0;
    }
    return static_cast<int>(std::floor(std::floor(discount) / amountRebate));
}

LoyaltyGift::Offer LoyaltyGift::offer(int customer, const QString& customerName,
                                      std::optional<int> discountTypeId) {
    Offer o;
    const double buyFactor = m_settings.loyaltyBuyFactor();
    const double rebate = m_settings.loyaltyAmountRebate();
    if (buyFactor == 0 || rebate == 0 || customer == 0) {
        m_messages.show(SettlementTexts::fieldEmpty(), MessageStyle::Critical);
        return o;
    }
    o.taken = taken(customer);
    o.purchases = purchases(customer);
    const int gifts = giftCount(o.purchases, buyFactor, o.taken.gifts);
    if (gifts <= 0) {
        m_messages.show(SettlementTexts::dearSubscriber() + customerName + kLineBreak +
                            SettlementTexts::notAllowedGift() + kLineBreak +
                            SettlementTexts::giftsTaken() + QString::number(o.taken.gifts) +
                            kLineBreak + SettlementTexts::giftDate() + o.taken.lastDate,
                        MessageStyle::Information);
        return o;
    }
    if (!discountTypeId || !countsAsGift(*discountTypeId)) {
        m_messages.show(SettlementTexts::noGiftFactor(), MessageStyle::Critical);
        return o;
    }
    o.given = true;
    o.gifts = gifts;
    o.discount = gifts * rebate;
    return o;
}

}  // namespace sandogh
