#include "sales/SaleSaveChecks.h"

#include <cmath>

#include "common/AmountText.h"

#include "data/Database.h"
#include "data/repositories/DiscountTypes.h"
#include "data/repositories/GiftCardRepository.h"
#include "data/repositories/SaleCodes.h"
#include "sales/SaleChecks.h"
#include "sales/SaleSaveTexts.h"
#include "sales/SaleSession.h"
#include "sales/SaleSettlement.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

const QString kModule = QStringLiteral("frmSale");
const QString kEmptyDate = QStringLiteral("____/__/__");
const QString kLineBreak = QStringLiteral("\r\n");

// An amount in the messages, "##,###".
QString amountText(double value) {
    return QString::fromStdString(AmountText::formatWhole(value));
}

}  // namespace

SaleSaveChecks::SaleSaveChecks(Database& database, const MachineSettings& settings,
                               MessageService& messages)
    : m_database(database), m_settings(settings), m_messages(messages) {}

double SaleSaveChecks::payable(const SaleSession& sale, const SaleSettlement& settlement) {
    return sale.total() - settlement.discount + settlement.overhead;
}

double SaleSaveChecks::received(const SaleSession& sale, const SaleSettlement& settlement) {
    return settlement.received.value_or(payable(sale, settlement));
}

bool SaleSaveChecks::refuse(const QString& text) {
    m_messages.show(text, MessageStyle::Critical);
    return false;
}

SaleSaveCheck SaleSaveChecks::run(SaleSession& sale, const SaleSettlement& settlement) {
    const QString date = sale.saleDate().trimmed();
    if (date.isEmpty() || date == kEmptyDate) {
        refuse(SaleSaveTexts::dateMissing());
        return SaleSaveCheck::Date;
    }
    const bool hasCustomer = sale.customer().isValid();
    if (m_settings.customerMandatory() && !hasCustomer) {
        refuse(SaleSaveTexts::customerMissing());
        return SaleSaveCheck::CustomerRequired;
    }
    const double limit = m_settings.customerRequiredAbove();
    if (limit > 0 && sale.total() > limit && !hasCustomer) {
        refuse(SaleSaveTexts::customerAboveAmountPrefix() + amountText(limit) +
               SaleSaveTexts::customerAboveAmountSuffix());
        return SaleSaveCheck::CustomerAboveAmount;
    }
    if (m_settings.customerCheckEnabled() && hasCustomer &&
        !SaleCodes(m_database).customerResolves(sale.customer().counter)) {
        refuse(SaleSaveTexts::customerNotResolved());
        return SaleSaveCheck::CustomerCheck;
    }
    if (sale.isEmpty()) {
        refuse(SaleSaveTexts::noLines());
        return SaleSaveCheck::EmptyGrid;
    }
    if (settlement.docNo.trimmed().isEmpty()) {
        refuse(SaleSaveTexts::noDocNo());
        return SaleSaveCheck::DocNo;
    }
    const double toPay = payable(sale, settlement);
    if (toPay < 0) {
        refuse(SaleSaveTexts::negativeTotal());
        return SaleSaveCheck::NegativeTotal;
    }
    if (settlement.discount != 0 && !settlement.discountTypeId) {
        refuse(SaleSaveTexts::noDiscountKind());
        return SaleSaveCheck::Kinds;
    }
    if (settlement.overhead != 0 && !settlement.overheadId) {
        refuse(SaleSaveTexts::noOverheadKind());
        return SaleSaveCheck::Kinds;
    }
    if (const SaleSaveCheck factor = discountFactor(settlement); factor != SaleSaveCheck::None) {
        return factor;
    }
    if (sale.mode() == SaleMode::Sale) {
        const double got = received(sale, settlement);
        if (got < toPay &&
            !m_messages.show(SaleSaveTexts::receivedLess(), MessageStyle::QuestionYesNo)) {
            return SaleSaveCheck::Received;
        }
        if (got > toPay) {
            refuse(SaleSaveTexts::receivedMore());
            return SaleSaveCheck::Received;
        }
    }
    if (const SaleSaveCheck onLines = lines(sale); onLines != SaleSaveCheck::None) {
        return onLines;
    }
    for (const SaleLine& line : sale.lines()) {
        if (line.sellerId == 0 && line.seller.trimmed().isEmpty()) {
            refuse(SaleSaveTexts::noSeller());
            return SaleSaveCheck::SellerAndPayment;
        }
    }
    if (!settlement.payType && settlement.payments.isEmpty()) {
        refuse(SaleSaveTexts::noPayType());
        return SaleSaveCheck::SellerAndPayment;
    }
    if (const SaleSaveCheck card = giftCard(sale, settlement); card != SaleSaveCheck::None) {
        return card;
    }
    if (sale.mode() == SaleMode::Return && m_settings.returnCauseRequired() &&
        !settlement.returnCauseId) {
        refuse(SaleSaveTexts::noReturnCause());
        return SaleSaveCheck::ReturnCause;
    }
    return codes(sale, settlement);
}

SaleSaveCheck SaleSaveChecks::lines(const SaleSession& sale) {
    m_failedRow = -1;
    // A return brings goods back: there is nothing to count against.
    const bool selling = sale.mode() == SaleMode::Sale;
    SaleChecks checks(m_messages);
    SaleChecks::Result r;
    if (selling && m_settings.stockCheckEnabled()) {
        Session session = m_database.session(kModule, QStringLiteral("CheckStock"));
        r = checks.stock(session, sale.lines(), sale.warehouse());
    }
    if (r.ok && selling && m_settings.itemLock()) {
        Session session = m_database.session(kModule, QStringLiteral("CheckLockedGoods"));
        r = checks.lockedGoods(session, sale.lines(), sale.warehouse());
    }
    if (r.ok && m_settings.buySalePriceChecking()) {
        Session session = m_database.session(kModule, QStringLiteral("CheckPriceFloor"));
        r = checks.priceFloor(session, sale.lines());
    }
    m_failedRow = r.row;
    return r.ok ? SaleSaveCheck::None : SaleSaveCheck::Lines;
}

// The only discount kind with a factor is the loyalty gift kind (the fifth of the list):
// its discount is a whole number of gifts, each worth the shop's AmountRebate, so its
// factor is AmountRebate and that of any other kind is "none" (no check). Its discount
// must come from the gift button (btnBuyFactor), which computes it as such a multiple;
// one typed by hand is refused before its amount is looked at. Then a zero factor
// refuses (no gift can be counted), and an amount that is not a whole multiple of the
// factor refuses as not matching it. Whether a kind counts towards the gift total
// (IsImpactGift) has no bearing here.
SaleSaveCheck SaleSaveChecks::discountFactor(const SaleSettlement& settlement) {
    if (settlement.discount == 0 || !settlement.discountTypeId) {
        return SaleSaveCheck::None;
    }
    Session s = m_database.session(kModule, QStringLiteral("CheckDiscountFactor"));
    const std::optional<int> giftKind = DiscountTypes::loyaltyGiftKind(s);
    if (!giftKind) {
        return SaleSaveCheck::DiscountFactor;
    }
    if (*giftKind == 0 || *giftKind != *settlement.discountTypeId) {
        return SaleSaveCheck::None;
    }
    if (!settlement.loyaltyGift) {
        refuse(SaleSaveTexts::giftByHand());
        return SaleSaveCheck::DiscountFactor;
    }
    const double factor = m_settings.loyaltyAmountRebate();
    if (factor == 0) {
        refuse(SaleSaveTexts::changeDiscountKind() + kLineBreak +
               SaleSaveTexts::discountFactorZero());
        return SaleSaveCheck::DiscountFactor;
    }
    const double gifts = settlement.discount / factor;
    if (gifts != std::floor(gifts)) {
        refuse(SaleSaveTexts::fixAmount() + kLineBreak + SaleSaveTexts::discountFactorMismatch());
        return SaleSaveCheck::DiscountFactor;
    }
    return SaleSaveCheck::None;
}

// The codes the sale names exist: the payment kind, discount kind, station and customer
// were picked from lists, but another desk or the back office may have removed one since.
SaleSaveCheck SaleSaveChecks::codes(const SaleSession& sale, const SaleSettlement& settlement) {
    const SaleCodes::Missing missing =
        SaleCodes(m_database)
            .firstMissing(settlement.payType, settlement.discountTypeId, sale.station(),
                          sale.customer().counter);
    if (missing == SaleCodes::Missing::None) {
        return SaleSaveCheck::None;
    }
    if (missing != SaleCodes::Missing::Unreachable) {
        refuse(SaleCodes::message(missing));
    }
    return SaleSaveCheck::Codes;
}

SaleSaveCheck SaleSaveChecks::giftCard(const SaleSession& sale, const SaleSettlement& settlement) {
    if (settlement.giftCardId == 0 || settlement.giftCardAmount <= 0) {
        return SaleSaveCheck::None;
    }
    if (payable(sale, settlement) < settlement.giftCardAmount) {
        refuse(SaleSaveTexts::invoiceBelowCard());
        return SaleSaveCheck::GiftCard;
    }
    const std::optional<double> credit = giftCardCredit(m_database, settlement.giftCardId);
    if (!credit) {
        return SaleSaveCheck::GiftCard;
    }
    if (settlement.giftCardAmount > *credit) {
        const double rest = settlement.giftCardAmount - *credit;
        refuse(SaleSaveTexts::aboveCardCredit() + kLineBreak + SaleSaveTexts::hintOpen() +
               SaleSaveTexts::hintAmount() + amountText(rest) + kLineBreak +
               SaleSaveTexts::hintCash() + SaleSaveTexts::hintClose());
        return SaleSaveCheck::GiftCard;
    }
    return SaleSaveCheck::None;
}

std::optional<double> SaleSaveChecks::giftCardCredit(Database& database, qint64 cardId) {
    Session s = database.session(kModule, QStringLiteral("GiftCardCredit"));
    return GiftCardRepository::credit(s, cardId);
}

}  // namespace sandogh
