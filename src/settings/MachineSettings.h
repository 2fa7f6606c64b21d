#pragma once

#include <QString>

#include "settings/ReceiptOutput.h"
#include "settings/SettingKey.h"
#include "settings/SettingKeys.h"
#include "settings/SettingsStore.h"

namespace sandogh {

// The per-machine settings of this cash desk under "Retail", one typed accessor per key.
// Reading never fails: a missing, blank or unreadable text gives the key's default.
// Flags are on when the numeric value of their text is greater than 0; numbers are that
// value; texts are trimmed unless said otherwise. The store is not owned.
class MachineSettings {
public:
    explicit MachineSettings(SettingsStore& store) : m_store(store) {}

    SettingsStore& store() const { return m_store; }

    // Generic reading and writing by key, for the settings screen and for keys that a
    // screen reads in its own way. A key of another application reads as its default and
    // is never written.
    QString rawText(const SettingKey& key) const;  // as kept, or the default when blank
    QString text(const SettingKey& key) const;     // rawText, trimmed
    bool flag(const SettingKey& key) const;
    double number(const SettingKey& key) const;
    int integer(const SettingKey& key) const;  // number rounded to a whole one
    bool write(const SettingKey& key, const QString& text);
    bool setFlag(const SettingKey& key, bool on);  // "1" or "0"
    bool setNumber(const SettingKey& key, double value);
    bool reset(const SettingKey& key);  // back to the default

    // Start-up and login.
    QString fiscalYearDatabase() const { return text(settingkeys::Year); }
    bool setFiscalYearDatabase(const QString& name) { return write(settingkeys::Year, name); }
    int userProfile() const { return integer(settingkeys::UserProfile); }
    bool setUserProfile(int value) { return setNumber(settingkeys::UserProfile, value); }
    int userId() const { return integer(settingkeys::UserId); }
    QString userName() const { return text(settingkeys::UserName); }
    QString userDisplayName() const { return text(settingkeys::UserDisplayName); }
    // The user who logged in last: identifier, login name, display name.
    bool setUserInfo(int id, const QString& loginName, const QString& displayName);
    int stationId() const { return integer(settingkeys::StationId); }
    // Date (Jalali text) of the last daily summary sent.
    QString lastDateSendSms() const { return text(settingkeys::LastDateSendSms); }
    bool setLastDateSendSms(const QString& date) {
        return write(settingkeys::LastDateSendSms, date);
    }

    // General serial ports and their devices.
    bool generalPortsEnabled() const { return flag(settingkeys::PortsEnable); }
    int portNo() const { return integer(settingkeys::PortNo); }
    int portNo2() const { return integer(settingkeys::PortNo2); }
    int pecPort() const { return integer(settingkeys::PecPort); }
    int samanPort() const { return integer(settingkeys::SamanPort); }
    int pasargadPort() const { return integer(settingkeys::PasargadPort); }
    int rfidCardPort() const { return integer(settingkeys::RfidCardPort); }
    int gsmModemPort() const { return integer(settingkeys::GsmModemPort); }
    QString barcodeReaderModel() const { return text(settingkeys::BarcodeReaderModel); }
    bool callerIdEnabled() const { return flag(settingkeys::CallerIdEnable); }
    QString callerIdModel() const { return text(settingkeys::CallerIdModel); }
    bool usbCallerIdEnabled() const { return flag(settingkeys::UsbCallerIdEnable); }
    // The card reader that types a card number into the sale screen's barcode box.
    bool keyboardRfidEnabled() const { return flag(settingkeys::KeyboardRfidEnable); }
    // Device paths of the serial port objects; empty: derived from the COM number.
    QString mscomm1Device() const { return text(settingkeys::MSComm1Device); }
    QString mscomm2Device() const { return text(settingkeys::MSComm2Device); }
    QString customerDisplayDevice() const { return text(settingkeys::CustomerDisplayDevice); }
    QString pecDevice() const { return text(settingkeys::PecDevice); }

    // Customer display.
    bool displayEnabled() const { return flag(settingkeys::DisplayEnable); }
    int displayLine() const { return integer(settingkeys::DisplayLine); }
    int displayDelay() const { return integer(settingkeys::DisplayDelay); }
    int displayPort() const { return integer(settingkeys::DisplayPort); }

    // Cash drawer: on the receipt printer when "PrinterPort"/"USB" is "True" in any case.
    bool printerPortUsb() const;
    bool setPrinterPortUsb(bool onPrinter);
    bool cashDrawerEnabled() const { return flag(settingkeys::CashDrawerEnable); }
    QString drawerProgram() const { return text(settingkeys::DrawerProgram); }
    // drawerProgram made absolute against the program folder.
    QString drawerProgramPath(const QString& programFolder) const;

    // Scales.
    bool scaleTakinEnabled() const { return flag(settingkeys::ScaleTakin); }
    bool scaleMizanEnabled() const { return flag(settingkeys::ScaleMizan); }
    bool scaleSadrEnabled() const { return flag(settingkeys::ScaleSadr); }
    bool mizanTicketEnabled() const { return flag(settingkeys::MizanTicket); }
    bool onlineSalesTicketEnabled() const { return flag(settingkeys::OnlineSalesTicket); }
    QString scalePrefix() const { return text(settingkeys::ScalePrefix); }
    QString weightServiceHost() const { return text(settingkeys::WeightServiceHost); }

    // Sale screen.
    // Kept exactly as the grid wrote it.
    QString saleGoodsColumnOrder() const { return rawText(settingkeys::SaleGoodsColumnOrder); }
    bool setSaleGoodsColumnOrder(const QString& order) {
        return write(settingkeys::SaleGoodsColumnOrder, order);
    }
    int gridHeight() const { return integer(settingkeys::GridHeight); }
    bool resetFactorNoDaily() const { return flag(settingkeys::ResetFactorNo); }
    int qtyModel() const { return integer(settingkeys::QtyModel); }
    bool qtyDecimal() const { return flag(settingkeys::QtyDecimal); }
    bool qtyRoundInProgram() const { return flag(settingkeys::QtyRoundInProgram); }
    int askQtyType() const { return integer(settingkeys::AskQtyType); }
    bool barcodeExistanceAlarm() const { return flag(settingkeys::BarcodeExistanceAlarm); }
    bool favoriteListDoubleClick() const { return flag(settingkeys::FavoriteListDblClick); }
    bool buySalePriceChecking() const { return flag(settingkeys::BuySalePriceChecking); }
    bool saleMonitor() const { return flag(settingkeys::SaleMonitor); }
    bool showStock() const { return flag(settingkeys::ShowStock); }
    bool returnCauseRequired() const { return flag(settingkeys::ReturnCause); }
    bool qrCode() const { return flag(settingkeys::QrCode); }
    bool rounding() const { return flag(settingkeys::Rounding); }
    bool searchCustomer() const { return flag(settingkeys::SearchCustomer); }
    bool discountDisabled() const { return flag(settingkeys::DisableDiscount); }
    bool searchSupplier() const { return flag(settingkeys::SearchSupplier); }
    bool itemLock() const { return flag(settingkeys::ItemLock); }
    int listLimit() const { return integer(settingkeys::LimitListQty); }
    int salesAddToListQty() const { return integer(settingkeys::SalesAddToListQty); }
    bool salesNewFormEnabled() const { return flag(settingkeys::SalesNewForm); }
    bool cardexEnabled() const { return flag(settingkeys::Cardex); }
    bool profitEnabled() const { return flag(settingkeys::ProfitEnable); }
    bool backgroundChangeAutomate() const { return flag(settingkeys::BackgroundChangeAutomate); }
    bool multiplePricesEnabled() const { return flag(settingkeys::MorePrice); }
    bool customerMandatory() const { return flag(settingkeys::MandatoryCustomer); }
    bool buyListAccess() const { return flag(settingkeys::BuyListAccess); }
    bool colorGoodsList() const { return flag(settingkeys::ColorGoodList); }
    bool stockCheckEnabled() const { return flag(settingkeys::ExistQty); }
    bool paymentPermission() const { return flag(settingkeys::PaymentPermission); }
    bool sellerChoiceEnabled() const { return flag(settingkeys::UseUserIdInSale); }
    bool shiftEnabled() const { return flag(settingkeys::ShiftEnable); }
    bool importDataEnabled() const { return flag(settingkeys::ImportData); }
    bool printFactorEnabled() const { return flag(settingkeys::PrintFactor); }
    bool goodDefinitionEnabled() const { return flag(settingkeys::GoodDefinition); }
    bool freezeCash() const { return flag(settingkeys::FreezCash); }
    bool paraSetupMenuEnabled() const { return flag(settingkeys::ParaSetupMenu); }
    bool lockReturnSale() const { return flag(settingkeys::LockReturnSale); }
    bool chequeAlarm() const { return flag(settingkeys::ChequeAlarm); }
    bool deleteRightMenuEnabled() const { return flag(settingkeys::DelRightMenu); }
    bool deleteUpMenuEnabled() const { return flag(settingkeys::DelUpMenu); }
    bool displayDailySale() const { return flag(settingkeys::DisplayDailySale); }
    bool printDamavandFish() const { return flag(settingkeys::PrintDamavandFish); }
    bool doublePrinter() const { return flag(settingkeys::DoublePrinter); }
    // Barcode box: texts of four characters or more are barcodes, shorter ones quantities.
    bool quickEntryEnabled() const { return flag(settingkeys::QuickEntry); }
    bool noMergeEnabled() const { return flag(settingkeys::NoMerge); }
    // Total in rials above which a customer must be chosen; 0: no such limit.
    double customerRequiredAbove() const { return number(settingkeys::CustomerAboveAmount); }
    bool customerCheckEnabled() const { return flag(settingkeys::CustomerCheck); }
    // Internal sales: 1 last internal price, 2 master price, 3 last purchase price.
    int internalSalePriceMode() const { return integer(settingkeys::InternalPriceMode); }
    // The TypeNo of tblCenterBranches listed as branches.
    int internalSaleBranchKind() const { return integer(settingkeys::InternalBranchKind); }
    double loyaltyBuyFactor() const { return number(settingkeys::LoyaltyBuyFactor); }
    double loyaltyAmountRebate() const { return number(settingkeys::LoyaltyAmountRebate); }

    // Receipt and companion programs.
    bool fishIsRial() const { return flag(settingkeys::FishIsRial); }
    int receiptMode() const { return integer(settingkeys::ReceiptMode); }
    ReceiptOutput receiptOutput() const;
    bool setReceiptOutput(ReceiptOutput output);
    QString receiptPrinterName() const { return text(settingkeys::ReceiptPrinter); }
    QString receiptEscPosDevice() const { return text(settingkeys::ReceiptEscPosDevice); }
    int receiptDotsWidth() const { return integer(settingkeys::ReceiptDotsWidth); }
    QString receiptPdfFolder() const { return text(settingkeys::ReceiptPdfFolder); }
    QString companionProgram() const { return text(settingkeys::CompanionProgram); }
    // companionProgram made absolute against the program folder. The receipt goes to
    // receiptOutput() when no program is found there.
    QString companionProgramPath(const QString& programFolder) const;

    // Customers and users.
    bool rfCardPasswordMandatory() const { return flag(settingkeys::MandatoryRfCardPass); }
    bool customerGrouping() const { return flag(settingkeys::CustomerGrouping); }
    bool customerFriendship() const { return flag(settingkeys::CustomerFriendship); }
    bool canEditUser() const { return flag(settingkeys::CanEditUser); }
    bool factorSalePrice() const { return flag(settingkeys::FactorSalePrice); }
    QString customerCodePattern() const { return text(settingkeys::CustomerCodePattern); }

    // Messaging.
    bool sendFactor() const { return flag(settingkeys::SendFactor); }
    bool sendDailySale() const { return flag(settingkeys::SendDailySale); }
    bool sendDailySaleUserGroup() const { return flag(settingkeys::SendDailySaleUserGroup); }
    bool smsFactorCustomer() const { return flag(settingkeys::SmsFactorCustomer); }
    bool smsCustomer() const { return flag(settingkeys::SmsCustomer); }
    bool smsBirthday() const { return flag(settingkeys::SmsBirthday); }
    bool smsBirthdayAfter() const { return flag(settingkeys::SmsBirthdayAfter); }
    bool emailBirthday() const { return flag(settingkeys::EmailBirthday); }
    int smsSendType() const { return integer(settingkeys::SmsSendType); }
    int smsFactorCustomerType() const { return integer(settingkeys::SmsFactorCustomerType); }
    int smsBirthdayDaysBefore() const { return integer(settingkeys::SmsBirthdayDayBefor); }
    int smsBirthdayDaysAfter() const { return integer(settingkeys::SmsBirthdayDayAfter); }
    QString sendTel() const { return text(settingkeys::SendTel); }
    QString sendDailySaleTel() const { return text(settingkeys::SendDailySaleTel); }
    QString sendDailySaleTelUserGroup() const {
        return text(settingkeys::SendDailySaleTelUserGroup);
    }

    // Central database and branches.
    QString linkedServerName() const { return text(settingkeys::LinkedServerName); }
    QString linkedDatabase() const { return text(settingkeys::LinkedDatabase); }
    bool linkedSystemActive() const { return flag(settingkeys::LinkedSystemActive); }
    QString branchCode() const { return text(settingkeys::BranchCode); }

    // Program-wide switches.
    bool autoUpdate() const { return flag(settingkeys::AutoUpdate); }
    bool serialNumbersEnabled() const { return flag(settingkeys::SerialEnable); }
    bool searchByStock() const { return flag(settingkeys::SearchByStock); }

    // Colours.
    int themeTextColor() const { return integer(settingkeys::ThemeTextColor); }
    int themeFrameColor() const { return integer(settingkeys::ThemeFrameColor); }
    int themeFormColor() const { return integer(settingkeys::ThemeFormColor); }

private:
    bool ownsKey(const SettingKey& key) const;

    SettingsStore& m_store;
};

}  // namespace sandogh
