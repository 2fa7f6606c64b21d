#include "SettingProbes.h"

#include "settings/SettingReaders.h"

namespace sandogh::testing {

namespace {

namespace k = settingkeys;

QString show(bool on) {
    return on ? QStringLiteral("on") : QStringLiteral("off");
}
QString show(int value) {
    return QString::number(value);
}
QString show(double value) {
    return SettingReaders::numberText(value);
}
QString show(const QString& text) {
    return text;
}
QString show(ReceiptOutput output) {
    return receiptOutputText(output);
}

#define PROBE(key, accessor)                                                                \
    SettingProbe {                                                                          \
        &k::key, #accessor, [](const MachineSettings& s) { return show(s.accessor()); }, {} \
    }

std::vector<SettingProbe> buildProbes() {
    std::vector<SettingProbe> probes = {
        PROBE(Year, fiscalYearDatabase),
        PROBE(UserProfile, userProfile),
        PROBE(UserId, userId),
        PROBE(UserName, userName),
        PROBE(UserDisplayName, userDisplayName),
        PROBE(StationId, stationId),
        PROBE(LastDateSendSms, lastDateSendSms),
        PROBE(PortsEnable, generalPortsEnabled),
        PROBE(PortNo, portNo),
        PROBE(PortNo2, portNo2),
        PROBE(PecPort, pecPort),
        PROBE(SamanPort, samanPort),
        PROBE(PasargadPort, pasargadPort),
        PROBE(RfidCardPort, rfidCardPort),
        PROBE(GsmModemPort, gsmModemPort),
        PROBE(BarcodeReaderModel, barcodeReaderModel),
        PROBE(CallerIdEnable, callerIdEnabled),
        PROBE(CallerIdModel, callerIdModel),
        PROBE(UsbCallerIdEnable, usbCallerIdEnabled),
        PROBE(KeyboardRfidEnable, keyboardRfidEnabled),
        PROBE(MSComm1Device, mscomm1Device),
        PROBE(MSComm2Device, mscomm2Device),
        PROBE(CustomerDisplayDevice, customerDisplayDevice),
        PROBE(PecDevice, pecDevice),
        PROBE(DisplayEnable, displayEnabled),
        PROBE(DisplayLine, displayLine),
        PROBE(DisplayDelay, displayDelay),
        PROBE(DisplayPort, displayPort),
        PROBE(PrinterPortUsb, printerPortUsb),
        PROBE(CashDrawerEnable, cashDrawerEnabled),
        PROBE(DrawerProgram, drawerProgram),
        PROBE(ScaleTakin, scaleTakinEnabled),
        PROBE(ScaleMizan, scaleMizanEnabled),
        PROBE(ScaleSadr, scaleSadrEnabled),
        PROBE(MizanTicket, mizanTicketEnabled),
        PROBE(OnlineSalesTicket, onlineSalesTicketEnabled),
        PROBE(ScalePrefix, scalePrefix),
        PROBE(WeightServiceHost, weightServiceHost),
        PROBE(SaleGoodsColumnOrder, saleGoodsColumnOrder),
        PROBE(GridHeight, gridHeight),
        PROBE(ResetFactorNo, resetFactorNoDaily),
        PROBE(QtyModel, qtyModel),
        PROBE(QtyDecimal, qtyDecimal),
        PROBE(QtyRoundInProgram, qtyRoundInProgram),
        PROBE(AskQtyType, askQtyType),
        PROBE(BarcodeExistanceAlarm, barcodeExistanceAlarm),
        PROBE(FavoriteListDblClick, favoriteListDoubleClick),
        PROBE(BuySalePriceChecking, buySalePriceChecking),
        PROBE(SaleMonitor, saleMonitor),
        PROBE(ShowStock, showStock),
        PROBE(ReturnCause, returnCauseRequired),
        PROBE(QrCode, qrCode),
        PROBE(Rounding, rounding),
        PROBE(SearchCustomer, searchCustomer),
        PROBE(DisableDiscount, discountDisabled),
        PROBE(SearchSupplier, searchSupplier),
        PROBE(ItemLock, itemLock),
        PROBE(LimitListQty, listLimit),
        PROBE(SalesAddToListQty, salesAddToListQty),
        PROBE(SalesNewForm, salesNewFormEnabled),
        PROBE(Cardex, cardexEnabled),
        PROBE(ProfitEnable, profitEnabled),
        PROBE(BackgroundChangeAutomate, backgroundChangeAutomate),
        PROBE(MorePrice, multiplePricesEnabled),
        PROBE(MandatoryCustomer, customerMandatory),
        PROBE(BuyListAccess, buyListAccess),
        PROBE(ColorGoodList, colorGoodsList),
        PROBE(ExistQty, stockCheckEnabled),
        PROBE(PaymentPermission, paymentPermission),
        PROBE(UseUserIdInSale, sellerChoiceEnabled),
        PROBE(ShiftEnable, shiftEnabled),
        PROBE(ImportData, importDataEnabled),
        PROBE(PrintFactor, printFactorEnabled),
        PROBE(GoodDefinition, goodDefinitionEnabled),
        PROBE(FreezCash, freezeCash),
        PROBE(ParaSetupMenu, paraSetupMenuEnabled),
        PROBE(LockReturnSale, lockReturnSale),
        PROBE(ChequeAlarm, chequeAlarm),
        PROBE(DelRightMenu, deleteRightMenuEnabled),
        PROBE(DelUpMenu, deleteUpMenuEnabled),
        PROBE(DisplayDailySale, displayDailySale),
        PROBE(PrintDamavandFish, printDamavandFish),
        PROBE(DoublePrinter, doublePrinter),
        PROBE(QuickEntry, quickEntryEnabled),
        PROBE(NoMerge, noMergeEnabled),
        PROBE(CustomerAboveAmount, customerRequiredAbove),
        PROBE(CustomerCheck, customerCheckEnabled),
        PROBE(InternalPriceMode, internalSalePriceMode),
        PROBE(InternalBranchKind, internalSaleBranchKind),
        PROBE(LoyaltyBuyFactor, loyaltyBuyFactor),
        PROBE(LoyaltyAmountRebate, loyaltyAmountRebate),
        PROBE(FishIsRial, fishIsRial),
        PROBE(ReceiptMode, receiptMode),
        PROBE(ReceiptOutputKind, receiptOutput),
        PROBE(ReceiptPrinter, receiptPrinterName),
        PROBE(ReceiptEscPosDevice, receiptEscPosDevice),
        PROBE(ReceiptDotsWidth, receiptDotsWidth),
        PROBE(ReceiptPdfFolder, receiptPdfFolder),
        PROBE(CompanionProgram, companionProgram),
        PROBE(MandatoryRfCardPass, rfCardPasswordMandatory),
        PROBE(CustomerGrouping, customerGrouping),
        PROBE(CustomerFriendship, customerFriendship),
        PROBE(CanEditUser, canEditUser),
        PROBE(FactorSalePrice, factorSalePrice),
        PROBE(CustomerCodePattern, customerCodePattern),
        PROBE(SendFactor, sendFactor),
        PROBE(SendDailySale, sendDailySale),
        PROBE(SendDailySaleUserGroup, sendDailySaleUserGroup),
        PROBE(SmsFactorCustomer, smsFactorCustomer),
        PROBE(SmsCustomer, smsCustomer),
        PROBE(SmsBirthday, smsBirthday),
        PROBE(SmsBirthdayAfter, smsBirthdayAfter),
        PROBE(EmailBirthday, emailBirthday),
        PROBE(SmsSendType, smsSendType),
        PROBE(SmsFactorCustomerType, smsFactorCustomerType),
        PROBE(SmsBirthdayDayBefor, smsBirthdayDaysBefore),
        PROBE(SmsBirthdayDayAfter, smsBirthdayDaysAfter),
        PROBE(SendTel, sendTel),
        PROBE(SendDailySaleTel, sendDailySaleTel),
        PROBE(SendDailySaleTelUserGroup, sendDailySaleTelUserGroup),
        PROBE(LinkedServerName, linkedServerName),
        PROBE(LinkedDatabase, linkedDatabase),
        PROBE(LinkedSystemActive, linkedSystemActive),
        PROBE(BranchCode, branchCode),
        PROBE(AutoUpdate, autoUpdate),
        PROBE(SerialEnable, serialNumbersEnabled),
        PROBE(SearchByStock, searchByStock),
        PROBE(ThemeTextColor, themeTextColor),
        PROBE(ThemeFrameColor, themeFrameColor),
        PROBE(ThemeFormColor, themeFormColor),
    };
    for (SettingProbe& probe : probes) {
        // A text key read as a flag: "True" in any case means on.
        if (probe.key == &k::PrinterPortUsb) {
            probe.shownDefault = QStringLiteral("on");
        }
    }
    return probes;
}

#undef PROBE

}  // namespace

const std::vector<SettingProbe>& settingProbes() {
    static const std::vector<SettingProbe> probes = buildProbes();
    return probes;
}

QString expectedDefault(const SettingProbe& probe) {
    if (probe.shownDefault) {
        return *probe.shownDefault;
    }
    const QString fallback = QString::fromLatin1(probe.key->defaultText);
    switch (probe.key->form) {
        case SettingForm::Flag:
            return show(SettingReaders::flagOn(fallback));
        case SettingForm::Number:
            return show(SettingReaders::numericValue(fallback));
        case SettingForm::Text:
            break;
    }
    return fallback;
}

}  // namespace sandogh::testing
