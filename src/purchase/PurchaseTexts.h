#pragma once

#include <QString>

namespace sandogh {

// The texts the purchase screen shows and writes.
class PurchaseTexts {
public:
    // The screen's caption for a purchase and for a purchase return.
    static QString purchaseCaption() { return QStringLiteral("خريد کالا"); }
    static QString returnCaption() { return QStringLiteral("برگشت از خريد"); }
    // An unknown barcode typed into the barcode box.
    static QString goodsNotFound() { return QStringLiteral(" !كالاي مورد نظر يافت نشد "); }
    // The checks before saving, in their order.
    static QString noSupplier() { return QStringLiteral("منبع خريد را مشخص کنيد"); }
    static QString noAccountingGroup() { return QStringLiteral("کد حسابداري را مشخص نمائيد"); }
    static QString noDocNo() { return QStringLiteral(" !شماره فاكتور وارد نشده است"); }
    static QString noLines() { return QStringLiteral("!كالايي جهت خريد انتخاب نشده است"); }
    // The voucher's note: kind, number, a space, the date's label and the date.
    static QString purchaseVoucherNote() { return QStringLiteral("فاکتور خريد شماره "); }
    static QString returnVoucherNote() { return QStringLiteral("فاکتور برگشت از خريد شماره "); }
    static QString voucherNoteDate() { return QStringLiteral(" مورخ : "); }
    // A supplier without an accounting group stops the save.
    static QString supplierWithoutAccount() { return QStringLiteral("کد طرف حساب مشخص نيست"); }
    // After a successful save, titled noticeTitle().
    static QString saved() { return QStringLiteral("اطلاعات جديد با موفقيت ذخيره گرديد."); }
    static QString noticeTitle() { return QStringLiteral("توجه!"); }
    // An action the user's permissions do not allow.
    static QString forbidden() { return QStringLiteral("دسترسي شما به اين بخش محدود شده است!"); }
    // An invoice number with anything but digits.
    static QString docNoNotANumber() { return QStringLiteral("شماره فاکتور بايد عدد باشد"); }
    // No pre-invoice or document under the number given.
    static QString sourceNotFound() { return QStringLiteral("سندي با اين شماره يافت نشد"); }
    // A supplier's invoice number already saved for the same supplier: refused.
    static QString docNoRepeatedForSupplier() {
        return QStringLiteral("اين شماره فاکتور براي همين تأمين کننده قبلاً ثبت شده است");
    }
    // The number is taken by a document of another supplier: the user may go on.
    static QString docNoRepeatedAsk() {
        return QStringLiteral("شماره فاکتور تکراري است. با اين شماره ذخيره شود؟");
    }
};

}  // namespace sandogh
