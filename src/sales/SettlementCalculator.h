#pragma once

#include <QString>
#include <optional>

namespace sandogh {

struct SaleSettlement;

// The arithmetic of the totals panel: what is payable after the document discount and the
// added charge, the discount of a percent, the change against what the customer handed
// over and the state label of that change. Amounts are rials; nothing here is rounded
// except the discount of a percent, which is whole rials like the box that shows it.
class SettlementCalculator {
public:
    // lblReturnCalculator: what the change means.
    enum class ChangeState {
        ToReceive,  // handed over less than payable
        Settled,    // exactly payable
        ToPay,      // more than payable: change to give back
    };

    // The amounts of one state of the panel.
    struct Amounts {
        double total = 0;       // txtSum
        double discount = 0;    // txtDiscount
        double overhead = 0;    // txtOther
        double payable = 0;     // txtSumReceived
        double handedOver = 0;  // txtReceivedPrice
        double change = 0;      // handed over - payable, signed
        ChangeState state = ChangeState::Settled;

        // txtReturn: the change as a positive amount, whichever way it goes.
        double shownChange() const;
        // lblReturnCalculator.
        QString stateText() const;
    };

    // total - discount + overhead.
    static double payable(double total, double discount, double overhead);
    // total x percent / 100 in whole rials (half away from zero); 0 for a percent of 0 or
    // less. A percent above 100 is taken as given: the save checks refuse a negative sale.
    static double discountOfPercent(double total, double percent);
    // handedOver - payable.
    static double change(double handedOver, double payable);
    static ChangeState stateOf(double handedOver, double payable);
    static QString stateText(ChangeState state);

    static Amounts compute(double total, double discount, double overhead, double handedOver);

    // Fills the amounts of a settlement (discount, percent, overhead, payable, handed over)
    // from the panel's figures; kinds, payments and texts are left as they are.
    static void fill(SaleSettlement& settlement, double total, double discount,
                     double discountPercent, double overhead, double handedOver);

    // The part of the payable amount a gift card pays: its balance, at most the payable.
    static double giftCardShare(double balance, double payable);
    // Whether the discount is the loyalty gift: one the gift button gave (given) that has
    // not been changed by hand since. A gift of nothing is none.
    static bool isLoyaltyGift(std::optional<double> given, double discount);
};

}  // namespace sandogh
