#pragma once

#include <QString>

namespace sandogh::catalogcaptions {

// Column headers and captions of the parameter, code level and goods screens.

// The columns of a parameter list and of the picker.
inline const QString kCode = QStringLiteral("کد");
inline const QString kName = QStringLiteral("نام");
inline const QString kNameEng = QStringLiteral("نام لاتين");
inline const QString kNote = QStringLiteral("توضيح");

// The columns of the code levels.
inline const QString kLevelName = QStringLiteral("نام مشخصه");
inline const QString kLevelNameEnglish = QStringLiteral("نام لاتين مشخصه");

// The counted or weighed choice of an article.
inline const QString kCounted = QStringLiteral("کالا تعدادي");
inline const QString kWeighed = QStringLiteral("کالاي وزني");

// Put before the parent level's name over the parent values of a level value.
inline const QString kLevelHeading = QStringLiteral(" Level:");

// Buttons.
inline const QString kNew = QStringLiteral("جديد");
inline const QString kEdit = QStringLiteral("ويرايش");
inline const QString kDelete = QStringLiteral("حذف");
inline const QString kExit = QStringLiteral("خروج");
inline const QString kSave = QStringLiteral("ذخيره");
inline const QString kChoose = QStringLiteral("انتخاب");
inline const QString kValues = QStringLiteral("مقادير");
inline const QString kDeactivate = QStringLiteral("غيرفعال کردن");
inline const QString kPick = QStringLiteral("...");
inline const QString kClear = QStringLiteral("×");

// The search row of the lists.
inline const QString kSearch = QStringLiteral("جستجو:");
inline const QString kSearchIn = QStringLiteral("در:");

// The other columns of the code levels.
inline const QString kLevelTypeNo = QStringLiteral("شماره");
inline const QString kDigitQty = QStringLiteral("تعداد رقم");
inline const QString kParameterLevel = QStringLiteral("ترتيب");

// The goods screen and the goods list.
inline const QString kBarcode = QStringLiteral("بارکد");
inline const QString kSpecCode = QStringLiteral("کد مخصوص");
inline const QString kGoodsName = QStringLiteral("نام کالا");
inline const QString kCost = QStringLiteral("قيمت فروش");
inline const QString kCost2 = QStringLiteral("قيمت فروش دوم");
inline const QString kArticlePrice = QStringLiteral("قيمت درج شده روي کالا");
inline const QString kTaxValue = QStringLiteral("درصد ماليات");
inline const QString kUnit = QStringLiteral("واحد");
inline const QString kFavourite = QStringLiteral("در صفحه کالاهاي منتخب");
inline const QString kFavoriteTab = QStringLiteral("صفحه");
inline const QString kAskQuantity = QStringLiteral("تعداد در فروش پرسيده شود");
inline const QString kComplexCode = QStringLiteral("کد ساختاري");
inline const QString kStockNo1 = QStringLiteral("محل اول در انبار");
inline const QString kStockNo2 = QStringLiteral("محل دوم در انبار");
inline const QString kActive = QStringLiteral("فعال");
inline const QString kStock = QStringLiteral("موجودي");
inline const QString kArticle = QStringLiteral("کالا");
inline const QString kPrices = QStringLiteral("قيمت‌ها");
inline const QString kLevels = QStringLiteral("مشخصات ساختاري");
inline const QString kSale = QStringLiteral("فروش");

// Window titles.
inline const QString kGoodTitle = QStringLiteral("تعريف کالا");
inline const QString kGoodsListTitle = QStringLiteral("فهرست کالاها");
inline const QString kGoodsLevelsTitle = QStringLiteral("مشخصات کد کالا");
inline const QString kAccountLevelsTitle = QStringLiteral("مشخصات کد حساب");
inline const QString kLevelTitle = QStringLiteral("تعريف مشخصه");
inline const QString kValueTitle = QStringLiteral("تعريف مقدار");
inline const QString kPickerTitle = QStringLiteral("انتخاب از فهرست");

// The names of the lists that are not code levels, by TypeNo.
inline const QString kUnitsList = QStringLiteral("واحدهاي اندازه‌گيري");
inline const QString kGradesList = QStringLiteral("درجه‌هاي مشتري");
inline const QString kJobsList = QStringLiteral("شغل‌هاي مشتري");
inline const QString kInterestsList = QStringLiteral("علاقه‌مندي‌هاي مشتري");
inline const QString kAreasList = QStringLiteral("مناطق مشتري");

}  // namespace sandogh::catalogcaptions
