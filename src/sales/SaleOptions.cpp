#include "sales/SaleOptions.h"

#include "settings/MachineSettings.h"

namespace sandogh {

SaleOptions SaleOptions::read(const MachineSettings& settings) {
    SaleOptions o;
    o.quickEntry = settings.quickEntryEnabled();
    o.noMerge = settings.noMergeEnabled();
    o.cardReader = settings.keyboardRfidEnabled();
    o.mizanTicket = settings.mizanTicketEnabled();
    o.onlineSalesTicket = settings.onlineSalesTicketEnabled();
    o.scalePrefix = settings.scalePrefix();
    o.multiplePrices = settings.multiplePricesEnabled();
    o.sellerChoice = settings.sellerChoiceEnabled();
    o.itemLock = settings.itemLock();
    o.stockCheck = settings.stockCheckEnabled();
    o.priceFloorCheck = settings.buySalePriceChecking();
    o.display = settings.displayEnabled();
    return o;
}

}  // namespace sandogh
