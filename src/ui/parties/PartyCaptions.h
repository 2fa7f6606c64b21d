#pragma once

#include <QString>

namespace sandogh::partycaptions {

// Captions of the customer, supplier and customer group screens.

inline const QString kCustomersTitle = QStringLiteral("مشتريان");
inline const QString kSuppliersTitle = QStringLiteral("تأمين‌کنندگان");
inline const QString kCustomerTitle = QStringLiteral("مشخصات مشتري");
inline const QString kSupplierTitle = QStringLiteral("مشخصات تأمين‌کننده");
inline const QString kGroupsTitle = QStringLiteral("گروه‌هاي مشتري");

inline const QString kCode = QStringLiteral("کد");
inline const QString kName = QStringLiteral("نام");
inline const QString kCompanyName = QStringLiteral("نام شرکت");
inline const QString kFamily = QStringLiteral("نام خانوادگي");
inline const QString kContact = QStringLiteral("نام رابط");
inline const QString kTelephone = QStringLiteral("تلفن");
inline const QString kMobile = QStringLiteral("تلفن همراه");
inline const QString kEmail = QStringLiteral("پست الکترونيک");
inline const QString kAddress = QStringLiteral("نشاني");
inline const QString kBirthday = QStringLiteral("تاريخ تولد");
inline const QString kGroup = QStringLiteral("گروه مشتري");
inline const QString kAccountingGroup = QStringLiteral("حساب معين");
inline const QString kCredit = QStringLiteral("اعتبار");
inline const QString kActive = QStringLiteral("فعال");

inline const QString kDiscountPercent = QStringLiteral("درصد تخفيف");
inline const QString kBuyFactor = QStringLiteral("ضريب خريد");
inline const QString kAmountRebate = QStringLiteral("مبلغ پاداش");
inline const QString kColor = QStringLiteral("رنگ");

inline const QString kNew = QStringLiteral("جديد");
inline const QString kEdit = QStringLiteral("ويرايش");
inline const QString kDelete = QStringLiteral("حذف");
inline const QString kSave = QStringLiteral("ذخيره");
inline const QString kExit = QStringLiteral("خروج");
inline const QString kSearch = QStringLiteral("جستجو:");
inline const QString kSearchIn = QStringLiteral("در:");
inline const QString kOnlyActive = QStringLiteral("فقط فعال‌ها");

}  // namespace sandogh::partycaptions
