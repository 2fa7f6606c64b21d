#pragma once

#include "settings/SettingKey.h"

// Every per-machine setting of the program, by section and key. Sections and keys are
// matched without regard to case, so "ISActivePoolDisplay" and "IsActivePoolDisplay" are one
// section; the spellings below are the ones written when a value is new.
namespace sandogh::settingkeys {

inline constexpr const char* RetailApplication = "Retail";
inline constexpr const char* TransferApplication = "Factortransfer";

// Shorthands for the table below.
constexpr SettingKey flag(const char* section, const char* key, const char* fallback = "") {
    return {RetailApplication, section, key, SettingForm::Flag, fallback};
}
constexpr SettingKey number(const char* section, const char* key, const char* fallback = "") {
    return {RetailApplication, section, key, SettingForm::Number, fallback};
}
constexpr SettingKey text(const char* section, const char* key, const char* fallback = "") {
    return {RetailApplication, section, key, SettingForm::Text, fallback};
}

// Start-up and login.
inline constexpr SettingKey Year = text("Year", "Year");
inline constexpr SettingKey UserProfile = number("UserProfile", "UserProfile");
inline constexpr SettingKey UserId = number("UserInfo", "UserID");
inline constexpr SettingKey UserName = text("UserInfo", "UserName");
inline constexpr SettingKey UserDisplayName = text("UserInfo", "Name");
inline constexpr SettingKey StationId = number("Station", "ID", "1");
inline constexpr SettingKey LastDateSendSms = text("Shift", "LastDateSendSMS");

// General serial ports and their devices.
inline constexpr SettingKey PortsEnable = flag("IsActivePort", "Enable");
inline constexpr SettingKey PortNo = number("PortNo", "No", "0");
inline constexpr SettingKey PortNo2 = number("PortNo", "No2", "0");
inline constexpr SettingKey PecPort = number("PortNo", "Pec");
inline constexpr SettingKey SamanPort = number("PortNo", "Saman");
inline constexpr SettingKey PasargadPort = number("PortNo", "Pasargad");
inline constexpr SettingKey RfidCardPort = number("PortNo", "RFIDCard");
inline constexpr SettingKey GsmModemPort = number("PortNo", "GSMModem");
inline constexpr SettingKey BarcodeReaderModel = text("BarcodeReader", "Model", "1");
inline constexpr SettingKey CallerIdEnable = flag("IsActiveCallerID", "Enable");
inline constexpr SettingKey CallerIdModel = text("IsActiveCallerID", "Model", "0");
inline constexpr SettingKey UsbCallerIdEnable = flag("IsActiveUSBCallerID", "Enable");
inline constexpr SettingKey KeyboardRfidEnable = flag("IsKeyboardRFID", "Enable");
// Device path overrides of the four serial port objects; empty: derived from the COM number.
inline constexpr SettingKey MSComm1Device = text("Devices", "MSComm1");
inline constexpr SettingKey MSComm2Device = text("Devices", "MSComm2");
inline constexpr SettingKey CustomerDisplayDevice = text("Devices", "MSCommCustomerDisplay");
inline constexpr SettingKey PecDevice = text("Devices", "MSCommPec");

// Customer display.
inline constexpr SettingKey DisplayEnable = flag("IsActivePoolDisplay", "Enable");
inline constexpr SettingKey DisplayLine = number("IsActivePoolDisplay", "Line");
inline constexpr SettingKey DisplayDelay = number("IsActivePoolDisplay", "Delay");
inline constexpr SettingKey DisplayPort = number("ISActivePoolDisplay", "Port", "1");

// Cash drawer.
inline constexpr SettingKey PrinterPortUsb = text("PrinterPort", "USB", "True");
inline constexpr SettingKey CashDrawerEnable = flag("IsActiveCashDraw", "Enable");
inline constexpr SettingKey DrawerProgram = text("Programs", "Drawer", "Program/Tamvex.exe");

// Scales.
inline constexpr SettingKey ScaleTakin = flag("Scale", "IsActiveTakin");
inline constexpr SettingKey ScaleMizan = flag("Scale", "IsActiveMizan");
inline constexpr SettingKey ScaleSadr = flag("Scale", "IsActiveSadr");
inline constexpr SettingKey MizanTicket = flag("ScaleTicket", "Mizan");
inline constexpr SettingKey OnlineSalesTicket = flag("ScaleTicket", "OnlineSales");
inline constexpr SettingKey ScalePrefix = text("ScaleTicket", "Prefix", "2");
inline constexpr SettingKey WeightServiceHost = text("Devices", "WeightServiceHost");

// Sale screen.
inline constexpr SettingKey SaleGoodsColumnOrder = text("Tools", "frmSaledgGoodsColOrder");
inline constexpr SettingKey GridHeight = number("Tools", "GridHeight");
inline constexpr SettingKey ResetFactorNo = flag("Tools", "IsResetFactorNo");
inline constexpr SettingKey QtyModel = number("QtySetting", "Model");
inline constexpr SettingKey QtyDecimal = flag("QtySetting", "Decimal");
inline constexpr SettingKey QtyRoundInProgram = flag("QtySetting", "RoundNumberInProgram");
inline constexpr SettingKey AskQtyType = number("AskQty", "Type");
inline constexpr SettingKey BarcodeExistanceAlarm = flag("BarcodeExistance", "Alarm");
inline constexpr SettingKey FavoriteListDblClick = flag("SaleSetting", "FavoriteListDblClick");
inline constexpr SettingKey BuySalePriceChecking = flag("SaleSetting", "BuySalePriceChecking");
inline constexpr SettingKey SaleMonitor = flag("SaleSetting", "SaleMonitor");
inline constexpr SettingKey ShowStock = flag("SaleSetting", "ShowStock");
inline constexpr SettingKey ReturnCause = flag("SaleSetting", "ReturnCause");
inline constexpr SettingKey QrCode = flag("SaleSetting", "QRCode");
inline constexpr SettingKey Rounding = flag("SaleSetting", "Rounding");
inline constexpr SettingKey SearchCustomer = flag("SaleSetting", "SearchCustomer");
inline constexpr SettingKey DisableDiscount = flag("SaleSetting", "DisableDiscount");
inline constexpr SettingKey SearchSupplier = flag("SaleSetting", "SearchSupplier");
inline constexpr SettingKey ItemLock = flag("SaleSetting", "ItemLock");
inline constexpr SettingKey LimitListQty = number("LimitListQty", "Qty", "100");
inline constexpr SettingKey SalesAddToListQty = number("SalesAddToListQty", "Qty");
inline constexpr SettingKey SalesNewForm = flag("SalesNewForm", "Enable");
inline constexpr SettingKey Cardex = flag("Cardex", "Enable");
inline constexpr SettingKey ProfitEnable = flag("IsActiveProfit", "Enable");
inline constexpr SettingKey BackgroundChangeAutomate = flag("IsBackgroundChangeAutomate", "Enable");
inline constexpr SettingKey MorePrice = flag("IsMorePrice", "Enable");
inline constexpr SettingKey MandatoryCustomer = flag("IsMandatoryCustomer", "Enable");
inline constexpr SettingKey BuyListAccess = flag("BuyListAccess", "Enable");
inline constexpr SettingKey ColorGoodList = flag("IsColorGoodList", "Enable");
inline constexpr SettingKey ExistQty = flag("IsExistQty", "Enable");
inline constexpr SettingKey PaymentPermission = flag("PaymentPermission", "Enable");
inline constexpr SettingKey UseUserIdInSale = flag("UseUserIDInSale", "Enable");
inline constexpr SettingKey ShiftEnable = flag("IsActiveShift", "Enable");
inline constexpr SettingKey ImportData = flag("ActiveImportData", "Enable");
inline constexpr SettingKey PrintFactor = flag("PrintFactor", "Enable");
inline constexpr SettingKey GoodDefinition = flag("GoodDefinition", "Enable");
inline constexpr SettingKey FreezCash = flag("FreezCash", "Enable");
inline constexpr SettingKey ParaSetupMenu = flag("mnuParaSetup", "Enable");
inline constexpr SettingKey LockReturnSale = flag("LockReturnSale", "Enable");
inline constexpr SettingKey ChequeAlarm = flag("ChequeAlarm", "Enable");
inline constexpr SettingKey DelRightMenu = flag("mnuDelRight", "Enable");
inline constexpr SettingKey DelUpMenu = flag("MnuDelUp", "Enable");
inline constexpr SettingKey DisplayDailySale = flag("Cash", "DisplayDailySale");
inline constexpr SettingKey PrintDamavandFish = flag("Cash", "PrintDamavandFish");
inline constexpr SettingKey DoublePrinter = flag("DoublePrinter", "Value");
inline constexpr SettingKey QuickEntry = flag("SaleOptions", "QuickEntry", "1");
inline constexpr SettingKey NoMerge = flag("SaleOptions", "NoMerge");
inline constexpr SettingKey CustomerAboveAmount = number("SaleOptions", "CustomerAboveAmount");
inline constexpr SettingKey CustomerCheck = flag("SaleOptions", "CustomerCheck");
inline constexpr SettingKey InternalPriceMode = number("SaleInter", "PriceMode", "1");
inline constexpr SettingKey InternalBranchKind = number("SaleInter", "BranchKind", "2");
inline constexpr SettingKey LoyaltyBuyFactor = number("Loyalty", "BuyFactor");
inline constexpr SettingKey LoyaltyAmountRebate = number("Loyalty", "AmountRebate");

// Receipt and companion programs.
inline constexpr SettingKey FishIsRial = flag("FishSetting", "ISRial");
inline constexpr SettingKey ReceiptMode = number("Receipt", "Mode", "1");
inline constexpr SettingKey ReceiptOutputKind = text("Receipt", "Output", "printer");
inline constexpr SettingKey ReceiptPrinter = text("Receipt", "PrinterName");
inline constexpr SettingKey ReceiptEscPosDevice = text("Receipt", "EscPosDevice");
// Print width of the ESC/POS receipt printer in dots: 576 (80 mm paper) or 384 (58 mm).
inline constexpr SettingKey ReceiptDotsWidth = number("Receipt", "DotsWidth", "576");
inline constexpr SettingKey ReceiptPdfFolder = text("Receipt", "PdfFolder");
inline constexpr SettingKey CompanionProgram =
    text("Programs", "Companion", "Program/KotrimoAcc.exe");

// Customers and users.
inline constexpr SettingKey MandatoryRfCardPass = flag("MandatoryOption", "MandatoryRFCardPass");
inline constexpr SettingKey CustomerGrouping = flag("MandatoryOption", "CustomerGrouping");
inline constexpr SettingKey CustomerFriendship = flag("MandatoryOption", "CustomerFriendship");
inline constexpr SettingKey CanEditUser = flag("MandatoryOption", "CanEditUser");
inline constexpr SettingKey FactorSalePrice = flag("MandatoryOption", "FactorSalePrice");
inline constexpr SettingKey CustomerCodePattern = text("CustomerSetting", "CodePattern");

// Messaging.
inline constexpr SettingKey SendFactor = flag("PortNo", "SendFactor");
inline constexpr SettingKey SendDailySale = flag("PortNo", "SendDailySale");
inline constexpr SettingKey SendDailySaleUserGroup = flag("PortNo", "SendDailySaleUserGroup");
inline constexpr SettingKey SmsFactorCustomer = flag("PortNo", "SMSFactorCustomer");
inline constexpr SettingKey SmsCustomer = flag("PortNo", "SMSCustomer");
inline constexpr SettingKey SmsBirthday = flag("PortNo", "SMSBirthday");
inline constexpr SettingKey SmsBirthdayAfter = flag("PortNo", "SMSBirthdayAfter");
inline constexpr SettingKey EmailBirthday = flag("PortNo", "EmailBirthday");
inline constexpr SettingKey SmsSendType = number("PortNo", "SMSSendType");
inline constexpr SettingKey SmsFactorCustomerType = number("PortNo", "SMSFactorCustomerType");
inline constexpr SettingKey SmsBirthdayDayBefor = number("PortNo", "SMSBirthdayDayBefor");
inline constexpr SettingKey SmsBirthdayDayAfter = number("PortNo", "SMSBirthdayDayAfter");
inline constexpr SettingKey SendTel = text("PortNo", "SendTel");
inline constexpr SettingKey SendDailySaleTel = text("PortNo", "SendDailySaleTel");
inline constexpr SettingKey SendDailySaleTelUserGroup = text("PortNo", "SendDailySaleTelUserGroup");

// Central database and branches.
inline constexpr SettingKey LinkedServerName = text("LinkedServer", "ServerName");
inline constexpr SettingKey LinkedDatabase = text("LinkedServer", "Database");
inline constexpr SettingKey LinkedSystemActive = flag("LinkedServer", "ActiveLinkedSystem");
inline constexpr SettingKey BranchCode = text("BranchCode", "Code");
// Kept under its own application name, not under "Retail".
inline constexpr SettingKey TransferShowPrice = {TransferApplication, "FC", "ShowPrice",
                                                 SettingForm::Number, "1"};
// The folder RptFactors.txt is written to away from Windows; empty: Velbari in the home.
inline constexpr SettingKey TransferFolder = {TransferApplication, "FC", "Folder",
                                              SettingForm::Text, ""};

// Program-wide switches.
inline constexpr SettingKey AutoUpdate = flag("SystemSetting", "AutoUpdate");
inline constexpr SettingKey SerialEnable = flag("SystemSetting", "IsSerialEnable");
inline constexpr SettingKey SearchByStock = flag("SystemSetting", "SearchByStock");

// Colours, as the numbers of the old colour values.
inline constexpr SettingKey ThemeTextColor = number("ThemeSetting", "TextColor");
inline constexpr SettingKey ThemeFrameColor = number("ThemeSetting", "FrameColor");
inline constexpr SettingKey ThemeFormColor = number("ThemeSetting", "FormColor");

}  // namespace sandogh::settingkeys
