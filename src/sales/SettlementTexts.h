#pragma once

#include <QString>

namespace sandogh {

// The texts of settling a sale: the change states, the gift card and loyalty messages,
// the card summary lines and the payment kinds, exactly as the cashiers know them. Line
// breaks inside a message are CR LF.
class SettlementTexts {
public:
    // Amounts and change.
    static QString toReceive() { return QStringLiteral("مبلغ قابل دريافت"); }
    static QString settled() { return QStringLiteral("تسويه شد"); }
    static QString toPay() { return QStringLiteral("مبلغ قابل پرداخت"); }
    // Gift cards.
    static QString attention() { return QStringLiteral("توجه!"); }
    static QString askCardPassword() { return QStringLiteral("پسورد کارت را وارد نماييد"); }
    static QString wrongPassword() { return QStringLiteral("پسورد وارده صحيح نمي باشد"); }
    static QString tryAgain() { return QStringLiteral("دوباره تلاش نماييد"); }
    static QString cardExpired() { return QStringLiteral("کارت مورد نظر منقضي شده است"); }
    static QString seeManagement() { return QStringLiteral("لطفا به مديريت مراجعه فرماييد"); }
    static QString monthlyLimitReached() {
        return QStringLiteral("تعداد دفعات مجاز خريد کارت در اين ماه به پايان رسيده");
    }
    static QString cardInvalid() { return QStringLiteral("کارت مورد نظر فاقد اعتبار مي باشد."); }
    static QString rechargeAtManagement() {
        return QStringLiteral("براي شارژ مجدد به مديريت مراجعه شود.");
    }
    static QString cardReadFailed() {
        return QStringLiteral("خواندن اطلاعات کارت با شکست مواجه شد");
    }
    static QString makeSureOfCard() { return QStringLiteral("از وجود کارت اطمينان حاصل کنيد!"); }
    static QString summarySeparator() {
        return QStringLiteral("*****************************************");
    }
    static QString summaryLastCard() { return QStringLiteral("آخرين کارت : "); }
    static QString summaryExpiry() { return QStringLiteral("تاريخ اعتبار : "); }
    static QString summaryCharged() { return QStringLiteral("مبلغ شارژ شده : "); }
    static QString summaryUsed() { return QStringLiteral("مبلغ استفاده شده : "); }
    static QString summaryUsable() { return QStringLiteral("قابل استفاده : "); }
    static QString summaryCardsDelivered() { return QStringLiteral("تعداد کارت تحويل شده : "); }
    // Loyalty gift and the customer's cards.
    static QString fieldEmpty() {
        return QStringLiteral("مقدار اين فيلد نمي تواند خالي باشد\r\nلطفآ مقدار را مشخص نمائيد");
    }
    static QString dearSubscriber() { return QStringLiteral("مشترک محترم "); }
    static QString notAllowedGift() { return QStringLiteral(" شما مجاز به دريافت هديه نمي باشيد"); }
    static QString giftsTaken() { return QStringLiteral("تعداد هديه دريافتي : "); }
    static QString giftDate() { return QStringLiteral("تاريخ دريافت : "); }
    static QString noGiftFactor() { return QStringLiteral("ضريب تخفيف مشخص نيست"); }
    static QString cardsReceived() { return QStringLiteral("تعداد کارت دريافتي : "); }
    static QString cardsReceivedTotal() { return QStringLiteral("جمع کل کارت دريافتي : "); }
    static QString lastGiftDate() { return QStringLiteral("آخرين هديه در تاريخ : "); }
    // Payment split.
    static QString kindCash() { return QStringLiteral("نقدي"); }
    static QString kindBankTerminal() { return QStringLiteral("پوز بانکي"); }
    static QString splitMismatch() {
        return QStringLiteral("جمع مبالغ پرداخت با مبلغ قابل پرداخت برابر نيست");
    }
    static QString splitRows() { return QStringLiteral("جمع رديف ها : "); }
    static QString splitPayable() { return QStringLiteral("مبلغ قابل پرداخت : "); }
    static QString splitIncompleteRow() {
        return QStringLiteral("حساب و مبلغ پرداخت را مشخص کنيد");
    }
    static QString kindCheque() { return QStringLiteral("چک"); }
};

}  // namespace sandogh
