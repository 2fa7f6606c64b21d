#pragma once

namespace sandogh {

// What a key of the sale screen asks for (SaleKeyMap gives the key table).
enum class SaleCommand {
    Save,                // F6, Ctrl+Enter: while the save button is enabled
    SaveAndPrint,        // Ctrl+F6: only while the receipt switch chkPrint is ticked
    GoodDefinition,      // F2: btnGoodDefinition
    NewSaleForm,         // F3: cmdNewSaleForm
    PecPayment,          // F5: btnParsianPos
    TerminalHandOff,     // F7..F12: the companion program's terminal screens
    NewSale,             // Esc: closes frmDetail when open, otherwise a new sale (asked with lines)
    FocusSumReceived,    // Ctrl+B: txtSumReceived
    FocusReceivedPrice,  // Ctrl+C: txtReceivedPrice
    DeleteLine,          // Ctrl+D: cmdDel
    CustomerSummary,     // Ctrl+H: btnCalculateHesab
    FocusDiscount,       // Ctrl+J: txtDiscount, text selected
    GoodsSearch,         // Ctrl+L: btnBarcodeSearch
    SwitchMode,          // Ctrl+M: rdoType
    DeleteInvoice,       // Ctrl+P: frmDeleteFactor
    ChangeQuantity,      // Ctrl+Q: frmChangeQty
    CustomerSearch,      // Ctrl+S: cmdCustomerSearch
    DailyTotals,         // Ctrl+T: while DisplayDailySale is on
    FocusOther,          // Ctrl+Z: txtOther
};

}  // namespace sandogh
