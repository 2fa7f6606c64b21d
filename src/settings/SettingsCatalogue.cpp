#include "settings/SettingsCatalogue.h"

#include "settings/SettingKeys.h"

namespace sandogh {

namespace {

namespace k = settingkeys;
using G = SettingGroup;

std::vector<SettingDescriptor> buildCatalogue() {
    return {
        // Start-up and login.
        {k::Year, "پایگاه داده سال مالی", G::Session},
        {k::UserProfile, "نمایه کاربر", G::Session},
        {k::UserId, "شناسه آخرین کاربر", G::Session},
        {k::UserName, "نام کاربری آخرین کاربر", G::Session},
        {k::UserDisplayName, "نام آخرین کاربر", G::Session},
        {k::StationId, "شماره صندوق", G::Session},
        {k::LastDateSendSms, "تاریخ ارسال آخرین گزارش روزانه", G::Session},

        // General serial ports and their devices.
        {k::PortsEnable, "درگاه‌های سریال فعال", G::Ports},
        {k::PortNo, "شماره درگاه اول (COM)", G::Ports},
        {k::PortNo2, "شماره درگاه دوم (COM)", G::Ports},
        {k::PecPort, "درگاه کارتخوان پارسیان", G::Ports},
        {k::SamanPort, "درگاه کارتخوان سامان", G::Ports},
        {k::PasargadPort, "درگاه کارتخوان پاسارگاد", G::Ports},
        {k::RfidCardPort, "درگاه کارت‌خوان بی‌تماس", G::Ports},
        {k::GsmModemPort, "درگاه مودم GSM", G::Ports},
        {k::BarcodeReaderModel, "مدل بارکدخوان سریال", G::Ports},
        {k::CallerIdEnable, "کالر آیدی سریال فعال", G::Ports},
        {k::CallerIdModel, "مدل کالر آیدی", G::Ports},
        {k::UsbCallerIdEnable, "کالر آیدی USB فعال", G::Ports},
        {k::KeyboardRfidEnable, "کارت‌خوان بی‌تماس در کادر بارکد",
         G::Ports},
        {k::MSComm1Device, "مسیر دستگاه درگاه اول", G::Ports},
        {k::MSComm2Device, "مسیر دستگاه درگاه دوم", G::Ports},
        {k::CustomerDisplayDevice, "مسیر دستگاه نمایشگر قیمت", G::Ports},
        {k::PecDevice, "مسیر دستگاه کارتخوان پارسیان", G::Ports},

        // Customer display.
        {k::DisplayEnable, "نمایشگر مشتری فعال", G::Display},
        {k::DisplayLine, "نوع نمایشگر مشتری", G::Display},
        {k::DisplayDelay, "مکث پس از پاک کردن نمایشگر", G::Display},
        {k::DisplayPort, "درگاه نمایشگر قیمت", G::Display},

        // Cash drawer.
        {k::PrinterPortUsb, "کشوی پول روی چاپگر فیش", G::Drawer},
        {k::CashDrawerEnable, "دکمه باز کردن کشوی پول", G::Drawer},
        {k::DrawerProgram, "برنامه باز کردن کشوی پول", G::Drawer},

        // Scales.
        {k::ScaleTakin, "ارسال کالا به ترازوی تکین", G::Scale},
        {k::ScaleMizan, "ارسال کالا به ترازوی میزان", G::Scale},
        {k::ScaleSadr, "ارسال کالا به ترازوی صدر", G::Scale},
        {k::MizanTicket, "خواندن فیش ترازوی میزان", G::Scale},
        {k::OnlineSalesTicket, "خواندن فیش ترازوی آنلاین", G::Scale},
        {k::ScalePrefix, "پیشوند بارکد ترازو", G::Scale},
        {k::WeightServiceHost, "نشانی سرویس وزن", G::Scale},

        // Sale screen.
        {k::QuickEntry, "ورود سریع بارکد و تعداد", G::Sale},
        {k::NoMerge, "ثبت کالای تکراری در ردیف جدا", G::Sale},
        {k::MorePrice, "چند قیمتی", G::Sale},
        {k::UseUserIdInSale, "انتخاب فروشنده برای هر ردیف", G::Sale},
        {k::ExistQty, "کنترل موجودی هنگام فروش", G::Sale},
        {k::ItemLock, "کنترل کالاهای قفل‌شده", G::Sale},
        {k::BuySalePriceChecking, "کنترل قیمت فروش با قیمت خرید", G::Sale},
        {k::MandatoryCustomer, "الزام انتخاب مشتری", G::Sale},
        {k::CustomerAboveAmount, "الزام مشتری برای فاکتور بالاتر از (ریال)", G::Sale},
        {k::CustomerCheck, "کنترل درستی مشتری", G::Sale},
        {k::ReturnCause, "الزام علت مرجوعی", G::Sale},
        {k::ResetFactorNo, "شماره فاکتور از نو در هر روز", G::Sale},
        {k::DisplayDailySale, "نمایش فروش روزانه صندوق", G::Sale},
        {k::SaleGoodsColumnOrder, "ترتیب ستون‌های کالاهای منتخب",
         G::Sale},
        {k::QtyModel, "روش ورود تعداد", G::Sale},
        {k::QtyDecimal, "تعداد اعشاری", G::Sale},
        {k::QtyRoundInProgram, "گرد کردن اعداد در برنامه", G::Sale},
        {k::AskQtyType, "پرسیدن تعداد", G::Sale},
        {k::BarcodeExistanceAlarm, "هشدار بارکد تکراری", G::Sale},
        {k::FavoriteListDblClick, "انتخاب کالای منتخب با دوبار کلیک", G::Sale},
        {k::SaleMonitor, "نمایشگر دوم فروش", G::Sale},
        {k::ShowStock, "نمایش موجودی کالا", G::Sale},
        {k::QrCode, "چاپ کد QR", G::Sale},
        {k::Rounding, "گرد کردن مبلغ فاکتور", G::Sale},
        {k::SearchCustomer, "جستجوی مشتری در فروش", G::Sale},
        {k::DisableDiscount, "غیرفعال بودن تخفیف", G::Sale},
        {k::SearchSupplier, "جستجوی تأمین‌کننده", G::Sale},
        {k::LimitListQty, "تعداد ردیف‌های فهرست", G::Sale},
        {k::SalesAddToListQty, "تعداد افزودنی به فهرست فروش", G::Sale},
        {k::SalesNewForm, "صفحه فروش جدید", G::Sale},
        {k::Cardex, "کاردکس کالا", G::Sale},
        {k::ProfitEnable, "نمایش سود", G::Sale},
        {k::BuyListAccess, "دسترسی به فهرست خرید", G::Sale},
        {k::ColorGoodList, "فهرست رنگی کالاها", G::Sale},
        {k::PaymentPermission, "مجوز دریافت و پرداخت", G::Sale},
        {k::ShiftEnable, "شیفت کاری فعال", G::Sale},
        {k::ImportData, "ورود اطلاعات", G::Sale},
        {k::PrintFactor, "چاپ فاکتور", G::Sale},
        {k::GoodDefinition, "تعریف کالا از صفحه فروش", G::Sale},
        {k::FreezCash, "قفل صندوق", G::Sale},
        {k::ParaSetupMenu, "منوی تنظیم پارامترها", G::Sale},
        {k::LockReturnSale, "قفل مرجوعی فروش", G::Sale},
        {k::ChequeAlarm, "هشدار سررسید چک", G::Sale},
        {k::DelRightMenu, "منوی حذف سمت راست", G::Sale},
        {k::DelUpMenu, "منوی حذف بالا", G::Sale},
        {k::PrintDamavandFish, "چاپ فیش کارتخوان دماوند", G::Sale},
        {k::DoublePrinter, "چاپ در دو چاپگر", G::Sale},
        {k::InternalPriceMode, "روش قیمت فروش داخلی", G::Sale},
        {k::InternalBranchKind, "نوع شعبه در فروش داخلی", G::Sale},
        {k::LoyaltyBuyFactor, "مبلغ خرید برای هر هدیه", G::Sale},
        {k::LoyaltyAmountRebate, "مبلغ هر هدیه", G::Sale},

        // Receipt and companion programs.
        {k::FishIsRial, "مبلغ به حروف به ریال", G::Receipt},
        {k::ReceiptMode, "قالب فیش", G::Receipt},
        {k::CompanionProgram, "برنامه حسابداری همراه", G::Receipt},
        {k::ReceiptOutputKind, "خروجی فیش بدون برنامه حسابداری", G::Receipt},
        {k::ReceiptPrinter, "چاپگر فیش", G::Receipt},
        {k::ReceiptEscPosDevice, "مسیر دستگاه چاپگر ESC/POS", G::Receipt},
        {k::ReceiptDotsWidth, "عرض چاپ فیش ESC/POS (نقطه)", G::Receipt},
        {k::ReceiptPdfFolder, "پوشه فایل‌های PDF فیش", G::Receipt},

        // Customers and users.
        {k::MandatoryRfCardPass, "الزام رمز کارت مشتری", G::Customers},
        {k::CustomerGrouping, "گروه‌بندی مشتریان", G::Customers},
        {k::CustomerFriendship, "معرفی مشتری", G::Customers},
        {k::CanEditUser, "ویرایش کاربران", G::Customers},
        {k::FactorSalePrice, "قیمت فروش در فاکتور", G::Customers},
        {k::CustomerCodePattern, "الگوی کد مشتری", G::Customers},

        // Messaging.
        {k::SendFactor, "ارسال پیامک فاکتور", G::Messaging},
        {k::SendDailySale, "ارسال پیامک فروش روزانه", G::Messaging},
        {k::SendDailySaleUserGroup, "ارسال فروش روزانه به گروه کاربران", G::Messaging},
        {k::SmsFactorCustomer, "پیامک فاکتور به مشتری", G::Messaging},
        {k::SmsCustomer, "پیامک به مشتریان", G::Messaging},
        {k::SmsBirthday, "پیامک تبریک تولد", G::Messaging},
        {k::SmsBirthdayAfter, "پیامک پس از تولد", G::Messaging},
        {k::EmailBirthday, "رایانامه تبریک تولد", G::Messaging},
        {k::SmsSendType, "روش ارسال پیامک", G::Messaging},
        {k::SmsFactorCustomerType, "نوع پیامک فاکتور", G::Messaging},
        {k::SmsBirthdayDayBefor, "روزهای پیش از تولد", G::Messaging},
        {k::SmsBirthdayDayAfter, "روزهای پس از تولد", G::Messaging},
        {k::SendTel, "شماره ارسال پیامک", G::Messaging},
        {k::SendDailySaleTel, "شماره گیرنده فروش روزانه", G::Messaging},
        {k::SendDailySaleTelUserGroup,
         "شماره‌های گروه گیرنده فروش روزانه", G::Messaging},

        // Central database and branches.
        {k::LinkedSystemActive, "ارتباط با مرکز فعال", G::Branches},
        {k::LinkedServerName, "نام سرور مرکزی", G::Branches},
        {k::LinkedDatabase, "پایگاه داده مرکزی", G::Branches},
        {k::BranchCode, "کد شعبه", G::Branches},
        {k::TransferShowPrice, "نمایش قیمت در انتقال فاکتور", G::Branches},
        {k::TransferFolder, "پوشه فایل انتقال فاکتور", G::Branches},

        // Program-wide switches.
        {k::AutoUpdate, "به‌روزرسانی خودکار", G::System},
        {k::SerialEnable, "ثبت شماره سریال کالا", G::System},
        {k::SearchByStock, "جستجو بر اساس موجودی", G::System},

        // Appearance.
        {k::GridHeight, "ارتفاع ردیف‌های جدول", G::Appearance},
        {k::ThemeTextColor, "رنگ متن", G::Appearance},
        {k::ThemeFrameColor, "رنگ قاب", G::Appearance},
        {k::ThemeFormColor, "رنگ فرم", G::Appearance},
        {k::BackgroundChangeAutomate, "تغییر خودکار پس‌زمینه", G::Appearance},
    };
}

}  // namespace

const std::vector<SettingDescriptor>& SettingsCatalogue::all() {
    static const std::vector<SettingDescriptor> catalogue = buildCatalogue();
    return catalogue;
}

const SettingDescriptor* SettingsCatalogue::find(const QString& application, const QString& section,
                                                 const QString& key) {
    for (const SettingDescriptor& row : all()) {
        if (row.application().compare(application, Qt::CaseInsensitive) == 0 &&
            row.section().compare(section, Qt::CaseInsensitive) == 0 &&
            row.name().compare(key, Qt::CaseInsensitive) == 0) {
            return &row;
        }
    }
    return nullptr;
}

std::vector<SettingDescriptor> SettingsCatalogue::inGroup(SettingGroup group) {
    std::vector<SettingDescriptor> rows;
    for (const SettingDescriptor& row : all()) {
        if (row.group == group) {
            rows.push_back(row);
        }
    }
    return rows;
}

QString SettingsCatalogue::groupCaption(SettingGroup group) {
    switch (group) {
        case G::Session:
            return QStringLiteral("ورود و سال مالی");
        case G::Ports:
            return QStringLiteral("درگاه‌ها");
        case G::Display:
            return QStringLiteral("نمایشگر مشتری");
        case G::Drawer:
            return QStringLiteral("کشوی پول");
        case G::Scale:
            return QStringLiteral("ترازو");
        case G::Sale:
            return QStringLiteral("فروش");
        case G::Receipt:
            return QStringLiteral("فیش و چاپ");
        case G::Customers:
            return QStringLiteral("مشتریان و کاربران");
        case G::Messaging:
            return QStringLiteral("پیامک");
        case G::Branches:
            return QStringLiteral("مرکز و شعب");
        case G::System:
            return QStringLiteral("سیستم");
        case G::Appearance:
            return QStringLiteral("ظاهر");
    }
    return {};
}

namespace {

bool sameKey(const SettingKey& a, const SettingKey& b) {
    return QString::fromLatin1(a.section).compare(QString::fromLatin1(b.section),
                                                  Qt::CaseInsensitive) == 0 &&
           QString::fromLatin1(a.key).compare(QString::fromLatin1(b.key), Qt::CaseInsensitive) ==
               0 &&
           QString::fromLatin1(a.application) == QString::fromLatin1(b.application);
}

// Colours are kept as Windows colour numbers: red + green * 256 + blue * 65536.
QList<SettingsCatalogue::Choice> colours() {
    const struct {
        int red, green, blue;
        const char* caption;
    } named[] = {
        {0, 0, 0, "سیاه"},          {255, 255, 255, "سفید"},        {240, 240, 240, "خاکستری روشن"},
        {128, 128, 128, "خاکستری"}, {0, 0, 128, "سرمه‌ای"}, {47, 111, 159, "آبی"},
        {46, 125, 79, "سبز"},       {162, 59, 42, "قرمز"},          {255, 254, 244, "کرم"},
    };
    QList<SettingsCatalogue::Choice> list;
    for (const auto& c : named) {
        list.append({QString::number(c.red + c.green * 256 + c.blue * 65536),
                     QString::fromUtf8(c.caption)});
    }
    return list;
}

}  // namespace

QList<SettingsCatalogue::Choice> SettingsCatalogue::choices(const SettingKey& key) {
    if (sameKey(key, k::ReceiptOutputKind)) {
        return {{QStringLiteral("printer"),
                 QStringLiteral("چاپگر (صفحه‌آرایی برنامه)")},
                {QStringLiteral("pdf"), QStringLiteral("فایل PDF")},
                {QStringLiteral("escpos"), QStringLiteral("چاپگر فیش ESC/POS")}};
    }
    if (sameKey(key, k::DisplayLine)) {
        return {{QStringLiteral("0"), QStringLiteral("دو خطی ۲۰ نویسه (درگاه اول)")},
                {QStringLiteral("1"), QStringLiteral("تک خطی (درگاه اول)")},
                {QStringLiteral("3"), QStringLiteral("نمایشگر قیمت هشت رقمی (درگاه خود)")}};
    }
    if (sameKey(key, k::ThemeTextColor) || sameKey(key, k::ThemeFrameColor) ||
        sameKey(key, k::ThemeFormColor)) {
        return colours();
    }
    return {};
}

bool SettingsCatalogue::writtenByProgram(const SettingKey& key) {
    return sameKey(key, k::UserId) || sameKey(key, k::UserName) ||
           sameKey(key, k::UserDisplayName) || sameKey(key, k::LastDateSendSms);
}

}  // namespace sandogh
