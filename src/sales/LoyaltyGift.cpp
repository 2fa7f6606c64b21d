#include "sales/LoyaltyGift.h"

#include <cmath>

#include "data/Database.h"
#include "data/MessageService.h"
#include "data/SqlQuery.h"
#include "data/repositories/DiscountTypes.h"
#include "sales/SettlementTexts.h"
#include "settings/MachineSettings.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");
const QString kRoutine = QStringLiteral("btnBuyFactor_Click");
const QString kLineBreak = QStringLiteral("\r\n");

constexpr int kCustomerTypeNo = 10;
constexpr int kSupplierTypeNo = 11;
constexpr int kSale = 2;
constexpr int kSaleReturn = 3;

}  // namespace

LoyaltyGift::LoyaltyGift(Database& database, const MachineSettings& settings,
                         MessageService& messages)
    : m_database(database), m_settings(settings), m_messages(messages) {}

LoyaltyGift::Taken LoyaltyGift::taken(int customer) {
    Taken t;
    Session session = m_database.session(kModule, kRoutine);
    SqlQuery q(
        session,
        QStringLiteral("SELECT COALESCE(DiscountTakenTotal,0), COALESCE(LastDiscountTakenDate,'') "
                       "FROM Types WHERE (TypeNo = :customers OR TypeNo = :suppliers) AND "
                       "COALESCE(Active,0) = :active AND Counter = :counter"));
    q.bind(QStringLiteral(":customers"), kCustomerTypeNo)
        .bind(QStringLiteral(":suppliers"), kSupplierTypeNo)
        .bind(QStringLiteral(":active"), 1)
        .bind(QStringLiteral(":counter"), customer);
    if (q.exec() && q.next()) {
        t.found = true;
        t.gifts = q.number(0);
        t.lastDate = q.text(1).trimmed();
    }
    return t;
}

double LoyaltyGift::purchases(int customer) {
    Session session = m_database.session(kModule, kRoutine);
    return session.scalarNumber(
        QStringLiteral("SELECT COALESCE(SUM(CASE WHEN TransType = :sale THEN DocSum ELSE -DocSum "
                       "END),0) FROM Whs_QTYDocH WHERE CompanyID = :customer AND DocType IS NULL "
                       "AND TransType IN (:sales, :returns)"),
        {{QStringLiteral(":sale"), kSale},
         {QStringLiteral(":customer"), customer},
         {QStringLiteral(":sales"), kSale},
         {QStringLiteral(":returns"), kSaleReturn}});
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
