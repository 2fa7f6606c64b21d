#pragma once

#include <QString>

namespace sandogh {

// The texts of saving a sale: the refusals of the checks in their order (each under
// "اخطار!"), the voucher notes, the account names of the voucher and the SMS hand-off.
class SaleSaveTexts {
public:
    // 1. The date box holds the empty mask.
    static QString dateMissing() { return QStringLiteral("تاريخ را وارد نمائيد!"); }
    // 2. The customer-required option and no customer.
    static QString customerMissing() { return QStringLiteral("مشتري انتخاب نشده است !"); }
    // 3. Text around the limit of the customer-above-amount option.
    static QString customerAboveAmountPrefix() {
        return QStringLiteral("انتخاب مشتري در خريد هاي بالاتر از ");
    }
    static QString customerAboveAmountSuffix() { return QStringLiteral(" ريال اجباري مي باشد "); }
    // 4. A customer that does not resolve.
    static QString customerNotResolved() {
        return QStringLiteral("مشتري به درستي انتخاب نشده است");
    }
    // 5. An empty grid.
    static QString noLines() { return QStringLiteral("كالايي جهت فروش انتخاب نشده است !"); }
    // 6. An empty invoice number.
    static QString noDocNo() { return QStringLiteral("شماره فاكتور وارد نشده است !"); }
    // 6. A typed number that another document of the kind and date has.
    static QString docNoTaken() { return QStringLiteral("شماره وارد شده تکراري است"); }
    // 7. Total - discount + overhead below zero.
    static QString negativeTotal() { return QStringLiteral("مبلغ فاکتور نمي تواند منفي باشد"); }
    // 8. An amount without its kind.
    static QString noDiscountKind() { return QStringLiteral("نوع تخفيف را مشخص کنيد"); }
    static QString noOverheadKind() { return QStringLiteral("نوع سربار را مشخص کنيد"); }
    // 9. The discount against its kind's factor (joined by a line break).
    static QString fixAmount() { return QStringLiteral("مبلغ وارده را اصلاح نمائيد"); }
    static QString discountFactorMismatch() {
        return QStringLiteral("مبلغ تخفيف با ضريب تخفيف همخواني ندارد");
    }
    static QString changeDiscountKind() { return QStringLiteral("نوع تخفيف را تغيير دهيد"); }
    static QString discountFactorZero() { return QStringLiteral("ضريب مبلغ تخفيف صفر ميباشد!"); }
    static QString giftByHand() {
        return QStringLiteral("براي اعمال تخفيف هديه بايد از کليد مربوطه اقدام نمائيد");
    }
    // 10. Received against the total: a question, then a refusal.
    static QString receivedLess() {
        return QStringLiteral(
            "مبلغ دريافت شده کمتر از قيمت کل بوده و فاکتور جاري بدهکار خواهد شد.");
    }
    static QString receivedMore() {
        return QStringLiteral("مبلغ دريافت شده بيش از مبلغ کل فاکتور مي باشد.");
    }
    // 12. No seller, no payment kind.
    static QString noSeller() { return QStringLiteral("فروشنده انتخاب نشده است !"); }
    static QString noPayType() { return QStringLiteral("نوع پرداخت را مشخص کنيد"); }
    // 13. Gift card: the invoice below the card amount; the amount above the credit with its hint.
    static QString invoiceBelowCard() {
        return QStringLiteral("مبلغ فاکتور نمي تواند از مبلغ کارت کمتر باشد");
    }
    static QString aboveCardCredit() {
        return QStringLiteral("مبلغ وارد شده بيشتر از مانده اعتبار کارت مي باشد!");
    }
    static QString hintOpen() { return QStringLiteral("[ "); }
    static QString hintAmount() { return QStringLiteral("مبلغ "); }
    static QString hintCash() { return QStringLiteral(" را نقدي دريافت نماييد"); }
    static QString hintClose() { return QStringLiteral(" ]"); }
    // 14. A return without its cause.
    static QString noReturnCause() {
        return QStringLiteral("انتخاب علت مرجوع کردن الزامي مي باشد");
    }
    // The save button while saving.
    static QString saving() { return QStringLiteral("...در حال ذخيره"); }
    // Voucher notes: kind + DocNo + voucherNoteDate + date.
    static QString saleVoucherNote() { return QStringLiteral("فاکتور فروش شماره "); }
    static QString returnVoucherNote() { return QStringLiteral("فاکتور برگشت از فروش شماره "); }
    static QString voucherNoteDate() { return QStringLiteral(" مورخ : "); }
    // Accounts of the voucher, by name.
    static QString cashBoxAccount() { return QStringLiteral("صندوق"); }
    static QString salesIncomeAccount() { return QStringLiteral("درآمد فروش کالا"); }
    static QString salesReturnAccount() { return QStringLiteral("برگشت از فروش"); }
    // The SMS hand-off: command, customer, number and total.
    static QString smsCommand() { return QStringLiteral("mnuSMSSenderAutomate,"); }
    static QString smsNumber() { return QStringLiteral("ش فاکتور: "); }
    static QString smsTotal() { return QStringLiteral("جمع فاکتور: "); }
};

}  // namespace sandogh
