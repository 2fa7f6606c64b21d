#pragma once

#include <QString>

namespace sandogh {

// The texts the sale shows: grid headers, captions, labels and messages, exactly as
// the cashiers know them. Line breaks inside a message are CR LF.
class SaleTexts {
public:
    // A key or button of the screen that opens what the user may not open.
    static QString forbidden() { return QStringLiteral("دسترسي شما به اين بخش محدود شده است!"); }
    // Column headers of the line grid, columns 1 to 7 and 9.
    static QString headerRow() { return QStringLiteral("رديف"); }
    static QString headerBarcode() { return QStringLiteral("کد کالا - بارکد"); }
    static QString headerName() { return QStringLiteral("شرح کالا"); }
    static QString headerQuantity() { return QStringLiteral("تعداد"); }
    static QString headerUnitPrice() { return QStringLiteral("في واحد"); }
    static QString headerTax() { return QStringLiteral("ماليات"); }
    static QString headerTotal() { return QStringLiteral("قيمت کل"); }
    static QString headerSeller() { return QStringLiteral("فروشنده"); }
    // Captions and amount labels of the two kinds of document.
    static QString saleCaption() { return QStringLiteral("فاکتور فروش"); }
    static QString returnCaption() { return QStringLiteral("فاکتور مرجوعي فروش"); }
    static QString saleAmountLabel() { return QStringLiteral("مبلغ دريافت شده :"); }
    static QString returnAmountLabel() { return QStringLiteral("مبلغ پرداخت شده :"); }
    // Messages of ringing up.
    static QString enterPrice() { return QStringLiteral("قيمت را وارد نمائيد"); }
    static QString quantityNotAllowed() { return QStringLiteral("تعداد وارده غير مجاز مي باشد"); }
    static QString belowPurchasePrice() {
        return QStringLiteral("في فروش از قيمت خريد کمتر ميباشد!");
    }
    static QString quantityFirst() {
        return QStringLiteral(
            "لطفاً ابتدا بارکد مورد نظر خود را وارد کرده سپس تعداد آن را مشخص نماييد");
    }
    static QString lockedGoods() {
        return QStringLiteral(
            "کالاي مورد نظر قفل شده و قابل فروش نمي باشد\r\nبراي اطلاعات بيشتر با مدير سيستم تماس "
            "حاصل فرمائيد");
    }
    static QString lockedQuantity() { return QStringLiteral("تعداد کالاي قفل شده: "); }
    static QString saleableQuantity() { return QStringLiteral(" تعداد قابل فروش: "); }
    static QString salesTypeOnlyWhileEmpty() {
        return QStringLiteral(
            "براي تعيين نحوه فروش كالاهاي اضافه شده به ليست را حذف و مجددا كالاها را انتخاب "
            "نماييد");
    }
    static QString salesTypeFirst() {
        return QStringLiteral("ابتدا بايد نحوه فروش تعيين گردد سپس  كالاها انتخاب گردند. ");
    }
    // The status line under the barcode box when a text matches nothing; the text follows.
    static QString goodsNotFound() { return QStringLiteral("کالا یافت نشد"); }
    static QString unsavedSale() { return QStringLiteral("فاکتور جاري ذخيره نشده است !"); }
    // Customer summary and daily totals.
    static QString customerName() { return QStringLiteral("نام مشتري : "); }
    static QString customerPurchaseCount() { return QStringLiteral("تعداد دفعات خريد : "); }
    static QString customerBalance() { return QStringLiteral("مانده حساب مشتري : "); }
    static QString customerNetSales() { return QStringLiteral("خالص فروش مشتري : "); }
    static QString dailySales() { return QStringLiteral("فروش روزانه صندوق :"); }
    static QString dailyReceived() { return QStringLiteral("مبلغ روزانه صندوق :"); }
    // A customer that does not resolve.
    static QString customerNotResolved() {
        return QStringLiteral("مشتري به درستي انتخاب نشده است");
    }
};

}  // namespace sandogh
