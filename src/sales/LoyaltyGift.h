#pragma once

#include <QString>
#include <optional>

namespace sandogh {

class Database;
class MachineSettings;
class MessageService;

// btnBuyFactor: the loyalty gift of a customer. Every BuyFactor rials the customer has
// bought for earns one gift of AmountRebate rials; gifts already taken (Types.
// DiscountTakenTotal, counted in gifts) are deducted. The gift goes into the document
// discount under a discount kind that counts as a gift (DiscountType.IsImpactGift).
//
// Purchases counted: the customer's sales (TransType 2) less the returns (TransType 3)
// of the sale screen (DocType NULL), by their line totals DocSum, over all dates of the
// fiscal year's database. Line totals rather than the amounts received, so that a gift
// given as a discount does not shrink the purchases that earn the next one.
class LoyaltyGift {
public:
    struct Taken {
        bool found = false;  // an active customer row exists
        double gifts = 0;    // DiscountTakenTotal
        QString lastDate;    // LastDiscountTakenDate, empty when none
    };

    // What btnBuyFactor gives.
    struct Offer {
        bool given = false;    // false: refused, the message has been shown
        double discount = 0;   // into txtDiscount; 0 when refused (the discount is cleared)
        int gifts = 0;         // whole gifts given
        double purchases = 0;  // net purchases counted
        Taken taken;
    };

    LoyaltyGift(Database& database, const MachineSettings& settings, MessageService& messages);

    // The whole button: settings and customer present, the gifts earned less those taken,
    // the refusal with the customer's figures, and the discount kind that must count as a
    // gift. customer 0 means none chosen.
    Offer offer(int customer, const QString& customerName, std::optional<int> discountTypeId);

    // The parts, one statement each.
    Taken taken(int customer);
    double purchases(int customer);
    // Whether a discount kind counts as a gift (DiscountType.IsImpactGift 1 or NULL);
    // false for 0 and for an unknown kind.
    bool countsAsGift(int discountTypeId);

    // Whole gifts earned by purchases in steps of buyFactor, less those taken; may be 0 or
    // negative. 0 when buyFactor is 0 or less.
    static int giftCount(double purchases, double buyFactor, double taken);
    // Whole gifts in a discount amount (what saving adds to DiscountTakenTotal).
    static int giftsInDiscount(double discount, double amountRebate);

private:
    Database& m_database;
    const MachineSettings& m_settings;
    MessageService& m_messages;
};

}  // namespace sandogh
