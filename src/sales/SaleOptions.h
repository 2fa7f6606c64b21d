#pragma once

#include <QString>

namespace sandogh {

class MachineSettings;

// The switches of this desk that ringing up reads, taken once per entry so that a scan
// reads the settings store once.
struct SaleOptions {
    bool quickEntry = true;          // SaleOptions/QuickEntry
    bool noMerge = false;            // SaleOptions/NoMerge
    bool cardReader = false;         // IsKeyboardRFID/Enable
    bool mizanTicket = false;        // ScaleTicket/Mizan
    bool onlineSalesTicket = false;  // ScaleTicket/OnlineSales
    QString scalePrefix;             // ScaleTicket/Prefix
    bool multiplePrices = false;     // IsMorePrice/Enable
    bool sellerChoice = false;       // UseUserIDInSale/Enable
    bool itemLock = false;           // SaleSetting/ItemLock
    bool stockCheck = false;         // IsExistQty/Enable
    bool priceFloorCheck = false;    // SaleSetting/BuySalePriceChecking
    bool display = false;            // IsActivePoolDisplay/Enable

    static SaleOptions read(const MachineSettings& settings);
};

}  // namespace sandogh
